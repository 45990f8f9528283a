#include "analysis/accountresults.h"

#include "data/dates.h"
#include "lists/listquery.h"
#include "lists/namegroups.h"
#include "lists/readrows.h"

using namespace Qt::StringLiterals;

namespace {

using Span = ResultFilter::Span;

QString twoDigits(int number)
{
    return QString::number(number).rightJustified(2, u'0');
}

QString condition(const ResultFilter &filter)
{
    switch (filter.span) {
    case Span::Day:
        return u"(data like '"_s + dates::stored(filter.today) + u"')"_s;
    case Span::Month:
        return u"(data like '%"_s + QString::number(filter.year) + u'/' + twoDigits(filter.month) + u"/%')"_s;
    case Span::Year:
        return u"(data like '%"_s + QString::number(filter.year) + u"/%')"_s;
    case Span::Range:
        break;
    }
    return u"Data BETWEEN '"_s + dates::stored(filter.first) + u"' AND '"_s + dates::stored(filter.last) +
           u'\'';
}

/// Sums the amounts of the rows by their account.
class AccountSums : public RowTotals
{
public:
    QStringList columns() const override { return {u"origem"_s, u"valor"_s}; }
    void add(std::span<const std::string_view> values, int sign) override
    {
        addSigned(m_sums.of(values[0]), Money::stored(values[1]), sign);
    }
    std::unique_ptr<RowTotals> clone() const override { return std::make_unique<AccountSums>(*this); }
    Sum of(const QString &account) const { return m_sums.like(account); }

private:
    NameGroups<Sum> m_sums;
};

} // namespace

namespace accountresults {

std::vector<ListColumn> columns()
{
    return {{u"banco"_s, u"Conta"_s},
            {u"despesas"_s, u"Despesas"_s, CellKind::Amount},
            {u"lucros"_s, u"Lucros"_s, CellKind::Amount},
            {u"saldo"_s, u"Saldo"_s, CellKind::Amount}};
}

std::optional<QString> problem(const ResultFilter &filter)
{
    if (filter.span == Span::Range && (!filter.first.isValid() || !filter.last.isValid()))
        return u"As data inicial e a data final devem ser preenchidas!"_s;
    return std::nullopt;
}

QString query(const Side &side, const ResultFilter &filter)
{
    return u"Select * from "_s + side.table + u" where (estatus like 'Concluído') AND "_s + condition(filter);
}

QString filterText(const ResultFilter &filter)
{
    const QString words = u"Período: "_s;
    switch (filter.span) {
    case Span::Day:
        return words + dates::shown(filter.today);
    case Span::Month:
        return words + twoDigits(filter.month) + u'/' + QString::number(filter.year);
    case Span::Year:
        return words + QString::number(filter.year);
    case Span::Range:
        break;
    }
    return words + dates::shown(filter.first) + u" a "_s + dates::shown(filter.last);
}

std::optional<Result> read(Connection &connection, const ResultFilter &filter, Progress *progress)
{
    const QStringList accounts = readrows::names(connection, u"select * from banco"_s, u"banco"_s);
    if (accounts.isEmpty())
        return std::nullopt;
    AccountSums expenses, profits;
    readrows::sum(connection, query(payable(), filter), expenses, progress);
    readrows::sum(connection, query(receivable(), filter), profits, progress);

    Result result{std::make_shared<StoredTable>(columns()), {}, {}};
    for (const QString &account : accounts) {
        const Sum out = expenses.of(account), in = profits.of(account);
        result.table->append({account, out.inReais(), in.inReais(), (in - out).inReais()});
        result.expenses += out;
        result.profits += in;
    }
    return result;
}

QString totalText(const Result &result)
{
    return u"Total de despesas "_s + result.expenses.inReais() + u" - Total de lucros "_s +
           result.profits.inReais() + u" - Saldo total "_s + result.balance().inReais();
}

} // namespace accountresults
