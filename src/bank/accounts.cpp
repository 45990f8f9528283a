#include "bank/accounts.h"

#include "bank/movement.h"
#include "data/formtext.h"
#include "data/like.h"
#include "data/literal.h"
#include "data/recordset.h"
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

/// What one row adds to the balance of the account whose name `name` is.
Sum contribution(Subject subject, const RowImage &row, const LikePattern &name)
{
    Sum sum;
    if (!row.exists() || !textorder::equalFolded(row.text(u"estatus"), status::settled))
        return sum;
    const Sum value = Money::stored(QStringView(row.text(u"valor"))).roundedToCents();
    const bool leaves = name.matches(row.text(u"origem"));
    if (subject != Subject::Movements) {
        if (leaves)
            subject == Subject::Receivables ? sum += value : sum -= value;
        return sum;
    }
    const QString kind = row.text(u"movimento");
    if (leaves && kind == movement::deposit)
        sum += value;
    else if (leaves && (kind == movement::withdrawal || kind == movement::transfer))
        sum -= value;
    if (kind == movement::transfer && name.matches(row.text(u"destino")))
        sum += value;
    return sum;
}

QString openingText(const AccountForm &form)
{
    return formtext::amount(u"Valor"_s, form.opening).grouped();
}

} // namespace

BalanceLoad::BalanceLoad(std::shared_ptr<Connection> connection, bool recompute)
    : m_connection(std::move(connection)), m_dataVersion(m_connection->dataVersion())
{
    for (Recordset rows(*m_connection, u"SELECT * FROM banco"_s); rows.next();)
        m_balances.push_back({rows.text(u"banco"),
                              rows.text(u"informacoes"),
                              Money::stored(rows.utf8(rows.column(u"saldo"))),
                              {}});
    if (!recompute)
        m_next = m_balances.size();
}

bool BalanceLoad::run(const QDeadlineTimer &until)
{
    if (m_connection->inTransaction()) // what is written there may never be committed
        return false;
    while (m_next < m_balances.size()) {
        AccountBalance &account = m_balances[m_next++];
        const QString origin = u"origem like ("_s + sql::literal(account.name) + u")"_s;
        const QString destination = u"destino like ("_s + sql::literal(account.name) + u")"_s;
        account.moved -= settledSum(*m_connection, u"pagar"_s, origin);
        account.moved += settledSum(*m_connection, u"receber"_s, origin);
        account.moved += movementSum(*m_connection, origin, destination);
        if (until.hasExpired())
            break;
    }
    return m_next == m_balances.size();
}

quint64 BalanceLoad::serial() const
{
    return m_connection->serial();
}

namespace accounts {

BalanceMode balanceMode(const QString &setting)
{
    if (!Money::stored(QStringView(setting)).isZero())
        return BalanceMode::Recompute;
    return setting == u"0" ? BalanceMode::OpeningOnly : BalanceMode::KeepList;
}

std::vector<AccountBalance> balances(std::shared_ptr<Connection> connection, bool recompute)
{
    BalanceLoad load(std::move(connection), recompute);
    load.run(QDeadlineTimer(QDeadlineTimer::Forever));
    return load.takeBalances();
}

bool follow(std::vector<AccountBalance> &balances, const Change &change)
{
    if (change.rows.empty())
        return false;
    for (AccountBalance &account : balances) {
        const LikePattern name(account.name);
        for (const RowChange &row : change.rows) {
            account.moved -= contribution(change.subject, row.before, name);
            account.moved += contribution(change.subject, row.after, name);
        }
    }
    return true;
}

std::vector<ListColumn> columns()
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
        const std::string current = account.current().inReais().toStdString();
        const std::string opening = account.opening().inReais().toStdString();
        store.append({name, current, notes, opening});
    }
    return store;
}

QString summary(const std::vector<AccountBalance> &balances)
{
    Sum current, opening, moved;
    QString text;
    for (const AccountBalance &account : balances) {
        const Sum movement = account.current() - account.opening();
        current += account.current();
        opening += account.opening();
        moved += movement;
        text += u"Caixa/Banco: "_s + account.name + u"("_s + account.notes + u")"_s + newLine +
                u"O saldo neste banco inicio com R$ "_s + account.opening().plain() + newLine +
                u"O saldo atual é "_s + account.current().inReais() + newLine + u"Movimentação de "_s +
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
