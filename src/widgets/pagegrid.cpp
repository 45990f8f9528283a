#include "widgets/pagegrid.h"

#include <algorithm>
#include <cmath>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

// In letter sizes:
constexpr double gapWidth = 1;
constexpr double narrowestText = 2.5;
constexpr double sensibleText = 24;   ///< a long note does not make the letters of the whole list small
constexpr double widestUnbroken = 14; ///< amounts and dates are not wrapped; a text in their place may be

constexpr double smallestForOneLine = 0.7;  ///< letters become no smaller to keep texts in one line,
constexpr double smallestForFewLines = 0.6; ///< nor to keep words whole and texts in few lines
constexpr int fewLines = 3;
constexpr double roundingSlack = 1.003; ///< widths are sums of rounded ones

constexpr double gapOfLines = 0.15;        ///< below a row, in line spacings
constexpr double gapOfWrappedLines = 0.45; ///< shows where a row of several lines ends

const QString betweenLabels = u"    "_s;

bool isAmount(CellKind kind)
{
    return kind == CellKind::Amount || kind == CellKind::Number;
}

/// A value as it is printed: with single blanks, "-" when there is none.
QString printedValue(const TableSource &list, int row, int column)
{
    const QString value =
        column >= 0 && column < list.columnCount() ? list.cell(row, column).simplified() : QString();
    return value.isEmpty() ? u"-"_s : value;
}

qsizetype mostLines(const std::vector<QStringList> &cells)
{
    qsizetype most = 0;
    for (const QStringList &lines : cells)
        most = std::max(most, lines.size());
    return most;
}

} // namespace

PageGrid::PageGrid(const PageTable &table, const PageFont &font, const PageFont &boldFont,
                   const std::function<void()> &rowDone)
    : m_list(*table.list),
      m_form(table.form),
      m_documentFont(font),
      m_documentBoldFont(boldFont),
      m_font(font),
      m_boldFont(boldFont)
{
    std::vector<int> columns = m_form.cells;
    if (columns.empty()) {
        columns.resize(std::size_t(m_list.columnCount()));
        std::iota(columns.begin(), columns.end(), 0);
    }
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const int column = columns[i] < m_list.columnCount() ? columns[i] : -1;
        QString heading = m_form.headings.value(qsizetype(i));
        if (heading.isNull() && column >= 0)
            heading = m_list.heading(column);
        m_cells.push_back({.column = column,
                           .heading = heading,
                           .rightAligned = column >= 0 && isAmount(m_list.kind(column)),
                           .steps = {}});
    }
    measureCells(rowDone);
}

void PageGrid::measureCells(const std::function<void()> &rowDone)
{
    std::vector<PageFont::Extent> widest(m_cells.size(), m_documentFont.extent(u"-"));
    std::string buffer;
    const int rows = m_list.rowCount();
    for (int row = 0; row < rows; ++row) {
        for (std::size_t i = 0; i < m_cells.size(); ++i) {
            if (m_cells[i].column < 0)
                continue;
            const auto extent = m_documentFont.extent(m_list.utf8(row, m_cells[i].column, buffer));
            widest[i].text = std::max(widest[i].text, extent.text);
            widest[i].word = std::max(widest[i].word, extent.word);
        }
        rowDone();
    }
    const double em = m_documentFont.size();
    for (std::size_t i = 0; i < m_cells.size(); ++i) {
        Cell &cell = m_cells[i];
        const bool mayWrap = cell.column < 0 || m_list.kind(cell.column) == CellKind::Text;
        const PageFont::Extent heading =
            m_form.showHeadings ? m_documentBoldFont.extent(QStringView(cell.heading)) : PageFont::Extent();
        const double word = std::max(widest[i].word, heading.word) * roundingSlack;
        const double text = std::max(widest[i].text, heading.text) * roundingSlack;
        const double least = mayWrap ? 0.0 : std::min(widest[i].text * roundingSlack, widestUnbroken * em);
        const auto atMost = [&](double width, double ems) {
            return std::max(least, std::min(width, ems * em));
        };
        cell.steps[Narrowest] = atMost(word, narrowestText);
        cell.steps[Words] = atMost(word, sensibleText);
        cell.steps[Sensible] = atMost(text, sensibleText);
        cell.steps[Natural] = std::max(least, text);
    }
}

