#include "widgets/pagegrid.h"

#include <QPagedPaintDevice>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr double gapInEms = 1.2;
constexpr double widestTextInEms = 28;   ///< a long note does not make the whole page wide
constexpr double sensibleTextInEms = 12; ///< letters become smaller before a text is cut off below this
constexpr double narrowestTextInEms = 3;
constexpr double scaleSlack = 1.02; ///< the widths of smaller letters are not exactly in proportion
constexpr double smallestScale = 0.7;
constexpr std::size_t latinCharacters = 0x250;
constexpr int measuredRows = 500;

/// What a column's values take: the longest one of all, and the widest of an even choice of rows.
class ValueWidths
{
public:
    ValueWidths(const TableSource &list, const PageFont &font) : m_widths(std::size_t(list.columnCount()))
    {
        std::vector<std::size_t> longest(m_widths.size());
        const int step = std::max(1, list.rowCount() / measuredRows);
        std::string buffer;
        for (int row = 0; row < list.rowCount(); ++row) {
            for (int column = 0; column < list.columnCount(); ++column) {
                const std::size_t length = list.utf8(row, column, buffer).size();
                const bool isLonger = length > longest[std::size_t(column)];
                if (!isLonger && row % step != 0)
                    continue;
                double &width = m_widths[std::size_t(column)];
                width = std::max(width, font.width(printedValue(list, row, column)));
                longest[std::size_t(column)] = std::max(longest[std::size_t(column)], length);
            }
        }
    }
    double of(int column) const { return column < 0 ? 0 : m_widths[std::size_t(column)]; }

private:
    std::vector<double> m_widths;
};

bool isAmount(CellKind kind)
{
    return kind == CellKind::Amount || kind == CellKind::Number;
}

} // namespace

PageFont::PageFont(const QString &family, double points, bool bold, QPagedPaintDevice &device)
    : font(family), metrics(font), m_advances(latinCharacters, -1)
{
    font.setPointSizeF(points);
    font.setBold(bold);
    metrics = QFontMetricsF(font, &device);
}

double PageFont::estimate(QChar c) const
{
    if (c.isLowSurrogate() || c.isMark())
        return 0;
    if (c.unicode() >= m_advances.size())
        return metrics.height();
    double &advance = m_advances[c.unicode()];
    if (advance < 0)
        advance = metrics.horizontalAdvance(c);
    return advance;
}

double PageFont::estimate(QStringView text) const
{
    return std::transform_reduce(text.begin(), text.end(), 0.0, std::plus<>(),
                                 [this](QChar c) { return estimate(c); });
}

QString PageFont::fitted(const QString &text, double width) const
{
    if (estimate(text) <= width || metrics.horizontalAdvance(text) <= width)
        return text;
    return metrics.elidedText(text, Qt::ElideRight, width);
}

QStringList PageFont::wrapped(const QString &text, double width) const
{
    QStringList lines;
    qsizetype start = 0, blank = -1; // of the line; the last blank in it
    double used = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const double advance = estimate(text[i]);
        if (text[i] == u' ') {
            blank = i;
        } else if (advance > 0 && used + advance > width && i > start) {
            const qsizetype end = blank > start ? blank : i; // a word wider than the page is broken
            lines << text.sliced(start, end - start);
            start = end == blank ? blank + 1 : i;
            used = estimate(QStringView(text).sliced(start, i - start));
            blank = -1;
        }
        used += advance;
    }
    lines << text.sliced(start);
    return lines;
}

