#include "widgets/documentpages.h"

#include "data/error.h"

#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double footerLines = 2;      ///< that the footer takes from the page, with the room above it
constexpr double gapOfHeadings = 0.15; ///< below a list's headings
constexpr double leastLines = 3;       ///< that a page must have room for, beside header, headings and footer

double spacing(const PageFont &font, qsizetype lines)
{
    return font.lineSpacing() * double(lines);
}

/// What a paper has within its margins, in twips.
QSizeF room(const QPageLayout &paper)
{
    return paper.paintRect(QPageLayout::Point).size() * twips::inPoint;
}

} // namespace

/// Sets one page from a position on: paints it, or only finds where the next one begins.
class DocumentPages::Setter
{
public:
    /// `painter` may be null.
    Setter(const DocumentPages &pages, QPainter *painter)
        : m_pages(pages), m_painter(painter), m_width(pages.m_size.width()), m_bottom(pages.m_size.height())
    {
        if (pages.m_document.footer)
            m_bottom -= spacing(pages.m_font, 1) * footerLines;
    }

    /// Returns where the next page begins: behind the last block when there is none.
    Position set(Position from, const std::function<void()> &rowDone)
    {
        m_at = from;
        m_rowDone = rowDone;
        setHeader();
        while (m_at.block < int(blocks().size()) && std::visit(*this, blocks()[std::size_t(m_at.block)]))
            m_at = {.block = m_at.block + 1};
        return m_at;
    }
    void setFooter(int page);
    /// Whether a page of this size has room for anything but headings.
    bool canSetPages();

    // Each sets as much of the block as there is room for, and tells whether that was all.
    bool operator()(const PageText &block);
    bool operator()(const PageRule &block);
    bool operator()(const PageTable &block);
    bool operator()(const PagePicture &block);

private:
    const std::vector<PageBlock> &blocks() const { return m_pages.m_document.blocks; }
    /// The first line below the header always has room.
    bool hasRoom(double height) const { return m_isFresh || m_y + height <= m_bottom; }
    void draw(double x, double baseline, const QString &text, const PageFont &font);
    void setLine(const QString &text, const PageFont &font)
    {
        draw(0, m_y + font.ascent(), text, font);
        m_y += font.lineSpacing();
    }
    /// The document's font, with smaller letters for a line that is wider than the page.
    const PageFont &fitting(const QString &line) const;
    void setHeader();
    void setRule(int length);
    double headingsHeight(const PageGrid &grid) const;
    void setHeadings(const PageGrid &grid);
    void setCells(const PageGrid &grid, const PageRow &row, qsizetype line, const PageFont &font);
    bool setRow(const PageGrid &grid, const PageRow &row);

    const DocumentPages &m_pages;
    QPainter *m_painter;
    const PageFont *m_painterFont = nullptr;
    double m_width, m_bottom;
    Position m_at;
    std::function<void()> m_rowDone;
    double m_y = 0;
    bool m_isFresh = true; ///< nothing stands below the header
};

void DocumentPages::Setter::draw(double x, double baseline, const QString &text, const PageFont &font)
{
    if (!m_painter || text.isEmpty())
        return;
    if (m_painterFont != &font) {
        m_painter->setFont(font.font());
        m_painterFont = &font;
    }
    m_painter->drawText(QPointF(x, baseline), text);
}

void DocumentPages::Setter::setHeader()
{
    for (const QString &line : m_pages.m_headerLines)
        setLine(line, m_pages.m_font);
    if (!m_pages.m_headerLines.isEmpty())
        m_y += m_pages.m_font.lineSpacing();
}

void DocumentPages::Setter::setFooter(int page)
{
    if (!m_pages.m_document.footer)
        return;
    const QString text = m_pages.m_document.footer(page, m_pages.count());
    draw(0, m_pages.m_size.height() - m_pages.m_font.descent(), text, fitting(text));
}

const PageFont &DocumentPages::Setter::fitting(const QString &line) const
{
    const PageFont &font = m_pages.m_font;
    const double width = font.width(line);
    return width > m_width ? m_pages.font(font.size() * m_width / width) : font;
}