double PageGrid::gaps() const
{
    return gapWidth * m_documentFont.size() * double(std::max<std::size_t>(1, m_cells.size()) - 1);
}

double PageGrid::total(Step step) const
{
    double width = gaps();
    for (const Cell &cell : m_cells)
        width += cell.steps[step];
    return width;
}

double PageGrid::fittingScale(double pageWidth) const
{
    double inFewLines = gaps();
    for (const Cell &cell : m_cells)
        inFewLines += std::max(cell.steps[Words], cell.steps[Sensible] / fewLines);
    double scale = std::min(1.0, std::max(smallestForOneLine, pageWidth / total(Sensible)));
    if (pageWidth / inFewLines < scale)
        scale = std::max(smallestForFewLines, pageWidth / inFewLines);
    // Too many columns for readable letters: smaller ones rather than none.
    return std::min(scale, pageWidth / total(Narrowest));
}

/// Gives the columns what they take at the widest step that there is room for. The rest goes towards what
/// they would take at the next: a wide column gets more of it than a narrow one, but not so much more, so
/// that narrow values stay in one line and wide ones do not become tall.
void PageGrid::spread(double room)
{
    std::size_t step = Narrowest;
    while (step + 1 < Natural && total(Step(step + 1)) <= room)
        ++step;
    const auto widthAt = [step](const Cell &cell, double level) {
        return std::clamp(level * std::sqrt(cell.steps[step + 1]), cell.steps[step], cell.steps[step + 1]);
    };
    double low = 0, high = room;
    for (int i = 0; i < 50; ++i) {
        const double level = (low + high) / 2;
        double used = gaps();
        for (const Cell &cell : m_cells)
            used += widthAt(cell, level);
        (used <= room ? low : high) = level;
    }
    for (Cell &cell : m_cells)
        cell.width = widthAt(cell, low);
}

void PageGrid::fit(double pageWidth)
{
    m_pageWidth = pageWidth;
    const double size = m_documentFont.size();
    m_font = m_documentFont.resized(size * fittingScale(pageWidth));
    m_boldFont = m_documentBoldFont.resized(m_font.size());
    const double scale = m_font.size() / size;
    spread(pageWidth / scale);

    bool wraps = false;
    double x = 0;
    m_headings.cells.clear();
    for (Cell &cell : m_cells) {
        wraps = wraps || cell.width < cell.steps[Natural];
        cell.x = x;
        cell.width *= scale;
        x += cell.width + gapWidth * m_font.size();
        if (m_form.showHeadings)
            m_headings.cells.push_back(m_boldFont.wrapped(cell.heading, cell.width));
    }
    m_headings.cellLines = mostLines(m_headings.cells);
    const double gap = m_form.labels.empty() ? (wraps ? gapOfWrappedLines : gapOfLines) : 1 + gapOfLines;
    m_rowGap = gap * m_font.lineSpacing();
}

QStringList PageGrid::labelLines(int row) const
{
    QStringList lines;
    double used = 0; // of the last line
    for (const RowLabel &label : m_form.labels) {
        if (label.column >= m_list.columnCount())
            continue;
        const QString text = label.label + printedValue(m_list, row, label.column);
        const double joined = used + m_font.width(betweenLabels) + m_font.width(text);
        if (m_form.labelsShareLine && !lines.isEmpty() && joined <= m_pageWidth) {
            lines.last() += betweenLabels + text;
            used = joined;
            continue;
        }
        lines << m_font.wrapped(text, m_pageWidth, label.label.size());
        used = m_font.width(lines.constLast());
    }
    return lines;
}

PageRow PageGrid::row(int row) const
{
    PageRow result;
    result.cells.reserve(m_cells.size());
    for (const Cell &cell : m_cells)
        result.cells.push_back(m_font.wrapped(printedValue(m_list, row, cell.column), cell.width));
    result.cellLines = mostLines(result.cells);
    result.below = labelLines(row);
    return result;
}
