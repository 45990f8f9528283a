#include "widgets/pageprinter.h"

#include "data/error.h"
#include "widgets/pagegrid.h"

#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace {

constexpr double rowSpacing = 1.15; ///< of the line spacing
constexpr int leastLines = 5;       ///< that a page must have room for, beside header and footer

/// A width on paper of this size held upright, in the device's dots.
double uprightWidth(QPagedPaintDevice &device)
{
    QPageLayout paper = device.pageLayout();
    paper.setOrientation(QPageLayout::Portrait);
    return paper.paintRect(QPageLayout::Point).width() * device.logicalDpiX() / 72.0;
}

qint64 rowsOf(const PageDocument &document)
{
    qint64 rows = 0;
    for (const PageBlock &block : document.blocks) {
        if (const auto *table = std::get_if<PageTable>(&block))
            rows += table->list->rowCount();
    }
    return rows;
}

} // namespace

/// The document's lists fitted to a paper.
struct PagePrinter::Layout
{
    Layout(const PageDocument &source, QPagedPaintDevice &paper, double pageWidth)
        : document(source),
          device(paper),
          width(pageWidth),
          height(paper.height()),
          text(source.fontFamily, source.fontSize, false, paper)
    {
        for (const PageBlock &block : document.blocks) {
            if (const auto *table = std::get_if<PageTable>(&block))
                grids.emplace(table, PageGrid(*table, document, device, width));
        }
    }

    /// Through all blocks; returns the number of the last page.
    template <typename Walker>
    int walk(Walker &walker) const
    {
        walker.startPage();
        for (const PageBlock &block : document.blocks) {
            if (walker.isDone())
                break;
            if (const auto *table = std::get_if<PageTable>(&block))
                walker.setGrid(grids.at(table));
            std::visit(walker, block);
        }
        walker.endPage();
        return walker.page();
    }

    const PageDocument &document;
    QPagedPaintDevice &device;
    double width, height;
    PageFont text;
    std::map<const PageTable *, PageGrid> grids;
};

namespace {

/// One walk through the document: only counts the pages, or paints those of a range.
class Walk
{
public:
    Walk(const PageDocument &document, QPagedPaintDevice &device, const PageFont &text, double width,
         double height)
        : m_document(document), m_device(device), m_text(text), m_width(width), m_height(height)
    {
        const double line = text.metrics.lineSpacing();
        m_bottom = height - 2 * line;
        if (m_bottom - line * double(document.header.size() + leastLines) < 0)
            throw Error(
                Error::Kind::Data,
                u"A página configurada para o relatório não possuí espaço suficiente para a impressão"_s);
    }

    void paintOn(QPainter &painter, const PageRange &range, int pages, Progress *progress)
    {
        m_painter = &painter;
        m_range = range;
        m_pages = pages;
        m_progress = progress;
        if (progress)
            progress->begin([this] { return rowsOf(m_document); });
    }
    void operator()(const PageText &block)
    {
        const PageFont font =
            block.size > 0 || block.bold
                ? PageFont(m_document.fontFamily, block.size > 0 ? block.size : m_document.fontSize,
                           block.bold, m_device)
                : m_text;
        QString text = block.text;
        text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
        for (const QString &line : text.split(u'\n')) {
            for (const QString &part : font.wrapped(line, m_width))
                writeLine(part, font);
        }
    }
    void operator()(const PageRule &block) { writeRule(block.length); }
    void operator()(const PageTable &block);

    void setGrid(const PageGrid &grid) { m_grid = &grid; }
    void startPage()
    {
        ++m_page;
        m_y = 0;
        for (const QString &line : m_document.header)
            drawLine(m_text.fitted(line, m_width), m_text);
        m_y += m_text.metrics.lineSpacing();
    }
    void endPage()
    {
        if (isPainting())
            m_painter->drawText(QPointF(0, m_height - m_text.metrics.descent()),
                                m_text.fitted(m_document.footer(m_page, m_pages), m_width));
    }
    bool isDone() const { return m_page > m_range.last; }
    int page() const { return m_page; }

private:
    bool isPainting() const { return m_painter && m_page >= m_range.first && !isDone(); }

    /// Goes to a new page if this one has no room for `height`.
    bool needsNewPage(double height)
    {
        if (m_y + height <= m_bottom)
            return false;
        newPage();
        return true;
    }
    void newPage()
    {
        endPage();
        const bool goesOn = isPainting() && m_page < m_range.last;
        if (goesOn && !m_device.newPage())
            throw Error(Error::Kind::File, u"A página não pôde ser impressa."_s);
        startPage();
    }
    void drawLine(const QString &text, const PageFont &font)
    {
        if (isPainting() && !text.isEmpty()) {
            m_painter->setFont(font.font);
            m_painter->drawText(QPointF(0, m_y + font.metrics.ascent()), text);
            m_painter->setFont(m_text.font);
        }
        m_y += font.metrics.lineSpacing();
    }
    void writeLine(const QString &text, const PageFont &font)
    {
        needsNewPage(font.metrics.lineSpacing());
        drawLine(text, font);
    }
    void writeRule(int length)
    {
        const double character = m_text.width(u"_"_s);
        const int fitting = int(m_width / character);
        if (length <= fitting) {
            writeLine(QString(length > 0 ? length : fitting, u'_'), m_text);
            return;
        }
        const double points = m_document.fontSize * m_width / (character * (length + 1));
        writeLine(QString(length, u'_'), PageFont(m_document.fontFamily, points, false, m_device));
    }
    void writeHeadings();
    void drawCells(const QStringList &texts, const PageFont &font);
    QStringList labelLines(int row) const;
    void writeRow(int row);

