#include "analysis/movementreport.h"

#include "data/dates.h"
#include "entries/entryreport.h"
#include "lists/readrows.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

QString monthName(QDate date)
{
    return QLocale(QLocale::Portuguese, QLocale::Brazil).monthName(date.month());
}

} // namespace

namespace movementreport {

Texts texts(const Side &side, ViewPeriod period, const QDateTime &now)
{
    const QDate today = now.date();
    const QString from = u"SELECT * FROM "_s + side.table;
    const QString title = u"Relatório de movimento %1 ("_s + side.movementPlural + u')';
    const QString year = today.toString(u"yyyy"_s);
    const QString untilNow = u" até hoje: "_s + dates::shown(today) + u" às "_s + dates::longTime(now.time());
    switch (period) {
    case ViewPeriod::Day:
        return {from + u" where data like '"_s + dates::stored(today) + u"' "_s + periodview::order(),
                title.arg(u"do dia"_s),
                u"Dados cadastrados: "_s + dates::longDate(today) + u" até "_s + dates::longTime(now.time()),
                u"Total de cadastros ("_s, u"Não há dados cadastrados com a data de hoje!"_s};
    case ViewPeriod::Month:
        return {from + u" where (Data like '%"_s + today.toString(u"yyyy/MM"_s) + u"/%')"_s +
                    periodview::order(),
                title.arg(u"mensal"_s),
                u"Dados cadastrados no mês de: "_s + monthName(today) + u" de "_s + year + untilNow,
                u"Total de cadastros no mês de ("_s, u"Não há dados cadastrados neste mês!"_s};
    case ViewPeriod::Year:
        break;
    }
    return {from + u" where(data like '%"_s + year + u"%')"_s + periodview::order(), title.arg(u"anual"_s),
            u"Dados cadastrados no ano de: "_s + year + untilNow, u"Total de cadastros no ano de ("_s,
            u"Não há dados cadastrados este ano!"_s};
}

std::optional<Report> read(Connection &connection, const Side &side, ViewPeriod period, const QDateTime &now,
                           Progress *progress)
{
    const Texts words = texts(side, period, now);
    const std::vector<ListColumn> columns = entryreport::columns(side);
    auto table = std::make_shared<StoredTable>(columns);
    FigureTotals totals;
    const qint64 count =
        readrows::into(*table, connection, words.query, columns, side.subject, totals, progress);
    if (count == 0)
        return std::nullopt;
    return Report{.title = words.title,
                  .subtitle = side.reportHeading,
                  .filterText = words.filterText,
                  .tables = {std::move(table)},
                  .statistics = words.totalWords + QString::number(count) + u"): \r\n"_s +
                                entryreport::totals(side, totals.figures)};
}

} // namespace movementreport
