#include "analysis/bankbook.h"

#include "bank/movement.h"
#include "data/connection.h"
#include "data/dates.h"
#include "data/like.h"
#include "data/progress.h"
#include "data/recordset.h"
#include "data/status.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace {

using Amount = Sum AccountBook::*;

/// Counts settled rows into the books of the accounts that they name.
class Bookkeeper
{
public:
    Bookkeeper(std::vector<AccountBook> &books, const BookPeriod &period, Progress *progress)
        : m_books(books), m_period(period), m_progress(progress)
    {
        for (const AccountBook &book : books)
            m_patterns.emplace_back(book.name);
    }

    void add(std::string_view account, std::string_view date, Money value, Amount amount, int sign)
    {
        const std::vector<int> &named = accountsNamed(account);
        if (named.empty())
            return;
        const QDate day = dates::read(QString::fromUtf8(date.data(), qsizetype(date.size())));
        if (day.isValid() && day > m_period.last)
            return;
        const bool isBefore = m_period.first ? !day.isValid() || day < *m_period.first : !day.isValid();
        for (const int index : named) {
            AccountBook &book = m_books[std::size_t(index)];
            if (isBefore) {
                sign < 0 ? book.before -= value : book.before += value;
                continue;
            }
            book.*amount += value;
            AccountBook::Day &change = book.days[day];
            (sign < 0 ? change.out : change.in) += value;
        }
    }
    void countRow()
    {
        if (m_progress)
            m_progress->advance(++m_done);
    }

private:
    /// Accounts are named as `like` compares.
    const std::vector<int> &accountsNamed(std::string_view text)
    {
        const QByteArray key(text.data(), qsizetype(text.size()));
        auto found = m_named.constFind(key);
        if (found == m_named.constEnd()) {
            std::vector<int> named;
            for (std::size_t i = 0; i < m_patterns.size(); ++i)
                if (m_patterns[i].matches(text))
                    named.push_back(int(i));
            found = m_named.insert(key, std::move(named));
        }
        return *found;
    }

    std::vector<AccountBook> &m_books;
    BookPeriod m_period;
    Progress *m_progress;
    std::vector<LikePattern> m_patterns;
    QHash<QByteArray, std::vector<int>> m_named; ///< by the text of a row
    qint64 m_done = 0;
};

QString settledRows(const QString &columns, const QString &table)
{
    return u"Select "_s + columns + u" from "_s + table + u" WHERE estatus like ('"_s +
           status::settled.toString() + u"')"_s;
}

void readEntries(Connection &connection, Bookkeeper &keeper, const QString &table, Amount amount, int sign)
{
    Statement rows = connection.prepare(settledRows(u"origem, data, valor"_s, table), dialect::RowOrder::Any);
    while (rows.step()) {
        keeper.add(rows.utf8(0), rows.utf8(1), Money::stored(rows.utf8(2)).roundedToCents(), amount, sign);
        keeper.countRow();
    }
}

void readMovements(Connection &connection, Bookkeeper &keeper)
{
    Statement rows = connection.prepare(
        settledRows(u"origem, data, valor, movimento, destino"_s, u"bancario"_s), dialect::RowOrder::Any);
    while (rows.step()) {
        const Money value = Money::stored(rows.utf8(2)).roundedToCents();
        const QString kind = rows.text(3);
        if (kind == movement::deposit)
            keeper.add(rows.utf8(0), rows.utf8(1), value, &AccountBook::deposited, 1);
        else if (kind == movement::withdrawal)
            keeper.add(rows.utf8(0), rows.utf8(1), value, &AccountBook::withdrawn, -1);
        if (kind == movement::transfer) {
            keeper.add(rows.utf8(0), rows.utf8(1), value, &AccountBook::transferredOut, -1);
            keeper.add(rows.utf8(4), rows.utf8(1), value, &AccountBook::transferredIn, 1);
        }
        keeper.countRow();
    }
}

AccountBook sumOf(const std::vector<AccountBook> &books, const QString &account)
{
    AccountBook all{.name = u"Total"_s};
    for (const AccountBook &book : books) {
        if (!account.isEmpty() && book.name != account)
            continue;
        for (const Amount amount :
             {&AccountBook::before, &AccountBook::received, &AccountBook::paid, &AccountBook::deposited,
              &AccountBook::withdrawn, &AccountBook::transferredIn, &AccountBook::transferredOut})
            all.*amount += book.*amount;
        for (const auto &[date, day] : book.days) {
            all.days[date].in += day.in;
            all.days[date].out += day.out;
        }
    }
    return all;
}

