#include "entries/centres.h"

#include "data/literal.h"
#include "data/rows.h"
#include "entries/entry.h"
#include "lists/namegroups.h"

using namespace Qt::StringLiterals;

namespace {

QString fromByName(const CentreSide &side, const QString &name)
{
    return u"FROM "_s + side.table + u" where(descricao like "_s + sql::literal(name) + u")"_s;
}

QString amount(const Figures::Part &part)
{
    return QString::number(part.count) + u" ("_s + part.sum.inReais() + u')';
}

QStringList totals(const CentreSide &side, const Figures &total)
{
    return {side.totalLabel + total.total().sum.inReais(), side.settledLabel + total.settled.sum.inReais(),
            side.pendingLabel + total.pending.sum.inReais()};
}

} // namespace

namespace centres {

QStringList names(Connection &connection, const CentreSide &side)
{
    return entry::names(connection, side.listQuery, u"descricao");
}

void add(Connection &connection, const CentreSide &side, const QString &name)
{
    Transaction transaction(connection);
    Recordset row(connection, side.table);
    row.addNew();
    row.set(u"descricao", name.trimmed());
    transaction.note(side.subject, row.update());
    transaction.commit();
}

void rename(Connection &connection, const CentreSide &side, const QString &oldName, const QString &newName)
{
    Transaction transaction(connection);
    std::optional<Recordset> row = rows::named(connection, fromByName(side, oldName), u"descricao", oldName);
    if (!row)
        throw Error(Error::Kind::Data, u"\"%1\" não existe mais."_s.arg(oldName));
    row->set(u"descricao", newName.trimmed());
    transaction.note(side.subject, row->update());
    transaction.commit();
}

void remove(Connection &connection, const CentreSide &side, const QString &name)
{
    Transaction transaction(connection);
    rows::removeNamed(connection, transaction, side.subject, fromByName(side, name), u"descricao", name);
    transaction.commit();
}

std::vector<CentreLine> summary(Connection &connection, const CentreSide &side, const QStringList &names,
                                Progress *progress)
{
    Statement rows = connection.prepare(u"Select descricao, estatus, valor from "_s + side.entryTable,
                                        dialect::RowOrder::Any);
    if (progress)
        progress->begin([&] {
            Statement counted = connection.prepare(u"Select count(*) from "_s + side.entryTable);
            return counted.step() ? counted.integer(0) : 0;
        });
    NameGroups<Figures> groups;
    for (qint64 count = 0; rows.step();) {
        if (!rows.isNull(0))
            groups.of(rows.utf8(0)).add(rows.utf8(1), Money::stored(rows.utf8(2)).roundedToCents());
        if (progress)
            progress->advance(++count);
    }
    std::vector<CentreLine> lines;
    for (const QString &name : names)
        lines.push_back({name, groups.like(name)});
    return lines;
}

Figures total(const std::vector<CentreLine> &lines)
{
    Figures sums;
    for (const CentreLine &line : lines)
        sums += line.figures;
    return sums;
}

QString totalsText(const CentreSide &side, const Figures &total)
{
    return totals(side, total).join(u" - "_s);
}

std::vector<ListColumn> columns(const CentreSide &side)
{
    return {{u"nome"_s, side.caption, CellKind::Text, 220},
            {u"pendentes"_s, u"Pendentes"_s, CellKind::Text, 140},
            {u"concluidas"_s, u"Concluídas"_s, CellKind::Text, 140},
            {u"total"_s, u"Total"_s, CellKind::Text, 140}};
}

RowStore rows(const std::vector<CentreLine> &lines)
{
    RowStore store(4);
    for (const auto &[name, sums] : lines) {
        const std::string cells[] = {name.toStdString(), amount(sums.pending).toStdString(),
                                     amount(sums.settled).toStdString(), amount(sums.total()).toStdString()};
        store.append({cells[0], cells[1], cells[2], cells[3]});
    }
    return store;
}

Report report(const CentreSide &side, const std::vector<CentreLine> &lines)
{
    Report report;
    report.title = side.summaryTitle;
    for (const auto &[name, sums] : lines)
        report.lines << side.nameLabel + name << u"Pendentes: "_s + amount(sums.pending)
                     << u"Concluídas: "_s + amount(sums.settled) << u"Total: "_s + amount(sums.total())
                     << QString();
    report.statistics = totals(side, total(lines)).join(u'\n');
    report.textStatistics = report.statistics + u'\n';
    return report;
}

} // namespace centres
