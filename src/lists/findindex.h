#pragma once

#include "lists/tablesource.h"

#include <QDeadlineTimer>

#include <memory>
#include <vector>

/// The texts of a list, ready to be looked through: letter case and accents do not count. Making it takes a
/// pass over all cells, done in slices; a search takes some nanoseconds for each letter of the list.
class FindIndex
{
public:
    explicit FindIndex(std::shared_ptr<const TableSource> table);

    /// Works until every row is read (true) or the time is up. Throws Error.
    bool run(const QDeadlineTimer &until);
    int rowsRead() const { return int(m_ends.size()); }
    int rowCount() const { return m_rows; }

    /// The rows in which every word of the text stands somewhere, top to bottom; all of them for a blank
    /// text.
    std::vector<int> find(const QString &text) const;

private:
    std::shared_ptr<const TableSource> m_table; ///< until it is read
    int m_rows;
    std::string m_text;              ///< of all rows, cells between line ends
    std::vector<std::size_t> m_ends; ///< of each row, in m_text
};
