#pragma once

#include "data/progress.h"
#include "lists/pagedocument.h"
#include "widgets/pagefont.h"

/// One row as it stands on the page, line by line.
struct PageRow
{
    std::vector<QStringList> cells = {};
    QStringList below = {};  ///< labelled values
    qsizetype cellLines = 0; ///< of the cell with the most lines

    qsizetype lineCount() const { return cellLines + below.size(); }
};

/// The columns of a list on a paper. All that the list says is printed: a text that is wider than its cell is
/// wrapped. Lengths are in twips.
class PageGrid
{
public:
    struct Cell
    {
        int column; ///< of the list; -1 for one it does not have
        QString heading;
        bool rightAligned;
        /// With the document's letters: as narrow as can be, with whole words, with texts of a sensible width
        /// in one line, with all texts in one line.
        std::array<double, 4> steps;
        double x = 0, width = 0;
    };

    /// Reads all rows once, in their order.
    PageGrid(const PageTable &table, const PageFont &font, const PageFont &boldFont,
             const std::function<void()> &rowDone);

    /// What the columns would take if nothing were wrapped or made smaller, save for long notes.
    double naturalWidth() const { return total(Sensible); }
    /// Gives the columns their places on a paper of this width: each has what the others do not need; where
    /// that is too little, letters become smaller down to a readable size, then texts are wrapped.
    void fit(double pageWidth);

    const PageFont &font() const { return m_font; }
    const PageFont &boldFont() const { return m_boldFont; }
    const std::vector<Cell> &cells() const { return m_cells; }
    /// No lines without headings.
    const PageRow &headings() const { return m_headings; }
    PageRow row(int row) const;
    /// Below a row, so that it stands apart from the next.
    double rowGap() const { return m_rowGap; }

private:
    enum Step { Narrowest, Words, Sensible, Natural };

    double gaps() const;
    double total(Step step) const;
    void measureCells(const std::function<void()> &rowDone);
    double fittingScale(double pageWidth) const;
    void spread(double room);
    QStringList labelLines(int row) const;

    const TableSource &m_list;
    const RowForm &m_form;
    PageFont m_documentFont, m_documentBoldFont;
    PageFont m_font, m_boldFont;
    std::vector<Cell> m_cells;
    PageRow m_headings;
    double m_pageWidth = 0, m_rowGap = 0;
};
