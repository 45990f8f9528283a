#include "lists/rowstore.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::size_t smallestBlock = 4096;
constexpr std::size_t largestBlock = 1048576;

std::uint32_t endOfCell(const char *row, int column)
{
    std::uint32_t end = 0;
    std::memcpy(&end, row + std::size_t(column) * sizeof end, sizeof end);
    return end;
}

} // namespace

RowStore::RowStore(int columns) : m_columns(columns)
{
}

/// Memory for one row. Blocks double from small to large, so that neither a short list nor a long one wastes
/// much; a row larger than a block gets one of its own.
char *RowStore::allocate(std::size_t bytes)
{
    if (m_blockSize - m_blockUsed < bytes) {
        const std::size_t usual = std::clamp(m_allocated, smallestBlock, largestBlock);
        m_blockSize = std::max(usual, bytes);
        m_blocks.push_back(std::make_unique_for_overwrite<char[]>(m_blockSize));
        m_blockUsed = 0;
        m_allocated += m_blockSize;
    }
    char *result = m_blocks.back().get() + m_blockUsed;
    m_blockUsed += bytes;
    return result;
}

void RowStore::append(const std::vector<std::string_view> &cells)
{
    Q_ASSERT(int(cells.size()) == m_columns);
    std::size_t length = 0;
    for (const std::string_view cell : cells)
        length += cell.size();
    char *row = allocate(cells.size() * sizeof(std::uint32_t) + length);
    char *offset = row;
    char *text = row + cells.size() * sizeof(std::uint32_t);
    std::uint32_t end = 0;
    for (const std::string_view cell : cells) {
        end += std::uint32_t(cell.size());
        std::memcpy(offset, &end, sizeof end);
        offset += sizeof end;
        text = std::copy(cell.begin(), cell.end(), text);
    }
    m_rows.push_back(row);
    m_textBytes += qint64(length);
}

std::string_view RowStore::cell(int row, int column) const
{
    const char *start = m_rows[std::size_t(row)];
    const std::uint32_t begin = column == 0 ? 0 : endOfCell(start, column - 1);
    return {start + std::size_t(m_columns) * sizeof(std::uint32_t) + begin, endOfCell(start, column) - begin};
}

QString RowStore::text(int row, int column) const
{
    const std::string_view utf8 = cell(row, column);
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}
