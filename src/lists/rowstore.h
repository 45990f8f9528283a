#pragma once

#include <QString>

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

/// The rows of a list as compact text: one block of memory holds many rows, a cell becomes a QString only
/// when it is painted. Costs about 5 bytes a cell and 8 bytes a row over the UTF-8 text.
class RowStore
{
public:
    explicit RowStore(int columns = 0);

    /// Adds one row; `cells` has one text per column.
    void append(const std::vector<std::string_view> &cells);

    int columnCount() const { return m_columns; }
    int rowCount() const { return int(m_rows.size()); }
    std::string_view cell(int row, int column) const;
    QString text(int row, int column) const;
    /// Bytes held for cell texts.
    qint64 textBytes() const { return m_textBytes; }

private:
    char *allocate(std::size_t bytes);

    int m_columns;
    std::vector<const char *> m_rows; ///< each: m_columns 32-bit end offsets, then the text
    std::vector<std::unique_ptr<char[]>> m_blocks;
    std::size_t m_blockUsed = 0;
    std::size_t m_blockSize = 0;
    std::size_t m_allocated = 0;
    qint64 m_textBytes = 0;
};
