#include "bank/movementlist.h"

#include "bank/movement.h"
#include "data/dates.h"
#include "data/recordset.h"
#include "data/status.h"
#include "lists/period.h"

using namespace Qt::StringLiterals;

namespace {

struct SortChoice
{
    QString text, column;
};

const std::vector<SortChoice> &sorts()
{
    static const std::vector<SortChoice> choices{
        {u"Data de cadastro"_s, u"data"_s}, {u"Conta destino"_s, u"destino"_s},
        {u"Conta origem"_s, u"origem"_s},   {u"Estatus"_s, u"estatus"_s},
        {u"Valor"_s, u"valor"_s},           {u"Tipo de movimento"_s, u"movimento"_s},
    };
    return choices;
}

QString sortColumn(const QString &choice)
{
    for (const SortChoice &sort : sorts())
        if (sort.text.compare(choice, Qt::CaseInsensitive) == 0 || sort.column == choice.toLower())
            return sort.column;
    return u"data"_s;
}

/// "(movimento like 'Depósito') ", or nothing for all kinds.
QString kindCondition(const QString &choice)
{
    const std::pair<QStringView, QStringView> kinds[] = {{u"depósitos", movement::deposit},
                                                         {u"retiradas", movement::withdrawal},
                                                         {u"transferências", movement::transfer}};
    for (const auto &[text, word] : kinds)
        if (choice.toLower() == text)
            return u"(movimento like '"_s + word.toString() + u"') "_s;
    return {};
}

QString baseQuery(period::Choice choice, const QString &kind, QDate today)
{
    if (choice == period::Choice::All)
        return u"Select * from bancario "_s + (kind.isEmpty() ? QString() : u"WHERE "_s + kind);
    const QString and_ = kind.isEmpty() ? QString() : u" AND "_s + kind;
    const QString year = today.toString(u"yyyy"_s);
    switch (choice) {
    case period::Choice::ThisYear:
        return u"SELECT * FROM bancario where(data like '%"_s + year + u"/%') "_s + and_;
    case period::Choice::ThisMonth:
        return u"SELECT * FROM bancario where(Data like '%/"_s + today.toString(u"MM"_s) +
               u"/%' AND data like '%"_s + year + u"/%') "_s + and_;
    case period::Choice::Today:
        return u"SELECT * FROM bancario where(Data like '"_s + dates::stored(today) + u"') "_s + and_;
    default: {
        const auto [first, last] = period::range(choice, today);
        return u"SELECT * FROM bancario WHERE data BETWEEN '"_s + first + u"' AND '"_s + last + u"' "_s +
               and_;
    }
    }
}

QString sumText(const MovementTotals::Kind &kind)
{
    return kind.sum.inReais() + u" ("_s + QString::number(kind.count) + u" cad.)"_s;
}

} // namespace

void MovementTotals::add(QStringView kind, QStringView state, Money value)
{
    const std::pair<QStringView, Kind &> kinds[] = {
        {movement::deposit, deposits}, {movement::withdrawal, withdrawals}, {movement::transfer, transfers}};
    for (const auto &[word, sum] : kinds) {
        if (kind != word)
            continue;
        sum.sum += value;
        ++sum.count;
    }
    (state == status::pending ? pending : settled) += value;
}

QString MovementTotals::text() const
{
    return u"Depósitos: "_s + sumText(deposits) + u" - Retiradas: "_s + sumText(withdrawals) +
           u" - Transferência: "_s + sumText(transfers);
}

namespace movementlist {

QStringList kindChoices()
{
    return {u"Todos os dados"_s, u"Depósitos"_s, u"Retiradas"_s, u"Transferências"_s};
}

QStringList sortChoices()
{
    QStringList texts;
    for (const SortChoice &sort : sorts())
        texts << sort.text;
    return texts;
}

QString query(const MovementFilter &filter, QDate today)
{
    const QString base = baseQuery(period::fromText(filter.period), kindCondition(filter.kind), today);
    return base.trimmed() + u" order by "_s + sortColumn(filter.sortBy) +
           (filter.ascending ? u" ASC"_s : u" DESC"_s);
}

std::vector<Column> columns()
{
    return {
        {u"id"_s, u"Código"_s, CellKind::Number, 0},
        {u"data"_s, u"Data"_s, CellKind::Date},
        {u"tipo"_s, u"Tipo de movimento"_s},
        {u"origem"_s, u"Conta origem"_s},
        {u"destino"_s, u"Conta destino"_s},
        {u"valor"_s, u"Valor"_s, CellKind::Amount},
        {u"estatus"_s, u"Estatus"_s},
        {u"info"_s, u"Informações"_s},
    };
}

MovementList load(Connection &connection, const QString &query, Progress *progress)
{
    Recordset rows(connection, query);
    MovementList list{RowStore(int(columns().size())), {}};
    if (progress)
        progress->begin([&rows] { return rows.count(); });
    const int code = rows.column(u"código"), data = rows.column(u"data"), kind = rows.column(u"movimento"),
              origin = rows.column(u"origem"), destination = rows.column(u"destino"),
              value = rows.column(u"valor"), state = rows.column(u"estatus"),
              notes = rows.column(u"informacoes");
    std::string date, amountText;
    while (rows.next()) {
        const Money amount = Money::stored(rows.utf8(value));
        date.clear();
        dates::appendShown(rows.utf8(data), date);
        amountText = "R$ ";
        amount.appendGrouped(amountText);
        list.rows.append({rows.utf8(code), date, rows.utf8(kind), rows.utf8(origin), rows.utf8(destination),
                          amountText, rows.utf8(state), rows.utf8(notes)});
        list.totals.add(rows.text(kind), rows.text(state), amount);
        if (progress)
            progress->advance(list.rows.rowCount());
    }
    return list;
}

} // namespace movementlist
