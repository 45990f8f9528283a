#pragma once

#include "lists/pagedocument.h"

#include <QFont>
#include <QFontMetricsF>

class QPagedPaintDevice;

/// A font as a certain paper shows it.
struct PageFont
{
    PageFont(const QString &family, double points, bool bold, QPagedPaintDevice &device);

    double width(const QString &text) const { return metrics.horizontalAdvance(text); }
    /// `text` or, when it is too wide, its beginning with an ellipsis.
    QString fitted(const QString &text, double width) const;
    /// `text` in lines of this width.
    QStringList wrapped(const QString &text, double width) const;

    QFont font;
    QFontMetricsF metrics;

private:
    /// Nearly the width, never less by more than a kerning; far quicker than laying the text out.
    double estimate(QStringView text) const;
    double estimate(QChar c) const;

    mutable std::vector<double> m_advances; ///< of the first characters, as they are asked for
};

/// The columns of a list on a paper.
class PageGrid
{
public:
    struct Cell
    {
        int column; ///< of the list; -1 for one it does not have
        QString heading;
        bool rightAligned;
        bool isText; ///< may be cut off
        double x, width;
    };

    PageGrid(const PageTable &table, const PageDocument &document, QPagedPaintDevice &device,
             double pageWidth);

    const PageTable &table() const { return m_table; }
    const PageFont &font() const { return m_font; }
    const PageFont &boldFont() const { return m_boldFont; }
    const std::vector<Cell> &cells() const { return m_cells; }
    /// What the columns would take if nothing were cut or made smaller.
    double naturalWidth() const { return m_naturalWidth; }

private:
    void fit(double pageWidth);
    void setScale(double scale);
    double narrowTexts(double excess, double least);

    const PageTable &m_table;
    QPagedPaintDevice &m_device;
    QString m_family;
    double m_points;
    PageFont m_font, m_boldFont;
    std::vector<Cell> m_cells;
    double m_naturalWidth = 0;
};

/// A value as it is printed: in one line, "-" when there is none.
QString printedValue(const TableSource &list, int row, int column);
