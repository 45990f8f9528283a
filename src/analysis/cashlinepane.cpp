#include "analysis/cashlinepane.h"

#include "data/dates.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int markHeight = 8; ///< of the marks of days below zero, in pixels

} // namespace

CashLinePane::CashLinePane(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void CashLinePane::setCash(QDate first, std::vector<Sum> cash)
{
    m_first = first;
    m_cash = std::move(cash);
    m_amounts.clear();
    for (const Sum &sum : m_cash) // what is too large to be shown has no height either
        m_amounts.push_back(double(sum.value().value_or(Decimal()).tenThousandths()) / 10'000);
    const auto [low, high] = std::ranges::minmax(m_amounts);
    m_low = std::min(low, 0.0);
    m_high = std::max(high, m_low + 1);
    update();
}

double CashLinePane::heightOf(double amount, const QRectF &plot) const
{
    return plot.bottom() - (amount - m_low) / (m_high - m_low) * plot.height();
}

QPointF CashLinePane::point(std::size_t day, const QRectF &plot) const
{
    const auto last = double(std::max<std::size_t>(m_amounts.size() - 1, 1));
    return {plot.left() + double(day) / last * plot.width(), heightOf(m_amounts[day], plot)};
}

void CashLinePane::paintEvent(QPaintEvent *)
{
    if (m_amounts.empty())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int line = fontMetrics().height();
    const QRectF plot = QRectF(rect()).adjusted(4, line + 4, -4, -line - markHeight - 4);
    painter.fillRect(rect(), palette().base());
    paintGround(painter, plot);
    paintLine(painter, plot);
    painter.setPen(palette().color(QPalette::Text));
    const QRectF above(plot.left(), 2, plot.width(), line),
        below(plot.left(), height() - line - 2.0, plot.width(), line);
    painter.drawText(above, Qt::AlignLeft, m_cash.front().inReais());
    painter.drawText(above, Qt::AlignRight, m_cash.back().inReais());
    painter.drawText(below, Qt::AlignLeft, dates::shown(m_first));
    painter.drawText(below, Qt::AlignRight, dates::shown(m_first.addDays(qint64(m_cash.size()) - 1)));
}

void CashLinePane::paintGround(QPainter &painter, const QRectF &plot) const
{
    const double zero = heightOf(0, plot);
    const bool isDark = palette().base().color().lightness() < 128;
    const QColor warning = isDark ? QColor(0xff, 0x8a, 0x80) : QColor(0xb0, 0x00, 0x20);
    if (m_low < 0)
        painter.fillRect(QRectF(plot.left(), zero, plot.width(), plot.bottom() - zero),
                         QBrush(warning, Qt::BDiagPattern));
    painter.setPen(QPen(palette().color(QPalette::PlaceholderText), 1, Qt::DashLine));
    painter.drawLine(QPointF(plot.left(), zero), QPointF(plot.right(), zero));
    painter.setPen(Qt::NoPen);
    painter.setBrush(warning);
    const double width = plot.width() / double(m_amounts.size());
    for (std::size_t day = 0; day < m_amounts.size(); ++day)
        if (m_amounts[day] < 0)
            painter.drawRect(
                QRectF(plot.left() + double(day) * width, plot.bottom() + 2, width, markHeight - 2));
}

void CashLinePane::paintLine(QPainter &painter, const QRectF &plot) const
{
    QPainterPath path(point(0, plot));
    for (std::size_t day = 1; day < m_amounts.size(); ++day) { // what is due on a day is there on that day
        const QPointF next = point(day, plot);
        path.lineTo(next.x(), path.currentPosition().y());
        path.lineTo(next);
    }
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
}
