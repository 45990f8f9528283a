#include "lists/rowreader.h"

#include "data/connection.h"

using namespace Qt::StringLiterals;

int columnNamed(const Statement &rows, const QString &name)
{
    for (int i = 0; i < rows.columnCount(); ++i)
        if (rows.columnName(i).compare(name, Qt::CaseInsensitive) == 0)
            return i;
    throw Error(Error::Kind::Query, u"A consulta não tem a coluna \"%1\"."_s.arg(name));
}

namespace {

CellFormat formatOf(const ListColumn &column)
{
    if (column.format)
        return column.format;
    switch (column.kind) {
    case CellKind::Date:
        return cellformat::date;
    case CellKind::Amount:
        return cellformat::amount;
    case CellKind::Text:
    case CellKind::Number:
        break;
    }
    return nullptr;
}

} // namespace

RowReader::RowReader(const Statement &rows, const std::vector<ListColumn> &columns)
{
    for (const ListColumn &column : columns) {
        Cell cell{formatOf(column), {}, {}};
        for (const QString &source : column.sources.isEmpty() ? QStringList(column.key) : column.sources)
            cell.sources.push_back(columnNamed(rows, source));
        m_cells.push_back(std::move(cell));
    }
    m_texts.resize(m_cells.size());
}

const std::vector<std::string_view> &RowReader::read(const Statement &rows)
{
    for (std::size_t i = 0; i < m_cells.size(); ++i) {
        Cell &cell = m_cells[i];
        if (!cell.format) {
            m_texts[i] = rows.utf8(cell.sources.front());
            continue;
        }
        m_values.clear();
        for (const int source : cell.sources)
            m_values.push_back(rows.utf8(source));
        cell.rendered.clear();
        cell.format(m_values, cell.rendered);
        m_texts[i] = cell.rendered;
    }
    return m_texts;
}
