#include "widgets/pagefont.h"

#include <QFontMetricsF>

#include <algorithm>

namespace {

constexpr int measuredSize = 1000; ///< of the letters that are measured, in pixels

bool isAscii(std::string_view text)
{
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

char32_t unit(char ascii)
{
    return char32_t(ascii);
}

char32_t unit(QChar c)
{
    return c.unicode();
}

QFont unhinted(const QString &family, bool bold)
{
    QFont font(family);
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace

CharacterWidths::CharacterWidths(const QString &family, bool bold) : m_font(unhinted(family, bold))
{
    m_font.setPixelSize(measuredSize);
    m_latin.fill(-1);
}

double CharacterWidths::measured(char32_t character) const
{
    if (QChar::isMark(character))
        return 0;
    return QFontMetricsF(m_font).horizontalAdvance(QString::fromUcs4(&character, 1)) / measuredSize;
}

double CharacterWidths::of(char32_t character) const
{
    if (character >= m_latin.size()) {
        const auto known = m_others.find(character);
        return known != m_others.end() ? known->second
                                       : m_others.emplace(character, measured(character)).first->second;
    }
    double &width = m_latin[character];
    if (width < 0)
        width = measured(character);
    return width;
}

PageFont::PageFont(const QString &family, double points, bool bold)
    : m_font(unhinted(family, bold)), m_widths(std::make_shared<CharacterWidths>(family, bold))
{
    *this = resized(points * twips::inPoint);
}

PageFont PageFont::resized(double size) const
{
    PageFont other;
    other.m_font = m_font;
    other.m_font.setPixelSize(std::max(1, int(size)));
    other.m_widths = m_widths;
    const QFontMetricsF metrics(other.m_font);
    other.m_ascent = metrics.ascent();
    other.m_descent = metrics.descent();
    other.m_lineSpacing = metrics.lineSpacing();
    return other;
}

/// A pair of surrogates has its width at the first.
double PageFont::advance(QStringView text, qsizetype index) const
{
    const QChar c = text[index];
    if (c.isLowSurrogate())
        return 0;
    const bool isPair = c.isHighSurrogate() && index + 1 < text.size();
    return m_widths->of(isPair ? QChar::surrogateToUcs4(c, text[index + 1]) : c.unicode()) * size();
}

double PageFont::width(QStringView text) const
{
    double width = 0;
    for (qsizetype i = 0; i < text.size(); ++i)
        width += advance(text, i);
    return width;
}

template <typename Text>
PageFont::Extent PageFont::extentOf(const Text &text) const
{
    const double blank = m_widths->of(U' ') * size();
    Extent extent;
    double word = 0;
    bool isBetween = false;
    for (qsizetype i = 0; i < qsizetype(text.size()); ++i) {
        const auto c = text[typename Text::size_type(i)];
        if (QChar::isSpace(unit(c))) {
            isBetween = extent.text > 0;
            word = 0;
            continue;
        }
        double step;
        if constexpr (std::is_same_v<Text, QStringView>)
            step = advance(text, i);
        else
            step = m_widths->of(unit(c)) * size();
        extent.text += isBetween ? blank + step : step;
        isBetween = false;
        word += step;
        extent.word = std::max(extent.word, word);
    }
    return extent;
}

PageFont::Extent PageFont::extent(QStringView text) const
{
    return extentOf(text);
}

PageFont::Extent PageFont::extent(std::string_view utf8) const
{
    return isAscii(utf8) ? extentOf(utf8) : extentOf(QStringView(QString::fromUtf8(utf8)));
}

QStringList PageFont::wrapped(const QString &text, double width, qsizetype kept) const
{
    QStringList lines;
    qsizetype start = 0, blank = -1; // of the line; the last blank where it may be broken
    double used = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const double step = advance(text, i);
        if (text[i] == u' ') {
            if (i >= kept && i > start)
                blank = i;
        } else {
            while (step > 0 && used + step > width && i > start) {
                const qsizetype end = blank > start ? blank : i; // a word wider than the line is broken
                lines << text.sliced(start, end - start);
                start = end == blank ? blank + 1 : i;
                used = this->width(QStringView(text).sliced(start, i - start));
                blank = -1;
            }
        }
        used += step;
    }
    lines << text.sliced(start);
    return lines;
}
