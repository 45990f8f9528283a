#pragma once

#include "data/sum.h"

#include <QDate>
#include <QWidget>

#include <vector>

/// The cash of the days to come as a line over a zero line. Days below zero stand on a hatched ground and are
/// marked along the lower edge.
class CashLinePane : public QWidget
{
    Q_OBJECT

public:
    explicit CashLinePane(QWidget *parent = nullptr);

    /// The cash at the end of each day from `first` on.
    void setCash(QDate first, std::vector<Sum> cash);

    QSize sizeHint() const override { return {420, 190}; }
    QSize minimumSizeHint() const override { return {220, 120}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintGround(QPainter &painter, const QRectF &plot) const;
    void paintLine(QPainter &painter, const QRectF &plot) const;
    QPointF point(std::size_t day, const QRectF &plot) const;
    double heightOf(double amount, const QRectF &plot) const;

    QDate m_first;
    std::vector<Sum> m_cash;
    std::vector<double> m_amounts; ///< for the drawing alone
    double m_low = 0, m_high = 1;
};
