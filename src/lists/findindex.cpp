#include "lists/findindex.h"

#include "data/searchtext.h"

#include <algorithm>

FindIndex::FindIndex(std::shared_ptr<const TableSource> table)
    : m_table(std::move(table)), m_rows(m_table->rowCount())
{
    m_ends.reserve(std::size_t(m_rows));
}

bool FindIndex::run(const QDeadlineTimer &until)
{
    constexpr int rowsBetweenLooks = 64;
    std::string buffer;
    for (int row = rowsRead(); row < m_rows; ++row) {
        for (int column = 0; column < m_table->columnCount(); ++column) {
            searchtext::appendPlain(m_table->utf8(row, column, buffer), m_text);
            m_text += '\n';
        }
        m_ends.push_back(m_text.size());
        if (row % rowsBetweenLooks == 0 && until.hasExpired() && row + 1 < m_rows)
            return false;
    }
    m_table.reset();
    return true;
}

std::vector<int> FindIndex::find(const QString &text) const
{
    std::vector<std::string> words;
    for (const QString &word : searchtext::plain(text).split(u' ', Qt::SkipEmptyParts))
        words.push_back(word.toStdString());
    std::vector<int> rows;
    std::size_t begin = 0;
    for (std::size_t row = 0; row < m_ends.size(); begin = m_ends[row++]) {
        const std::string_view line(m_text.data() + begin, m_ends[row] - begin);
        if (std::ranges::all_of(words,
                                [line](const std::string &word) { return line.find(word) != line.npos; }))
            rows.push_back(int(row));
    }
    return rows;
}
