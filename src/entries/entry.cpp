#include "entries/entry.h"

#include "data/dates.h"
#include "data/formtext.h"
#include "data/literal.h"
#include "data/rows.h"
#include "data/status.h"
#include "stock/stock.h"

using namespace Qt::StringLiterals;

namespace {

QString fromByCode(const Side &side, const QString &code)
{
    return u"FROM "_s + side.table + u" where(código like "_s + sql::literal(code) + u")"_s;
}

QString byCode(const Side &side, const QString &code)
{
    return u"SELECT * "_s + fromByCode(side, code);
}

stock::Direction direction(bool in)
{
    return in ? stock::Direction::In : stock::Direction::Out;
}

void writeColumns(Recordset &row, const Side &side, const EntryForm &form)
{
    row.set(u"estatus", form.status);
    row.set(u"origem", form.account);
    row.set(side.contactColumn, form.contact);
    row.set(u"data", formtext::storedDate(u"Data"_s, form.date));
    row.set(u"descricao", form.description);
    row.set(u"documento", formtext::freeText(form.document));
    row.set(u"informacoes", formtext::freeText(form.notes));
    row.set(u"valor", formtext::amount(u"Valor"_s, form.value).grouped());
    row.set(u"vencimento", formtext::storedDate(u"Vencimento"_s, form.due));
    if (side.hasUnitCost)
        row.set(u"custo", formtext::amountOrZero(u"Custo"_s, form.unitCost).grouped());
    row.set(u"produto", form.product);
    row.set(u"qtde", form.quantity);
    row.set(u"moeda", form.currency);
}

} // namespace

namespace entry {

QStringList currencies()
{
    return {u"R$"_s, u"$"_s, u"€"_s, u"¥"_s, u"£"_s};
}

QStringList blankFields(const EntryForm &form)
{
    const std::pair<const QString &, QString> fields[] = {{form.description, u"Descrição"_s},
                                                          {form.contact, u"Fornecedor/cliente"_s},
                                                          {form.value, u"Valor"_s},
                                                          {form.date, u"Data"_s},
                                                          {form.due, u"Vencimento"_s}};
    QStringList blank;
    for (const auto &[text, name] : fields)
        if (text.trimmed().isEmpty())
            blank << name;
    return blank;
}

QStringList names(Connection &connection, const QString &query, QStringView field)
{
    QStringList result;
    for (Recordset rows(connection, query); rows.next();)
        result << rows.text(field);
    return result;
}

QStringList accountNames(Connection &connection)
{
    return names(connection, u"select * from banco order by [banco]"_s, u"banco");
}

QStringList productNames(Connection &connection)
{
    return QStringList{stock::noProduct.toString()} +
           names(connection, u"Select [produto] from produto"_s, u"produto");
}

bool exceedsStock(Connection &connection, const Side &side, const EntryForm &form)
{
    if (!side.warnsOfLowStock || form.product == stock::noProduct)
        return false;
    const std::optional<Quantity> onHand = stock::onHand(connection, form.product);
    return onHand && formtext::quantity(u"Quantidade"_s, form.quantity) > *onHand;
}

void save(Connection &connection, const Side &side, const EntryForm &form, const QString &code)
{
    const Quantity quantity = formtext::quantity(u"Quantidade"_s, form.quantity);
    Transaction transaction(connection);
    Recordset row(connection, code.isEmpty() ? side.table : byCode(side, code));
    if (code.isEmpty())
        row.addNew();
    else if (!row.next())
        throw Error(Error::Kind::Data,
                    u"este lançamento não existe mais; ele foi removido por outro usuário."_s);
    writeColumns(row, side, form);
    transaction.note(side.subject, row.update());
    if (stock::move(connection, direction(side.savingAddsToStock), quantity, form.product))
        transaction.note(Subject::Products);
    transaction.commit();
}

std::optional<EntryForm> load(Connection &connection, const Side &side, const QString &code)
{
    Recordset row(connection, byCode(side, code));
    if (!row.next())
        return std::nullopt;
    return EntryForm{
        .status = row.text(u"estatus"),
        .account = row.text(u"origem"),
        .contact = row.text(side.contactColumn),
        .date = dates::shownFromStored(row.text(u"data")),
        .due = dates::shownFromStored(row.text(u"vencimento")),
        .description = row.text(u"descricao"),
        .document = row.text(u"documento"),
        .notes = row.text(u"informacoes"),
        .value = Money::stored(row.text(u"valor")).grouped(),
        .unitCost = side.hasUnitCost ? Money::stored(row.text(u"custo")).grouped() : QString(),
        .product = row.text(u"produto").isEmpty() ? stock::noProduct.toString() : row.text(u"produto"),
        .quantity = row.text(u"qtde"),
        .currency = row.text(u"moeda"),
    };
}

bool remove(Connection &connection, const Side &side, const std::vector<EntryRemoval> &removals)
{
    Transaction transaction(connection);
    for (const EntryRemoval &removal : removals) {
        if (!rows::remove(connection, transaction, side.subject, fromByCode(side, removal.code)))
            return false;
        if (stock::move(connection, direction(!side.savingAddsToStock), removal.quantity, removal.product))
            transaction.note(Subject::Products);
    }
    transaction.commit();
    return true;
}

bool settle(Connection &connection, const Side &side, const QStringList &codes, QDate today)
{
    Transaction transaction(connection);
    for (const QString &code : codes) {
        Recordset row(connection, byCode(side, code));
        if (!row.next())
            return false;
        row.set(u"estatus", status::settled.toString());
        row.set(u"vencimento", dates::shown(today));
        transaction.note(side.subject, row.update());
    }
    transaction.commit();
    return true;
}

QString plainCode(const QString &text)
{
    return QString::number(text.trimmed().toLongLong());
}

} // namespace entry