QString balanceTitle(const BookPeriod &period)
{
    return u"Saldo em "_s + dates::shown(period.last);
}

QString beforeTitle(const BookPeriod &period)
{
    return period.first ? u"Saldo anterior"_s : u"Saldo inicial"_s;
}

} // namespace

namespace bankbook {

std::vector<AccountBook> read(Connection &connection, const BookPeriod &period, Progress *progress)
{
    std::vector<AccountBook> books;
    for (Recordset rows(connection, u"select * from banco"_s); rows.next();)
        books.push_back(
            {.name = rows.text(u"banco"), .before = Money::stored(rows.utf8(rows.column(u"saldo")))});
    if (progress)
        progress->begin({});
    Bookkeeper keeper(books, period, progress);
    readEntries(connection, keeper, u"pagar"_s, &AccountBook::paid, -1);
    readEntries(connection, keeper, u"receber"_s, &AccountBook::received, 1);
    readMovements(connection, keeper);
    return books;
}

QString periodText(const BookPeriod &period)
{
    if (!period.first)
        return u"Até "_s + dates::shown(period.last);
    return u"Entre "_s + dates::shown(*period.first) + u" e "_s + dates::shown(period.last) +
           u" - Período de "_s + QString::number(period.first->daysTo(period.last)) + u" dias"_s;
}

std::shared_ptr<StoredTable> accountTable(const std::vector<AccountBook> &books, const BookPeriod &period)
{
    const auto amount = [](const QString &title) { return ListColumn{title, title, CellKind::Amount}; };
    auto table = std::make_shared<StoredTable>(std::vector<ListColumn>{{u"conta"_s, u"Caixa/Banco"_s},
                                                                       amount(beforeTitle(period)),
                                                                       amount(u"Recebido"_s),
                                                                       amount(u"Pago"_s),
                                                                       amount(u"Depósitos"_s),
                                                                       amount(u"Retiradas"_s),
                                                                       amount(u"Transf. recebidas"_s),
                                                                       amount(u"Transf. enviadas"_s),
                                                                       amount(balanceTitle(period))});
    const auto addLine = [&table](const AccountBook &book) {
        table->append({book.name, book.before.inReais(), book.received.inReais(), book.paid.inReais(),
                       book.deposited.inReais(), book.withdrawn.inReais(), book.transferredIn.inReais(),
                       book.transferredOut.inReais(), book.balance().inReais()});
    };
    for (const AccountBook &book : books)
        addLine(book);
    if (!books.empty())
        addLine(sumOf(books, {}));
    return table;
}

std::shared_ptr<StoredTable> dayTable(const std::vector<AccountBook> &books, const QString &account,
                                      const BookPeriod &period)
{
    auto table = std::make_shared<StoredTable>(
        std::vector<ListColumn>{{u"data"_s, u"Data"_s, CellKind::Date},
                                {u"entradas"_s, u"Entradas"_s, CellKind::Amount},
                                {u"saidas"_s, u"Saídas"_s, CellKind::Amount},
                                {u"saldo"_s, u"Saldo"_s, CellKind::Amount}});
    const AccountBook book = sumOf(books, account);
    if (!period.first)
        return table;
    Sum balance = book.before;
    auto next = book.days.cbegin();
    for (QDate day = *period.first; day <= period.last; day = day.addDays(1)) {
        AccountBook::Day change;
        if (next != book.days.cend() && next->first == day)
            change = (next++)->second;
        balance += change.in - change.out;
        table->append({dates::shown(day), change.in.inReais(), change.out.inReais(), balance.inReais()});
    }
    return table;
}

QString totals(const std::vector<AccountBook> &books, const BookPeriod &period)
{
    const AccountBook all = sumOf(books, {});
    return beforeTitle(period) + u": "_s + all.before.inReais() + u" - Recebido: "_s +
           all.received.inReais() + u" - Pago: "_s + all.paid.inReais() + u" - Depósitos: "_s +
           all.deposited.inReais() + u" - Retiradas: "_s + all.withdrawn.inReais() + u"\n"_s +
           u"Transferências recebidas: "_s + all.transferredIn.inReais() + u" - enviadas: "_s +
           all.transferredOut.inReais() + u" - "_s + balanceTitle(period) + u": "_s + all.balance().inReais();
}

} // namespace bankbook