PageGrid::PageGrid(const PageTable &table, const PageDocument &document, QPagedPaintDevice &device,
                   double pageWidth)
    : m_table(table),
      m_device(device),
      m_family(document.fontFamily),
      m_points(document.fontSize),
      m_font(m_family, m_points, false, device),
      m_boldFont(m_family, m_points, true, device)
{
    const TableSource &list = *table.list;
    std::vector<int> columns = table.form.cells;
    if (columns.empty()) {
        columns.resize(std::size_t(list.columnCount()));
        std::iota(columns.begin(), columns.end(), 0);
    }
    const ValueWidths values(list, m_font);
    const double widestText = widestTextInEms * m_font.width(u"M"_s);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const int column = columns[i] < list.columnCount() ? columns[i] : -1;
        const CellKind kind = column < 0 ? CellKind::Text : list.kind(column);
        QString heading = table.form.headings.value(qsizetype(i));
        if (heading.isNull() && column >= 0)
            heading = list.heading(column);
        double width = values.of(column);
        if (kind == CellKind::Text)
            width = std::min(width, widestText);
        if (table.form.showHeadings)
            width = std::max(width, m_boldFont.width(heading));
        m_cells.push_back({.column = column,
                           .heading = heading,
                           .rightAligned = isAmount(kind),
                           .isText = kind == CellKind::Text,
                           .x = 0,
                           .width = std::ceil(width)});
    }
    fit(pageWidth);
}

void PageGrid::setScale(double scale)
{
    m_font = PageFont(m_family, m_points * scale, false, m_device);
    m_boldFont = PageFont(m_family, m_points * scale, true, m_device);
    for (Cell &cell : m_cells)
        cell.width = std::ceil(cell.width * scale * scaleSlack);
}

/// Takes `excess` from the widest texts, none below `least`; returns what could not be taken.
double PageGrid::narrowTexts(double excess, double least)
{
    while (excess > 0) {
        // The widest texts lose width down to the next widest.
        double widest = least, next = least;
        for (const Cell &cell : m_cells)
            widest = cell.isText ? std::max(widest, cell.width) : widest;
        const auto isWidest = [widest](const Cell &cell) { return cell.isText && cell.width >= widest; };
        for (const Cell &cell : m_cells)
            next = cell.isText && !isWidest(cell) ? std::max(next, cell.width) : next;
        const double cut =
            std::min(widest - next,
                     excess / double(std::max<std::ptrdiff_t>(1, std::ranges::count_if(m_cells, isWidest))));
        if (cut <= 0)
            break;
        for (Cell &cell : m_cells) {
            if (isWidest(cell)) {
                cell.width -= cut;
                excess -= cut;
            }
        }
        if (excess < 0.5)
            return 0;
    }
    return std::max(0.0, excess);
}

/// Makes the letters as small as needed for texts of a sensible width, then cuts the widest texts.
void PageGrid::fit(double pageWidth)
{
    const double em = m_font.width(u"M"_s);
    double gap = gapInEms * em;
    const double gaps = gap * double(m_cells.size() - 1);
    double sensible = gaps;
    m_naturalWidth = gaps;
    for (const Cell &cell : m_cells) {
        m_naturalWidth += cell.width;
        sensible += cell.isText ? std::min(cell.width, sensibleTextInEms * em) : cell.width;
    }
    const double scale = sensible > pageWidth ? std::max(smallestScale, pageWidth / sensible) : 1.0;
    double excess = m_naturalWidth - pageWidth;
    if (scale < 1.0) {
        setScale(scale);
        gap *= scale;
        excess = gap * double(m_cells.size() - 1) - pageWidth;
        for (const Cell &cell : m_cells)
            excess += cell.width;
    }
    excess = narrowTexts(excess, narrowestTextInEms * em * scale);
    double x = 0;
    for (Cell &cell : m_cells) {
        cell.x = x;
        x += cell.width + gap;
    }
    // Too many columns for any paper: all share what there is.
    const double squeeze = pageWidth / (pageWidth + excess);
    for (Cell &cell : m_cells) {
        cell.x *= squeeze;
        cell.width *= squeeze;
    }
}

QString printedValue(const TableSource &list, int row, int column)
{
    const QString value =
        column >= 0 && column < list.columnCount() ? list.cell(row, column).simplified() : QString();
    return value.isEmpty() ? u"-"_s : value;
}
