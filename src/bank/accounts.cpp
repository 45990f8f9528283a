#include "bank/accounts.h"

#include "bank/movement.h"
#include "data/formtext.h"
#include "data/literal.h"
#include "data/rows.h"
#include "data/status.h"

using namespace Qt::StringLiterals;

namespace {

const QString newLine = u"\r\n"_s;

std::optional<Recordset> byName(Connection &connection, const QString &name)
{
    return rows::named(connection, u"FROM banco where(banco like "_s + sql::literal(name) + u")"_s, u"banco",
                       name);
}

/// The sum of `valor` over the settled rows of a table that meet the condition, each amount rounded to cents
/// first.
Sum settledSum(Connection &connection, const QString &table, const QString &condition)
{
    Statement rows = connection.prepare(u"Select valor from "_s + table + u" WHERE estatus like ('"_s +
                                            status::settled.toString() + u"') AND "_s + condition,
                                        dialect::RowOrder::Any);
    Sum sum;
    while (rows.step())
        sum += Money::stored(rows.utf8(0)).roundedToCents();
    return sum;
}

/// What the settled movements add to the account. Kinds are told apart by their exact words, in which letter
/// case counts.
Sum movementSum(Connection &connection, const QString &origin, const QString &destination)
{
    const QString settled = u"Select movimento, valor from bancario WHERE estatus like ('"_s +
                            status::settled.toString() + u"') AND "_s;
    Sum sum;
    Statement leaving = connection.prepare(settled + origin, dialect::RowOrder::Any);
    while (leaving.step()) {
        const QString kind = leaving.text(0);
        if (kind == movement::deposit)
            sum += Money::stored(leaving.utf8(1)).roundedToCents();
        else if (kind == movement::withdrawal || kind == movement::transfer)
            sum -= Money::stored(leaving.utf8(1)).roundedToCents();
    }
    Statement arriving = connection.prepare(settled + destination + u" and movimento like ('"_s +
                                                movement::transfer.toString() + u"')"_s,
                                            dialect::RowOrder::Any);
    while (arriving.step())
        if (arriving.text(0) == movement::transfer)
            sum += Money::stored(arriving.utf8(1)).roundedToCents();
    return sum;
}

QString openingText(const AccountForm &form)
{
    return formtext::amount(u"Valor"_s, form.opening).grouped();
}

} // namespace

namespace accounts {

BalanceMode balanceMode(const QString &setting)
{
    if (!Money::stored(QStringView(setting)).isZero())
        return BalanceMode::Recompute;
    return setting == u"0" ? BalanceMode::OpeningOnly : BalanceMode::KeepList;
}

std::vector<AccountBalance> balances(Connection &connection, bool recompute, Progress *progress)
{
    std::vector<AccountBalance> result;
    Recordset accounts(connection, u"SELECT * FROM banco"_s);
    if (progress)
        progress->begin([&accounts] { return accounts.count(); });
    while (accounts.next()) {
        const Money opening = Money::stored(accounts.utf8(accounts.column(u"saldo")));
        AccountBalance account{
            accounts.text(u"banco"), accounts.text(u"informacoes"), opening.roundedToCents(), {}};
        Sum current = opening;
        if (recompute) {
            const QString origin = u"origem like ("_s + sql::literal(account.name) + u")"_s;
            const QString destination = u"destino like ("_s + sql::literal(account.name) + u")"_s;
            current -= settledSum(connection, u"pagar"_s, origin);
            current += settledSum(connection, u"receber"_s, origin);
            current += movementSum(connection, origin, destination);
        }
        account.current = current.roundedToCents();
        result.push_back(std::move(account));
        if (progress)
            progress->advance(qint64(result.size()));
    }
    return result;
}

std::vector<Column> columns()
{
    return {{u"banco"_s, u"Banco/Caixa"_s, CellKind::Text, 220},
            {u"atual"_s, u"Saldo(atual)"_s, CellKind::Amount, 130},
            {u"informacoes"_s, u"Informações"_s, CellKind::Text, 260},
            {u"inicial"_s, u"Saldo(Inicial)"_s, CellKind::Amount, 130}};
}

RowStore rows(const std::vector<AccountBalance> &balances)
{
    RowStore store(4);
    for (const AccountBalance &account : balances) {
        const std::string name = account.name.toStdString(), notes = account.notes.toStdString();
        const std::string current = account.current.inReais().toStdString();
        const std::string opening = account.opening.inReais().toStdString();
        store.append({name, current, notes, opening});
    }
    return store;
}

QString summary(const std::vector<AccountBalance> &balances)
{
    Sum current, opening, moved;
    QString text;
    for (const AccountBalance &account : balances) {
        Sum movement = account.current;
        movement -= account.opening;
        current += account.current;
        opening += account.opening;
        moved += movement;
        text += u"Caixa/Banco: "_s + account.name + u"("_s + account.notes + u")"_s + newLine +
                u"O saldo neste banco inicio com R$ "_s + account.opening.plain() + newLine +
                u"O saldo atual é "_s + account.current.inReais() + newLine + u"Movimentação de "_s +
                movement.inReais() + newLine + u"."_s + newLine;
    }
    text += u" > REFERÊNCIAS RÁPIDAS"_s + newLine + u"."_s + newLine;
    const std::pair<QString, Sum> blocks[] = {{u"Valor total em caixa/banco"_s, current},
                                              {u"Valor total de inicio em caixa/banco"_s, opening},
                                              {u"Saldo total de movimentação "_s, moved}};
    for (const auto &[caption, total] : blocks)
        text += caption + newLine + total.inReais() + newLine + newLine;
    return text;
}

std::optional<QString> problem(const AccountForm &form)
{
    if (form.opening.trimmed().isEmpty())
        return u"O campo valor deve ser preenchido!"_s;
    if (form.name.trimmed().isEmpty())
        return u"O campo nome deve ser preenchido!"_s;
    if (form.name.contains(
            u'\'')) // the queries quote the name with it: no balance could be computed any more
        return u"O campo nome não pode ter apóstrofo (')!"_s;
    return std::nullopt;
}

void add(Connection &connection, const AccountForm &form)
{
    Transaction transaction(connection);
    Recordset row(connection, u"banco"_s);
    row.addNew();
    row.set(u"banco", form.name);
    row.set(u"informacoes", formtext::freeText(form.notes));
    row.set(u"saldo", openingText(form));
    transaction.note(Subject::Accounts, row.update());
    transaction.commit();
}

void change(Connection &connection, const QString &name, const AccountForm &form)
{
    Transaction transaction(connection);
    std::optional<Recordset> row = byName(connection, name);
    if (!row)
        throw Error(Error::Kind::Data, u"o caixa/banco \"%1\" não existe mais."_s.arg(name));
    row->set(u"informacoes", formtext::freeText(form.notes));
    row->set(u"saldo", openingText(form));
    transaction.note(Subject::Accounts, row->update());
    transaction.commit();
}

void remove(Connection &connection, const QString &name)
{
    Transaction transaction(connection);
    rows::removeNamed(connection, transaction, Subject::Accounts,
                      u"FROM banco where (banco like "_s + sql::literal(name) + u")"_s, u"banco", name);
    transaction.commit();
}

std::optional<AccountForm> load(Connection &connection, const QString &name)
{
    const std::optional<Recordset> row = byName(connection, name);
    if (!row)
        return std::nullopt;
    return AccountForm{row->text(u"banco"), Money::stored(row->text(u"saldo")).grouped(),
                       row->text(u"informacoes")};
}

} // namespace accounts
