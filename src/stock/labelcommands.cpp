#include "stock/labelcommands.h"

#include "reports/exportcommands.h"
#include "widgets/pagefont.h"
#include "widgets/pageprinter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double letterPoints = 9;
constexpr double smallestLetters = 0.6; ///< of that, for a text that is wider than its field

/// A place on the sheet in millimetres, as the painter takes it.
QRectF onPaper(double left, double top, double width, double height)
{
    return QRectF(left * twips::inMillimetre, top * twips::inMillimetre, width * twips::inMillimetre,
                  height * twips::inMillimetre);
}

class LabelPages : public Pages
{
public:
    explicit LabelPages(labelcommands::Sheets sheets, bool showEdges = false)
        : m_sheets(std::move(sheets)),
          m_showEdges(showEdges),
          m_font(QFont().family(), letterPoints, false),
          m_boldFont(QFont().family(), letterPoints, true)
    {
        if (m_sheets.empty())
            m_sheets.emplace_back();
    }
    QString name() const override { return u"Etiquetas"_s; }
    void layOut(const QPageLayout &, Progress *) override {}
    int count() const override { return int(m_sheets.size()); }
    void paint(QPainter &painter, int page) override
    {
        if (m_showEdges)
            paintEdges(painter);
        for (const LabelText &label : m_sheets[std::size_t(page) - 1])
            paintText(painter, label);
    }

private:
    void paintText(QPainter &painter, const LabelText &label) const
    {
        const QRectF place = onPaper(label.left, label.top, label.width, labelsheet::labelHeight);
        const PageFont &font = label.bold ? m_boldFont : m_font;
        const double scale = std::clamp(place.width() / font.width(label.text), smallestLetters, 1.0);
        const PageFont fitting = font.resized(font.size() * scale);
        const QString text =
            QFontMetricsF(fitting.font()).elidedText(label.text, Qt::ElideRight, place.width());
        painter.setFont(fitting.font());
        painter.drawText(place.topLeft() + QPointF(0, font.ascent()), text);
    }
    static void paintEdges(QPainter &painter)
    {
        painter.save();
        painter.setPen(QPen(Qt::lightGray, 0, Qt::DotLine));
        for (int place = 0; place < labelsheet::labelsPerPage; ++place) {
            const int row = place / labelsheet::columns, column = place % labelsheet::columns;
            painter.drawRect(onPaper(column * labelsheet::labelWidth, row * labelsheet::labelHeight,
                                     labelsheet::labelWidth, labelsheet::labelHeight));
        }
        painter.restore();
    }

    labelcommands::Sheets m_sheets;
    bool m_showEdges;
    PageFont m_font, m_boldFont;
};

} // namespace

namespace labelcommands {

QPageLayout paper()
{
    QPageLayout layout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF());
    layout.setMode(QPageLayout::FullPageMode);
    return layout;
}

void preview(QPrinter &printer, Sheets sheets)
{
    LabelPages pages(std::move(sheets), true);
    pageprinter::paint(pages, printer, {}, nullptr);
}

void print(QWidget *parent, Sheets sheets)
{
    if (!exportar::hasPrinter()) {
        savePdf(parent, std::move(sheets));
        return;
    }
    LabelPages pages(std::move(sheets));
    exportar::printOnPrinter(parent, pages, paper());
}

void savePdf(QWidget *parent, Sheets sheets)
{
    LabelPages pages(std::move(sheets));
    exportar::savePdf(parent, u"Salvar etiquetas em PDF"_s, pages, paper());
}

} // namespace labelcommands
