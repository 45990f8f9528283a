#pragma once

#include <QFont>
#include <QString>
#include <QStringList>

#include <array>
#include <memory>
#include <string_view>
#include <unordered_map>

/// Lengths on paper are in twips, so that one layout fits every printer, PDF and preview.
namespace twips {

inline constexpr double inPoint = 20;
inline constexpr double inInch = 72 * inPoint;
inline constexpr double inMillimetre = inInch / 25.4;

} // namespace twips

/// The widths of a letter form's characters. Sums of them are nearly the width of a text, never less by more
/// than a rounding, and far quicker to get than a layout of the text.
class CharacterWidths
{
public:
    CharacterWidths(const QString &family, bool bold);

    /// In parts of the letter size.
    double of(char32_t character) const;

private:
    double measured(char32_t character) const;

    QFont m_font;
    mutable std::array<double, 0x250> m_latin; ///< as they are asked for; negative when unknown
    mutable std::unordered_map<char32_t, double> m_others;
};

/// A letter form in a size, on paper.
class PageFont
{
public:
    PageFont(const QString &family, double points, bool bold);
    /// The same form with letters of the whole number of twips next below `size`.
    PageFont resized(double size) const;

    const QFont &font() const { return m_font; }
    double size() const { return m_font.pixelSize(); } ///< of the letters, in twips
    double ascent() const { return m_ascent; }
    double descent() const { return m_descent; }
    double lineSpacing() const { return m_lineSpacing; }
    double width(QStringView text) const;

    /// A text with single blanks, and the widest of its words.
    struct Extent
    {
        double text = 0;
        double word = 0;
    };
    Extent extent(std::string_view utf8) const;
    Extent extent(QStringView text) const;

    /// `text` in lines of this width, broken at blanks, or within a word that is wider than a line. The first
    /// `kept` characters and the word after them are not parted.
    QStringList wrapped(const QString &text, double width, qsizetype kept = 0) const;

private:
    PageFont() = default;
    template <typename Text>
    Extent extentOf(const Text &text) const;
    double advance(QStringView text, qsizetype index) const;

    QFont m_font;
    std::shared_ptr<const CharacterWidths> m_widths;
    double m_ascent = 0, m_descent = 0, m_lineSpacing = 0;
};
