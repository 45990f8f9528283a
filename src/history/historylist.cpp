#include "history/historylist.h"

#include "data/connection.h"
#include "data/searchtext.h"
#include "history/steptexts.h"

using namespace Qt::StringLiterals;

namespace {

std::vector<ListColumn> columns()
{
    return {{u"numero"_s, u"Nº"_s, CellKind::Number, 0},
            {u"quando"_s, u"Quando"_s, CellKind::Text, 140},
            {u"usuario"_s, u"Usuário"_s, CellKind::Text, 110},
            {u"computador"_s, u"Computador"_s, CellKind::Text, 110},
            {u"situacao"_s, u"Situação"_s, CellKind::Text, 80},
            {u"acao"_s, u"O que foi feito"_s, CellKind::Text, 420}};
}

/// "2026/11/14 10:00:00" as "14/11/2026 10:00:00".
QString shownMoment(const QString &stored)
{
    return stored.mid(8, 2) + u'/' + stored.mid(5, 2) + u'/' + stored.left(4) + stored.mid(10);
}

} // namespace

namespace historylist {

Listing read(Connection &connection, const HistoryFilter &filter)
{
    const ReadLock oneState(connection);
    Listing listing{std::make_shared<StoredTable>(columns()), {}, {}};
    const QString wanted = searchtext::plain(filter.text);
    const std::vector<journal::Step> steps = journal::steps(connection, filter.first, filter.last, most);
    for (const journal::Step &step : steps) {
        if (!listing.users.contains(step.user))
            listing.users << step.user;
        if (!filter.user.isEmpty() && step.user != filter.user)
            continue;
        const QString title = steptexts::title(connection, step);
        if (searchtext::containsWords(title, wanted))
            listing.rows->append(QStringList{QString::number(step.number), shownMoment(step.when), step.user,
                                             step.machine, step.isUndone ? u"Desfeita"_s : QString(), title});
    }
    listing.users.sort(Qt::CaseInsensitive);
    listing.heading = u"%1 ações"_s.arg(listing.rows->rowCount());
    if (listing.rows->rowCount() == 1)
        listing.heading = u"1 ação"_s;
    if (steps.size() == std::size_t(most))
        listing.heading += u" (das %1 mais recentes destas datas)"_s.arg(most);
    return listing;
}

} // namespace historylist