bool DocumentPages::Setter::operator()(const PageText &block)
{
    const int points = block.size > 0 ? block.size : m_pages.m_document.fontSize;
    const PageFont &font = m_pages.font(points * twips::inPoint, block.bold);
    const QStringList &lines = m_pages.lines(block, font);
    for (; m_at.line < lines.size(); ++m_at.line) {
        if (!hasRoom(font.lineSpacing()))
            return false;
        setLine(lines[m_at.line], font);
        m_isFresh = false;
    }
    return true;
}

bool DocumentPages::Setter::operator()(const PageRule &block)
{
    if (!hasRoom(m_pages.m_font.lineSpacing()))
        return false;
    setRule(block.length);
    m_isFresh = false;
    return true;
}

bool DocumentPages::Setter::operator()(const PageTable &block)
{
    const PageGrid &grid = m_pages.m_grids.at(&block);
    const int rows = block.list->rowCount();
    const double line = grid.font().lineSpacing();
    // A row stays together unless it is longer than a page; its beginning stays with the headings.
    const auto needed = [&](const PageRow &row) {
        return std::min(line * double(row.lineCount() - m_at.line), m_bottom / 2);
    };
    const bool begins = m_at.row == 0 && m_at.line == 0;
    if (begins && !hasRoom(headingsHeight(grid) + (rows > 0 ? needed(grid.row(0)) : 0)))
        return false;
    setHeadings(grid);
    for (; m_at.row < rows; ++m_at.row, m_at.line = 0) {
        const PageRow row = grid.row(m_at.row);
        if (!hasRoom(needed(row)) || !setRow(grid, row))
            return false;
        m_y += grid.rowGap();
        if (m_rowDone)
            m_rowDone();
    }
    return true;
}

bool DocumentPages::Setter::operator()(const PagePicture &block)
{
    const double wanted = spacing(m_pages.m_font, block.lines);
    if (!hasRoom(wanted))
        return false;
    const double height = std::min(wanted, m_bottom - m_y);
    if (m_painter) {
        m_painter->save();
        block.paint(*m_painter, QRectF(0, m_y, m_width, height));
        m_painter->restore();
    }
    m_y += height;
    m_isFresh = false;
    return true;
}

void DocumentPages::Setter::setRule(int length)
{
    const int fitting = int(m_width / m_pages.m_font.width(u"_"));
    const QString rule(length > 0 ? length : fitting, u'_');
    setLine(rule, this->fitting(rule));
}

double DocumentPages::Setter::headingsHeight(const PageGrid &grid) const
{
    const PageFont &font = m_pages.m_font;
    return font.lineSpacing() * (1 + gapOfHeadings) + font.descent() +
           grid.boldFont().lineSpacing() * double(grid.headings().cellLines);
}

bool DocumentPages::Setter::canSetPages()
{
    setHeader();
    double headings = 0;
    for (const auto &[table, grid] : m_pages.m_grids)
        headings = std::max(headings, headingsHeight(grid));
    return m_y + headings + m_pages.m_font.lineSpacing() * leastLines <= m_bottom;
}

void DocumentPages::Setter::setHeadings(const PageGrid &grid)
{
    setRule(0);
    m_y += m_pages.m_font.descent();
    for (qsizetype line = 0; line < grid.headings().cellLines; ++line)
        setCells(grid, grid.headings(), line, grid.boldFont());
    m_y += m_pages.m_font.lineSpacing() * gapOfHeadings;
}

void DocumentPages::Setter::setCells(const PageGrid &grid, const PageRow &row, qsizetype line,
                                     const PageFont &font)
{
    for (std::size_t i = 0; m_painter && i < row.cells.size(); ++i) {
        const PageGrid::Cell &cell = grid.cells()[i];
        const QString text = row.cells[i].value(line);
        const double x = cell.rightAligned ? cell.x + cell.width - font.width(text) : cell.x;
        draw(x, m_y + font.ascent(), text, font);
    }
    m_y += font.lineSpacing();
}

