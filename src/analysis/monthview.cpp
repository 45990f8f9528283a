#include "analysis/monthview.h"

#include "data/connection.h"
#include "data/schema.h"
#include "entries/entryreport.h"
#include "settings/database.h"
#include "settings/programfolder.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace monthview {

std::vector<ListColumn> columns(const Side &side)
{
    std::vector<ListColumn> columns = entryreport::columns(side);
    for (ListColumn &column : columns) {
        if (column.kind == CellKind::Amount)
            column.format = cellformat::reais;
    }
    columns.insert(columns.begin(), {u"código"_s, u"Código"_s, CellKind::Number, 0});
    return columns;
}

QString caption(const Side &side, int year)
{
    return u"Visualizando "_s + side.reportHeading.toLower() + u" separadas por mês - ano de "_s +
           QString::number(year);
}

QString query(const Side &side, Basis basis, int year, int month, bool firstLook)
{
    const bool byDue = basis == Basis::DueDate;
    return u"Select * from "_s + side.table + u" where("_s + (byDue ? u"Vencimento"_s : u"Data"_s) +
           u" like '%"_s + QString::number(year) + u"/%1"_s.arg(month, 2, 10, QChar(u'0')) +
           (byDue && firstLook ? u"%')"_s : u"/%')"_s);
}

QString totals(const Side &side, const Figures &figures)
{
    return QString::number(figures.total().count) + u" cadastros  -  Total de "_s + side.plural + u": R$ "_s +
           figures.total().sum.grouped() + u"  -  Total "_s + side.settledWord + u": R$ "_s +
           figures.settled.sum.grouped() + u"  -  Total pendente: R$ "_s + figures.pending.sum.grouped();
}

QString file()
{
    const QString chosen = settings::value(settings::databasePath);
    if (chosen != settings::databasePath.defaultValue)
        return chosen;
    const QString own = programfolder::file(u"dados.zelqa"_s);
    return QFileInfo::exists(own) ? own : databasePath();
}

std::unique_ptr<Connection> openOther()
{
    const QString path = file();
    return path == databasePath() ? nullptr : Connection::open(path, schema::password.toString());
}

} // namespace monthview
