#pragma once

#include "lists/listcolumn.h"

#include <vector>

class Statement;

/// Where the query's column of this name stands, in any letter case. Throws Error::Kind::Query when it has
/// none.
int columnNamed(const Statement &rows, const QString &name);

/// Makes the cells of a list from the rows of a query that yields the columns' sources. Which column of the
/// query feeds which cell is looked up once.
class RowReader
{
public:
    /// Throws Error::Kind::Query when the query lacks a source.
    RowReader(const Statement &rows, const std::vector<ListColumn> &columns);

    /// The cells of the row that `rows` stands on. Valid until the next call or step.
    const std::vector<std::string_view> &read(const Statement &rows);

private:
    struct Cell
    {
        CellFormat format; ///< null for the stored text
        std::vector<int> sources;
        std::string rendered;
    };

    std::vector<Cell> m_cells;
    std::vector<std::string_view> m_texts, m_values;
};