bool DocumentPages::Setter::setRow(const PageGrid &grid, const PageRow &row)
{
    for (; m_at.line < row.lineCount(); ++m_at.line) {
        if (!hasRoom(grid.font().lineSpacing()))
            return false;
        if (m_at.line < row.cellLines)
            setCells(grid, row, m_at.line, grid.font());
        else
            setLine(row.below[m_at.line - row.cellLines], grid.font());
        m_isFresh = false;
    }
    return true;
}

DocumentPages::DocumentPages(PageDocument document, Progress *progress)
    : m_document(std::move(document)),
      m_font(m_document.fontFamily, m_document.fontSize, false),
      m_boldFont(m_document.fontFamily, m_document.fontSize, true)
{
    if (progress)
        progress->begin([this] { return rowCount(); });
    qint64 done = 0;
    const auto rowDone = [&] {
        if (progress)
            progress->advance(++done);
    };
    for (const PageBlock &block : m_document.blocks) {
        if (const auto *table = std::get_if<PageTable>(&block))
            m_grids.emplace(table, PageGrid(*table, m_font, m_boldFont, rowDone));
    }
}

DocumentPages::~DocumentPages() = default;

qint64 DocumentPages::rowCount() const
{
    qint64 rows = 0;
    for (const PageBlock &block : m_document.blocks) {
        if (const auto *table = std::get_if<PageTable>(&block))
            rows += table->list->rowCount();
    }
    return rows;
}

const PageFont &DocumentPages::font(double size, bool bold) const
{
    const auto key = std::pair(int(size), bold);
    const auto known = m_otherFonts.find(key);
    return known != m_otherFonts.end()
               ? known->second
               : m_otherFonts.emplace(key, (bold ? m_boldFont : m_font).resized(size)).first->second;
}

const QStringList &DocumentPages::lines(const PageText &text, const PageFont &font) const
{
    if (m_lastText != &text) {
        QString breaks = text.text;
        breaks.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
        m_lastLines.clear();
        for (const QString &line : breaks.split(u'\n'))
            m_lastLines << font.wrapped(line, m_size.width());
        m_lastText = &text;
    }
    return m_lastLines;
}

QPageLayout::Orientation DocumentPages::fittingOrientation(QPageLayout paper) const
{
    paper.setOrientation(QPageLayout::Portrait);
    const double width = room(paper).width();
    const bool isWide = std::ranges::any_of(
        m_grids, [width](const auto &grid) { return grid.second.naturalWidth() > width; });
    return isWide ? QPageLayout::Landscape : QPageLayout::Portrait;
}

void DocumentPages::layOut(const QPageLayout &paper, Progress *progress)
{
    if (!m_starts.empty() && m_size == room(paper))
        return;
    m_starts.clear();
    m_lastText = nullptr;
    m_size = room(paper);
    m_headerLines.clear();
    for (const QString &line : m_document.header)
        m_headerLines << m_font.wrapped(line, m_size.width());
    for (auto &[table, grid] : m_grids)
        grid.fit(m_size.width());
    if (!Setter(*this, nullptr).canSetPages())
        throw Error(Error::Kind::Data,
                    u"A página configurada para o relatório não possuí espaço suficiente para a impressão"_s);

    if (progress)
        progress->begin([this] { return rowCount(); });
    qint64 done = 0;
    const auto rowDone = [&] {
        if (progress)
            progress->advance(++done);
    };
    std::vector<Position> starts;
    Position next;
    do {
        starts.push_back(next);
        next = Setter(*this, nullptr).set(next, rowDone);
    } while (next.block < int(m_document.blocks.size()));
    m_starts = std::move(starts);
}

void DocumentPages::paint(QPainter &painter, int page)
{
    Setter setter(*this, &painter);
    const Position end = setter.set(m_starts.at(std::size_t(page - 1)), nullptr);
    if (page < count() ? end != m_starts[std::size_t(page)] : end.block < int(m_document.blocks.size())) {
        m_starts.clear(); // the next time it is laid out anew
        throw Error(Error::Kind::Data,
                    u"Os dados foram alterados enquanto as páginas eram preparadas. Tente de novo."_s);
    }
    setter.setFooter(page);
}
