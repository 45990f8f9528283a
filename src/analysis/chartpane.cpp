#include "analysis/chartpane.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <QEvent>
#include <QGraphicsLayout>
#include <QGraphicsScene>
#include <QGraphicsSimpleTextItem>
#include <QLegend>
#include <QVBoxLayout>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr double barWidth = 0.8; ///< of a category's room
constexpr double labelGap = 3;   ///< between a bar and its amount
/// On paper: the least room for a chart, and its letters, in the same unit.
constexpr QSizeF paperSize(760, 480);
constexpr int letterSize = 13;

/// Colours that people of any colour vision tell apart, in light and on dark.
constexpr std::array<QRgb, 4> barColours{0x0072B2, 0xE69F00, 0x009E73, 0xCC79A7};
constexpr std::array<QRgb, 4> barColoursOnDark{0x56B4E9, 0xE69F00, 0x009E73, 0xCC79A7};

/// How a chart looks: as the screen does, or as paper.
struct ChartLook
{
    QFont font;
    QColor background, text, grid;
    const std::array<QRgb, 4> &bars;

    static ChartLook ofScreen(const QWidget &screen)
    {
        const QColor base = screen.palette().color(QPalette::Base),
                     text = screen.palette().color(QPalette::Text);
        const bool isDark = base.lightness() < text.lightness();
        QColor grid = text;
        grid.setAlphaF(0.25F);
        return {screen.font(), base, text, grid, isDark ? barColoursOnDark : barColours};
    }
    static ChartLook ofPaper()
    {
        QFont font(u"Arial"_s);
        font.setPixelSize(letterSize);
        return {font, Qt::white, Qt::black, QColor(0xC0, 0xC0, 0xC0), barColours};
    }
};

double drawn(Money money)
{
    return double(money.tenThousandths()) / 10'000; // for the eye; what is read comes from the amount itself
}

/// The amounts over the bars. They follow the chart's size, and are made smaller where a bar is too narrow.
class BarAmounts : public QObject
{
public:
    BarAmounts(QChart *chart, QBarSeries *bars, const ChartData &data, const ChartLook &look)
        : QObject(chart), m_chart(chart), m_bars(bars), m_data(data)
    {
        for (const ChartSeries &series : data.series)
            for (const Sum &value : series.values) {
                auto *text = new QGraphicsSimpleTextItem(value.inReais(), chart);
                text->setFont(look.font);
                text->setBrush(look.text);
                text->setZValue(100);
                m_texts.push_back(text);
            }
        connect(chart, &QChart::plotAreaChanged, this, &BarAmounts::place);
        place();
    }

private:
    void place()
    {
        const auto seriesCount = double(m_data.series.size());
        const double slot =
            m_chart->plotArea().width() / double(m_data.categories.size()) * barWidth / seriesCount;
        std::size_t next = 0;
        for (std::size_t i = 0; i < m_data.series.size(); ++i)
            for (std::size_t category = 0; category < m_data.series[i].values.size(); ++category) {
                const Money value = chartdata::clamped(m_data.series[i].values[category]);
                const double x = double(category) - barWidth / 2 + (double(i) + 0.5) * barWidth / seriesCount;
                const QPointF end = m_chart->mapToPosition(QPointF(x, drawn(value)), m_bars);
                QGraphicsSimpleTextItem *text = m_texts[next++];
                const QRectF size = text->boundingRect();
                const double scale = std::min(1.0, slot / (size.width() + labelGap));
                text->setScale(scale);
                const double above = value.isNegative() ? labelGap : -labelGap - size.height() * scale;
                text->setPos(end.x() - size.width() * scale / 2, end.y() + above);
            }
    }

    QChart *m_chart;
    QBarSeries *m_bars;
    ChartData m_data;
    std::vector<QGraphicsSimpleTextItem *> m_texts;
};

void addAxes(QChart *chart, QBarSeries *bars, const ChartData &data, const ChartLook &look)
{
    auto *categories = new QBarCategoryAxis(chart);
    categories->append(data.categories);
    categories->setGridLineVisible(false);
    auto *amounts = new QCategoryAxis(chart);
    amounts->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    const std::vector<Money> ticks = chartdata::ticks(data);
    amounts->setRange(drawn(ticks.front()), drawn(ticks.back()));
    amounts->setStartValue(drawn(ticks.front()));
    for (const Money tick : ticks)
        amounts->append(chartdata::tickText(tick), drawn(tick));
    for (QAbstractAxis *axis :
         {static_cast<QAbstractAxis *>(categories), static_cast<QAbstractAxis *>(amounts)}) {
        axis->setLabelsFont(look.font);
        axis->setLabelsColor(look.text);
        axis->setGridLineColor(look.grid);
        axis->setLinePenColor(look.grid);
    }
    chart->addAxis(categories, Qt::AlignBottom);
    chart->addAxis(amounts, Qt::AlignLeft);
    bars->attachAxis(categories);
    bars->attachAxis(amounts);
}

QChart *makeChart(const ChartData &data, const ChartLook &look)
{
    auto *chart = new QChart;
    auto *bars = new QBarSeries(chart);
    bars->setBarWidth(barWidth);
    for (std::size_t i = 0; i < data.series.size(); ++i) {
        auto *bar = new QBarSet(data.series[i].name, bars);
        for (const Sum &value : data.series[i].values)
            bar->append(drawn(chartdata::clamped(value)));
        bar->setColor(QColor(look.bars[i % look.bars.size()]));
        bar->setPen(QPen(look.text, 0.5));
        bars->append(bar);
    }
    chart->addSeries(bars);
    addAxes(chart, bars, data, look);
    chart->setBackgroundBrush(look.background);
    chart->setBackgroundRoundness(0);
    chart->layout()->setContentsMargins(0, 0, 0, 0);
    QFont titleFont = look.font;
    titleFont.setBold(true);
    chart->setTitleFont(titleFont);
    chart->setTitleBrush(look.text);
    chart->setTitle(data.title.toHtmlEscaped() + u"<br>"_s); // apart from the topmost amount at the axis
    chart->legend()->setAlignment(Qt::AlignBottom);
    chart->legend()->setFont(look.font);
    chart->legend()->setLabelColor(look.text);
    new BarAmounts(chart, bars, data, look);
    return chart;
}

} // namespace

ChartPane::ChartPane(ChartData chart, QWidget *parent)
    : QWidget(parent), m_chart(std::move(chart)), m_view(new QChartView(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    m_view->setRenderHint(QPainter::Antialiasing);
    m_view->setAccessibleName(m_chart.title);
    setMinimumSize(420, 320);
    draw();
}

void ChartPane::paint(const ChartData &chart, QPainter &painter, const QRectF &where)
{
    QGraphicsScene scene;
    QChart *shown = makeChart(chart, ChartLook::ofPaper());
    scene.addItem(shown);
    // As much room as the letters need, in the shape of the place.
    const double scale = std::max(paperSize.width() / where.width(), paperSize.height() / where.height());
    shown->resize(where.size() * scale);
    shown->layout()->activate();
    scene.setSceneRect(QRectF(QPointF(), shown->size()));
    scene.render(&painter, where, scene.sceneRect());
}

void ChartPane::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        draw();
}

void ChartPane::draw()
{
    QChart *former = m_view->chart();
    m_view->setChart(makeChart(m_chart, ChartLook::ofScreen(*this)));
    m_view->setBackgroundBrush(palette().base());
    delete former;
}
