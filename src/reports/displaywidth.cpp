#include "reports/displaywidth.h"

#include <QList>
#include <QString>
#include <QTextBoundaryFinder>

#include <algorithm>
#include <clocale>
#include <cwchar>
#include <limits>
#include <optional>

namespace {

/// From here on a text may hold accents that join the letter before them, or wide characters: U+0300.
constexpr unsigned char firstUncommonByte = 0xCC;
constexpr char16_t emojiStyle = 0xFE0F;

/// Dashes, quotation marks and currency signs, of one column each: U+2010 to U+2027, U+2080 to U+20BF.
bool isCommonSign(std::string_view utf8)
{
    if (utf8.size() < 3 || utf8[0] != '\xE2')
        return false;
    return utf8[1] == '\x82' || (utf8[1] == '\x80' && utf8[2] >= '\x90' && utf8[2] <= '\xA7');
}

/// The width of texts in Latin letters and common signs, by far the most; nothing for others.
std::optional<int> widthOfCommon(std::string_view utf8)
{
    int width = 0;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto byte = static_cast<unsigned char>(utf8[i]);
        if (byte >= firstUncommonByte && !isCommonSign(utf8.substr(i)))
            return std::nullopt;
        width += (byte & 0xC0U) != 0x80U ? 1 : 0;
    }
    return width;
}

/// The C library's character widths, whatever the user's locale.
class UnicodeWidths
{
public:
    UnicodeWidths() : m_previous(uselocale(unicode())) {}
    ~UnicodeWidths() { uselocale(m_previous); }
    Q_DISABLE_COPY_MOVE(UnicodeWidths)

    /// `cluster` is what the user sees as one character.
    int of(QStringView cluster) const
    {
        if (cluster.contains(emojiStyle))
            return 2;
        int width = 0;
        for (const char32_t c : cluster.toUcs4())
            width = std::max(width, ::wcwidth(static_cast<wchar_t>(c)));
        const bool isFlag = cluster.size() == 4 && cluster.front().unicode() == 0xD83C &&
                            cluster.at(1).unicode() >= 0xDDE6 && cluster.at(2).unicode() == 0xD83C;
        return isFlag ? 2 : width;
    }

private:
    static locale_t unicode()
    {
        static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", locale_t());
        return locale;
    }

    locale_t m_previous;
};

/// How much of `text` fits in `columns`, and its width.
std::pair<qsizetype, int> fitting(const QString &text, int columns)
{
    const UnicodeWidths widths;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype end = 0;
    int width = 0;
    while (finder.toNextBoundary() >= 0) {
        const int next = widths.of(QStringView(text).sliced(end, finder.position() - end));
        if (next > columns - width)
            break;
        width += next;
        end = finder.position();
    }
    return {end, width};
}

QString toText(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

} // namespace

int displaywidth::of(std::string_view utf8)
{
    if (const auto width = widthOfCommon(utf8))
        return *width;
    return fitting(toText(utf8), std::numeric_limits<int>::max()).second;
}

std::string displaywidth::cut(std::string_view utf8, int columns)
{
    const QString text = toText(utf8);
    return text.first(fitting(text, columns).first).toStdString();
}
