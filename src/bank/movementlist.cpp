#include "bank/movementlist.h"

#include "bank/movement.h"
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
    return u"SELECT * FROM bancario"_s + period::condition(choice, u"data"_s, u"Data"_s, today) +
           (kind.isEmpty() ? QString() : u" AND "_s + kind);
}

period::Choice periodOf(const MovementFilter &filter)
{
    const period::Choice chosen = period::fromText(filter.period);
    if (chosen != period::Choice::All)
        return chosen;
    if (filter.limit == u"1")
        return period::Choice::ThisMonth;
    return filter.limit == u"2" ? period::Choice::ThisYear : chosen;
}

QString sumText(const Figures::Part &kind)
{
    return kind.sum.inReais() + u" ("_s + QString::number(kind.count) + u" cad.)"_s;
}

} // namespace

QStringList MovementTotals::columns() const
{
    return {u"movimento"_s, u"valor"_s};
}

void MovementTotals::add(std::span<const std::string_view> values, int sign)
{
    static const std::string deposit = movement::deposit.toUtf8().toStdString();
    static const std::string withdrawal = movement::withdrawal.toUtf8().toStdString();
    static const std::string transfer = movement::transfer.toUtf8().toStdString();
    const std::pair<std::string_view, Figures::Part &> kinds[] = {
        {deposit, deposits}, {withdrawal, withdrawals}, {transfer, transfers}};
    for (const auto &[word, part] : kinds) {
        if (values[0] != word)
            continue;
        part.count += sign;
        addSigned(part.sum, Money::stored(values[1]), sign);
    }
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

QString shownPeriod(const MovementFilter &filter)
{
    return periodOf(filter) == period::Choice::All ? filter.period
                                                   : period::choices().at(qsizetype(periodOf(filter)));
}

QString query(const MovementFilter &filter, QDate today)
{
    const QString base = baseQuery(periodOf(filter), kindCondition(filter.kind), today);
    return base.trimmed() + u" order by "_s + sortColumn(filter.sortBy) +
           (filter.ascending ? u" ASC"_s : u" DESC"_s);
}

std::vector<ListColumn> columns()
{
    const auto column = [](const QString &key, const QString &title, CellKind kind, const QString &width,
                           const QString &source, CellFormat format = nullptr) {
        return ListColumn{key, title, kind, key == u"id" ? 0 : 80, {source}, format, width};
    };
    return {
        column(u"id"_s, u"Código"_s, CellKind::Number, u"0"_s, u"código"_s),
        column(u"data"_s, u"Data"_s, CellKind::Date, u"1319,8111"_s, u"data"_s),
        column(u"tipo"_s, u"Tipo de movimento"_s, CellKind::Text, u"2940,0948"_s, u"movimento"_s),
        column(u"origem"_s, u"Conta origem"_s, CellKind::Text, u"2140,1575"_s, u"origem"_s),
        column(u"destino"_s, u"Conta destino"_s, CellKind::Text, u"2140,1575"_s, u"destino"_s),
        column(u"valor"_s, u"Valor"_s, CellKind::Amount, u"1339,6536"_s, u"valor"_s, cellformat::reais),
        column(u"estatus"_s, u"Estatus"_s, CellKind::Text, u"1340,2206"_s, u"estatus"_s),
        column(u"info"_s, u"Informações"_s, CellKind::Text, u"2839,7483"_s, u"informacoes"_s),
    };
}

ListLayoutFile layoutFile()
{
    return {u"bancario.ini"_s, columns()};
}

} // namespace movementlist