    const PageDocument &m_document;
    QPagedPaintDevice &m_device;
    const PageFont &m_text;
    const PageGrid *m_grid = nullptr;
    double m_width, m_height, m_bottom;
    QPainter *m_painter = nullptr;
    PageRange m_range;
    int m_pages = 0, m_page = 0;
    Progress *m_progress = nullptr;
    qint64 m_rowsDone = 0;
    double m_y = 0;
};

void Walk::drawCells(const QStringList &texts, const PageFont &font)
{
    const double height = font.metrics.lineSpacing() * rowSpacing;
    if (isPainting()) {
        m_painter->setFont(font.font);
        const double baseline = m_y + font.metrics.ascent();
        for (qsizetype i = 0; i < texts.size(); ++i) {
            const PageGrid::Cell &cell = m_grid->cells()[std::size_t(i)];
            const QString text = font.fitted(texts[i], cell.width);
            const double x = cell.rightAligned ? cell.x + cell.width - font.width(text) : cell.x;
            m_painter->drawText(QPointF(x, baseline), text);
        }
        m_painter->setFont(m_text.font);
    }
    m_y += height;
}

void Walk::writeHeadings()
{
    writeRule(0);
    m_y += m_text.metrics.descent();
    if (!m_grid->table().form.showHeadings)
        return;
    QStringList headings;
    for (const PageGrid::Cell &cell : m_grid->cells())
        headings << cell.heading;
    drawCells(headings, m_grid->boldFont());
}

QStringList Walk::labelLines(int row) const
{
    const RowForm &form = m_grid->table().form;
    const TableSource &list = *m_grid->table().list;
    QStringList texts;
    for (const RowLabel &label : form.labels) {
        if (label.column < list.columnCount())
            texts << label.label + printedValue(list, row, label.column);
    }
    if (form.labelsShareLine && !texts.isEmpty())
        texts = {texts.join(u"    "_s)};
    QStringList lines;
    for (const QString &text : texts)
        lines << m_grid->font().wrapped(text, m_width);
    if (!form.labels.empty())
        lines << QString();
    return lines;
}

void Walk::writeRow(int row)
{
    const PageFont &font = m_grid->font();
    const QStringList below = m_grid->table().form.labels.empty() ? QStringList() : labelLines(row);
    const double height = font.metrics.lineSpacing() * (rowSpacing + double(below.size()));
    // A row stays together unless it is longer than a page.
    if (needsNewPage(std::min(height, m_bottom / 2)))
        writeHeadings();
    if (isPainting()) {
        QStringList texts;
        for (const PageGrid::Cell &cell : m_grid->cells())
            texts << printedValue(*m_grid->table().list, row, cell.column);
        drawCells(texts, font);
    } else {
        m_y += font.metrics.lineSpacing() * rowSpacing;
    }
    for (const QString &line : below)
        writeLine(line, font);
}

void Walk::operator()(const PageTable &block)
{
    needsNewPage(m_text.metrics.lineSpacing() * leastLines);
    writeHeadings();
    for (int row = 0; row < block.list->rowCount() && !isDone(); ++row) {
        writeRow(row);
        if (m_progress)
            m_progress->advance(++m_rowsDone);
    }
}

} // namespace

PagePrinter::PagePrinter(const PageDocument &document, QPagedPaintDevice &device)
    : m_layout(std::make_unique<Layout>(document, device, device.width())), m_device(device)
{
}

PagePrinter::~PagePrinter() = default;

QPageLayout::Orientation PagePrinter::fittingOrientation(const PageDocument &document,
                                                         QPagedPaintDevice &device)
{
    const double width = uprightWidth(device);
    const Layout layout(document, device, width);
    const bool isWide = std::ranges::any_of(
        layout.grids, [width](const auto &grid) { return grid.second.naturalWidth() > width; });
    return isWide ? QPageLayout::Landscape : QPageLayout::Portrait;
}

int PagePrinter::pageCount()
{
    if (m_pageCount == 0) {
        Walk walk(m_layout->document, m_device, m_layout->text, m_layout->width, m_layout->height);
        m_pageCount = m_layout->walk(walk);
    }
    return m_pageCount;
}

void PagePrinter::paint(const PageRange &range, Progress *progress)
{
    const int pages = pageCount();
    Walk walk(m_layout->document, m_device, m_layout->text, m_layout->width, m_layout->height);
    QPainter painter;
    if (!painter.begin(&m_device))
        throw Error(Error::Kind::File, u"A impressão não pôde ser iniciada."_s);
    painter.setFont(m_layout->text.font);
    walk.paintOn(painter, range, pages, progress);
    m_layout->walk(walk);
    if (!painter.end())
        throw Error(Error::Kind::File, u"A impressão não pôde ser concluída."_s);
}

void savePdf(const QString &path, const PageDocument &document, const QPageLayout &paper, Progress *progress)
{
    const QString failed = u"Não foi possível gravar o arquivo \"%1\": %2"_s;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw Error(Error::Kind::File, failed.arg(path, file.errorString()));
    {
        QPdfWriter writer(&file);
        writer.setPageLayout(paper);
        writer.setTitle(document.name);
        writer.setCreator(u"Tavaro"_s);
        PagePrinter(document, writer).paint({}, progress);
    }
    if (!file.commit())
        throw Error(Error::Kind::File, failed.arg(path, file.errorString()));
}
