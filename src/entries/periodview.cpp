#include "entries/periodview.h"

#include "bank/movementlist.h"
#include "data/dates.h"
#include "entries/entrylist.h"
#include "settings/listlayout.h"
#include "settings/settings.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The words for one period.
struct PeriodWords
{
    QString title;   ///< "Movimento do dia"
    QString summary; ///< "hoje"
    QString shown;   ///< pattern of the date as the user reads it
};

const PeriodWords &words(ViewPeriod period)
{
    static const PeriodWords all[] = {{u"Movimento do dia"_s, u"hoje"_s, u"dd/MM/yyyy"_s},
                                      {u"Movimento do mês"_s, u"neste mês"_s, u"MM/yyyy"_s},
                                      {u"Movimento anual"_s, u"neste ano"_s, u"yyyy"_s}};
    return all[std::size_t(period)];
}

QString condition(ViewPeriod period, QDate today)
{
    switch (period) {
    case ViewPeriod::Day:
        return u"(data like '"_s + dates::stored(today) + u"')"_s;
    case ViewPeriod::Month:
        return u"(data like '%"_s + today.toString(u"yyyy/MM"_s) + u"/%')"_s;
    case ViewPeriod::Year:
        break;
    }
    return u"(data like '%"_s + today.toString(u"yyyy"_s) + u"/%')"_s;
}

} // namespace

const ViewKind &payableView()
{
    static const ViewKind kind{
        .subject = payable().subject,
        .table = payable().table,
        .titleWords = u" de contas a pagar"_s,
        .totalWords = u"Total de despesas: R$ "_s,
        .heading = u"CONTAS A PAGAR"_s,
        .loadingTitle = payable().loadingTitle,
        .limitedBySetting = false,
        .pages = modimpressao::ListKind::Payables,
        .layout = [] { return entrylist::layoutFile(payable()); },
    };
    return kind;
}

const ViewKind &receivableView()
{
    static const ViewKind kind{
        .subject = receivable().subject,
        .table = receivable().table,
        .titleWords = u" de contas a receber"_s,
        .totalWords = u"Total de lucros: R$ "_s,
        .heading = u"CONTAS A RECEBER"_s,
        .loadingTitle = receivable().loadingTitle,
        .limitedBySetting = false,
        .pages = modimpressao::ListKind::Receivables,
        .layout = [] { return entrylist::layoutFile(receivable()); },
    };
    return kind;
}

const ViewKind &bankView()
{
    static const ViewKind kind{
        .subject = Subject::Movements,
        .table = u"bancario"_s,
        .titleWords = u" - bancário"_s,
        .totalWords = u"Total de movimento bancário: R$ "_s,
        .heading = u"MOVIMENTO BANCÁRIO"_s,
        .loadingTitle = movementlist::loadingTitle.toString(),
        .limitedBySetting = true,
        .pages = modimpressao::ListKind::Movements,
        .layout = movementlist::layoutFile,
    };
    return kind;
}

namespace periodview {

ViewPeriod shownPeriod(const ViewKind &kind, ViewPeriod period)
{
    const bool monthOnly = kind.limitedBySetting && settings::value(settings::bankViewPeriod) == u"1";
    return monthOnly ? std::min(period, ViewPeriod::Month) : period; // "2", the year, contains every period
}

QString title(const ViewKind &kind, ViewPeriod period)
{
    return words(period).title + kind.titleWords;
}

QString periodText(ViewPeriod period, QDate today)
{
    return u"Período: "_s + today.toString(words(period).shown);
}

QString order()
{
    const bool descending = settings::value(settings::viewOrder).compare(u"DESC"_s, Qt::CaseInsensitive) == 0;
    return u" order by Data "_s + (descending ? u"DESC"_s : u"ASC"_s);
}

QString query(const ViewKind &kind, ViewPeriod period, QDate today)
{
    return u"SELECT * FROM "_s + kind.table + u" where"_s + condition(period, today) + order();
}

QString summary(const ViewKind &kind, ViewPeriod period, const Figures &figures)
{
    const auto [count, total] = figures.total();
    if (count == 0)
        return u"0 cadastros  -  Total de movimento: 0,00  -  Total Conluido: 0,00  -  Total pendente: 0,00"_s;
    return u"Total de cadastros "_s + words(period).summary + u" ("_s + QString::number(count) + u"): "_s +
           kind.totalWords + total.grouped() + u"  -  Total concluído: "_s + figures.settled.sum.inReais() +
           u"  -  Total pendente: "_s + figures.pending.sum.inReais();
}

} // namespace periodview
