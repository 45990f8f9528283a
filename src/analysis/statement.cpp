#include "analysis/statement.h"

#include "bank/movement.h"
#include "data/connection.h"
#include "data/dates.h"
#include "data/literal.h"
#include "data/progress.h"
#include "lists/rowreader.h"

using namespace Qt::StringLiterals;

namespace {

/// One of the three queries: where its rows come from, and which sign an amount has.
struct Source
{
    Subject subject;
    QString description; ///< column
    Sum AccountStatement::*total;
};

constexpr std::string_view noSign;

std::string_view signOf(Subject subject, const QString &movement)
{
    if (subject == Subject::Payables)
        return "-";
    if (subject == Subject::Receivables)
        return "+";
    const QString kind = movement.toLower();
    if (kind == movement::withdrawal.toString().toLower())
        return "-";
    return kind == movement::deposit.toString().toLower() ? "+" : noSign;
}

class Reader
{
public:
    Reader(Connection &connection, AccountStatement &statement, Progress *progress)
        : m_connection(connection), m_statement(statement), m_progress(progress)
    {
    }

    void read(const QString &sql, const Source &source)
    {
        Statement rows = m_connection.prepare(sql);
        const int code = columnNamed(rows, u"código"_s);
        const int date = columnNamed(rows, u"data"_s);
        const int value = columnNamed(rows, u"valor"_s);
        const int description = columnNamed(rows, source.description);
        std::string day, amount;
        while (rows.step()) {
            const Money shown = Money::stored(rows.utf8(value)).roundedToCents();
            const bool isMovement = source.subject == Subject::Movements;
            amount = signOf(source.subject, isMovement ? rows.text(description) : QString());
            if (!amount.empty())
                shown.appendGrouped(amount);
            day.clear();
            dates::appendShown(rows.utf8(date), day);
            m_statement.rows->append({rows.utf8(code), day, rows.utf8(description), amount, {}},
                                     {source.subject, rows.integer(code), m_connection.serial()});
            m_statement.*source.total += shown;
            if (m_progress)
                m_progress->advance(++m_done);
        }
    }

private:
    Connection &m_connection;
    AccountStatement &m_statement;
    Progress *m_progress;
    qint64 m_done = 0;
};

/// What an amount with its sign adds to the balance: signs are taken off wherever they stand.
Sum step(std::string_view amount)
{
    const char sign = amount.front();
    std::string bare;
    for (const char c : amount)
        if (c != sign)
            bare += c;
    const Sum value = Money::stored(std::string_view(bare));
    return sign == '-' ? Sum() - value : value;
}

} // namespace

namespace statement {

std::vector<ListColumn> columns()
{
    return {{u"código"_s, u"Código"_s, CellKind::Number, 0},
            {u"data"_s, u"Data"_s, CellKind::Date},
            {u"descricao"_s, u"Descrição"_s},
            {u"valor"_s, u"Valor"_s, CellKind::Amount},
            {u"saldo"_s, u"Saldo"_s, CellKind::Amount}};
}

std::array<QString, 3> queries(const StatementChoice &choice)
{
    const QString first = dates::stored(choice.first);
    const QString last = dates::stored(choice.last);
    const QString account = sql::literal(choice.account);
    const QString between = u"[data] BETWEEN ('"_s + first + u"') AND ('"_s + last +
                            u"') AND (origem like "_s + account + u") AND "_s;
    return {u"select código,data,valor,descricao from [pagar] WHERE [data] BETWEEN '"_s + first +
                u"' AND '"_s + last + u"' AND [origem] like "_s + account +
                u" AND [estatus] like 'Concluído'"_s,
            u"select código,data,valor,descricao from [receber] where "_s + between +
                u"(estatus like 'Concluído')"_s,
            u"select * from [bancario] where "_s + between + u"[estatus] like 'Concluído'"_s};
}

AccountStatement read(Connection &connection, const StatementChoice &choice, Progress *progress)
{
    const auto [payables, receivables, movements] = queries(choice);
    AccountStatement statement{.rows = std::make_shared<StoredTable>(columns())};
    if (progress)
        progress->begin({}); // how many rows there are would take another look at them all
    Reader reader(connection, statement, progress);
    reader.read(payables, {Subject::Payables, u"descricao"_s, &AccountStatement::payables});
    reader.read(receivables, {Subject::Receivables, u"descricao"_s, &AccountStatement::receivables});
    reader.read(movements, {Subject::Movements, u"movimento"_s, &AccountStatement::movements});
    return statement;
}

std::shared_ptr<StoredTable> inOrder(const StoredTable &rows, std::span<const int> order)
{
    auto shown = std::make_shared<StoredTable>(columns());
    Sum balance;
    std::array<std::string, balanceColumn> buffers;
    for (const int row : order) {
        std::vector<std::string_view> cells;
        for (int column = 0; column < balanceColumn; ++column)
            cells.push_back(rows.utf8(row, column, buffers[std::size_t(column)]));
        std::string running;
        if (const std::string_view amount = cells.back(); !amount.empty()) {
            balance += step(amount);
            running = balance.plain().toStdString();
        }
        cells.push_back(running);
        shown->append(cells, *rows.origin(row));
    }
    return shown;
}

QString caption(const StatementChoice &choice)
{
    return u"Extrato bancário: "_s + choice.account;
}

QString periodText(const StatementChoice &choice)
{
    return u"Entre "_s + dates::shown(choice.first) + u" e "_s + dates::shown(choice.last) +
           u" - Período de "_s + QString::number(choice.first.daysTo(choice.last)) + u" dias"_s;
}

QString totals(const AccountStatement &statement)
{
    return u"Contas a pagar: "_s + statement.payables.inReais() + u" - Contas a receber: "_s +
           statement.receivables.inReais() + u" - Movimento bancário: "_s + statement.movements.inReais();
}

} // namespace statement
