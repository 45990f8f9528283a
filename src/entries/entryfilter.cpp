#include "entries/entryfilter.h"

#include "data/literal.h"
#include "data/status.h"
#include "lists/period.h"
#include "stock/stock.h"

using namespace Qt::StringLiterals;

namespace {

/// " and (origem like 'Caixa') ", or nothing when the box shows its `all` choice.
QString piece(const QString &column, const QString &choice, const QString &all)
{
    if (choice.isEmpty() || choice.compare(all, Qt::CaseInsensitive) == 0)
        return {};
    return u" and ("_s + column + u" like "_s + sql::literal(choice) + u") "_s;
}

/// Entries that carry the product chosen, or any product.
QString productPiece(const QString &choice)
{
    const QString chosen = piece(u"produto"_s, choice, entryfilter::allProducts.toString());
    return chosen.isEmpty() ? u" and (produto <> '"_s + stock::noProduct.toString() + u"') "_s : chosen;
}

/// The status word that the choice asks for; "%%" for any.
QString statusPattern(const QString &choice)
{
    const QString lower = choice.toLower();
    if (lower == u"pendentes e concluídos" || lower.isEmpty())
        return u"%%"_s;
    return (lower == u"pendentes" ? status::pending : status::settled).toString();
}

} // namespace

namespace entryfilter {

QStringList basedOnChoices()
{
    return {u"Data vencimento"_s, byEntryDate.toString()};
}

QStringList statusChoices()
{
    return {u"Pendentes e Concluídos"_s, u"Pendentes"_s, u"Concluídos"_s};
}

QString description(const EntryFilter &filter)
{
    const QStringList choices{filter.period,  filter.basedOn, filter.status,
                              filter.account, filter.centre,  filter.contact};
    return choices.join(u" - "_s);
}

QString query(const Side &side, const EntryFilter &filter, QDate today)
{
    const bool ofEntry =
        !side.dateChoiceFilters || byEntryDate.compare(filter.basedOn, Qt::CaseInsensitive) == 0;
    const QString column = ofEntry ? u"data"_s : u"vencimento"_s;
    const QString wanted = statusPattern(filter.status);
    const period::Choice choice = period::fromText(filter.period);

    const QString dayColumn = side.dateChoiceFilters ? column : u"Data"_s;
    QString sql = u"SELECT * FROM "_s + side.table + period::condition(choice, column, dayColumn, today);
    if (choice == period::Choice::All)
        sql += u" where (estatus like '"_s + wanted + u"') "_s;
    else if (wanted != u"%%")
        sql += u" and (estatus like '"_s + wanted + u"') "_s;

    if (filter.product)
        sql += productPiece(*filter.product);
    sql += piece(u"origem"_s, filter.account, entryfilter::allAccounts.toString()) +
           piece(u"descricao"_s, filter.centre, side.allCentres) +
           piece(side.contactColumn, filter.contact, side.allContacts);
    if (side.dateChoiceFilters)
        sql += u" order by "_s + column;
    return sql.trimmed();
}

} // namespace entryfilter
