#include "entries/entrylist.h"

#include "data/dates.h"
#include "data/recordset.h"
#include "data/status.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct ColumnText
{
    QString key, title;
    CellKind kind;
};

std::vector<ColumnText> columnTexts(const Side &side)
{
    std::vector<ColumnText> texts{
        {u"id"_s, u"Código"_s, CellKind::Number},
        {u"data"_s, u"Data"_s, CellKind::Date},
        {u"descricao"_s, u"Descrição"_s, CellKind::Text},
        {u"documento"_s, u"Documento"_s, CellKind::Text},
        {side.contactColumnKey, side.contactTitle, CellKind::Text},
        {u"vencimento"_s, u"Vencimento"_s, CellKind::Date},
        {u"valor"_s, u"Valor"_s, CellKind::Amount},
    };
    if (side.hasUnitCost)
        texts.push_back({u"custo"_s, u"Custo"_s, CellKind::Amount});
    for (const ColumnText &rest : {ColumnText{u"produto"_s, u"Produto"_s, CellKind::Text},
                                   {u"qtde"_s, u"Qtde"_s, CellKind::Number},
                                   {u"estatus"_s, u"Estatus"_s, CellKind::Text},
                                   {u"origem"_s, u"Caixa/Banco"_s, CellKind::Text},
                                   {u"informacoes"_s, u"Informações"_s, CellKind::Text}})
        texts.push_back(rest);
    return texts;
}

/// Which column of the record set feeds which cell, looked up once for all rows.
class RowReader
{
public:
    RowReader(const Recordset &rows, const Side &side) : m_currency(rows.column(u"moeda"))
    {
        for (const ColumnText &column : columnTexts(side)) {
            const bool isKey = column.key == u"id";
            const QString source = isKey                                 ? u"código"_s
                                   : column.key == side.contactColumnKey ? side.contactColumn
                                                                         : column.key;
            m_sources.push_back({rows.column(source), column.kind, column.key == u"valor"});
            if (column.key == u"qtde")
                m_quantity = rows.column(source);
            if (column.key == u"estatus")
                m_status = rows.column(source);
            if (column.key == u"valor")
                m_value = rows.column(source);
        }
        m_cells.resize(m_sources.size());
        m_rendered.resize(m_sources.size());
    }

    void read(const Recordset &rows, EntryList &list)
    {
        const Money value = Money::stored(rows.utf8(m_value));
        for (std::size_t i = 0; i < m_sources.size(); ++i)
            m_cells[i] = cell(rows, m_sources[i], m_rendered[i], value);
        list.rows.append(m_cells);

        EntryTotals &totals = list.totals;
        ++totals.count;
        totals.total += value;
        (rows.utf8(m_status) == pendingWord ? totals.pending : totals.settled) += value;
        totals.quantity += Quantity::stored(rows.utf8(m_quantity));
    }

private:
    struct Source
    {
        int column;
        CellKind kind;
        bool withCurrency;
    };

    static constexpr std::string_view pendingWord = "Pendente";

    std::string_view cell(const Recordset &rows, const Source &source, std::string &rendered,
                          Money value) const
    {
        const std::string_view stored = rows.utf8(source.column);
        if (source.kind != CellKind::Date && source.kind != CellKind::Amount)
            return stored;
        rendered.clear();
        if (source.kind == CellKind::Date) {
            dates::appendShown(stored, rendered);
        } else if (source.withCurrency) {
            rendered.append(rows.utf8(m_currency)).push_back(' ');
            value.appendGrouped(rendered);
        } else {
            Money::stored(stored).appendGrouped(rendered);
        }
        return rendered;
    }

    std::vector<Source> m_sources;
    std::vector<std::string_view> m_cells;
    std::vector<std::string> m_rendered;
    int m_currency, m_quantity = -1, m_status = -1, m_value = -1;
};

} // namespace

QString EntryTotals::text(const Side &side) const
{
    const QString currency = count == 0 ? QString() : u"R$ "_s;
    return QString::number(count) + side.countWords + currency + total.grouped() + side.settledWords +
           currency + settled.grouped() + u"  -  Total pendente: "_s + currency + pending.grouped() +
           side.quantityWords + quantity.plain();
}

namespace entrylist {

std::vector<Column> columns(const Side &side)
{
    std::vector<Column> result;
    for (const ColumnText &text : columnTexts(side))
        result.push_back({text.key, text.title, text.kind, text.key == u"id" ? 0 : 80});
    return result;
}

int columnOf(const Side &side, QStringView key)
{
    const auto texts = columnTexts(side);
    for (std::size_t i = 0; i < texts.size(); ++i)
        if (texts[i].key == key)
            return int(i);
    return -1;
}

EntryList load(Connection &connection, const Side &side, const QString &query, Progress *progress)
{
    Recordset rows(connection, query);
    EntryList list{RowStore(int(columnTexts(side).size())), {}};
    if (progress)
        progress->begin([&rows] { return rows.count(); });
    if (!rows.next())
        return list;
    RowReader reader(rows, side);
    do {
        reader.read(rows, list);
        if (progress)
            progress->advance(list.totals.count);
    } while (rows.next());
    return list;
}

QStringList distinct(Connection &connection, const Side &side, const QString &column)
{
    QStringList values;
    for (Recordset rows(connection, u"SELECT DISTINCT "_s + column + u" FROM "_s + side.table +
                                        u" order by "_s + column + u" ASC"_s);
         rows.next();)
        values << rows.text(0);
    return values;
}

} // namespace entrylist
