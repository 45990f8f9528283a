#include "agenda/appointments.h"

#include "data/dates.h"
#include "data/formtext.h"
#include "data/like.h"
#include "data/literal.h"
#include "data/progress.h"
#include "data/recordset.h"

using namespace Qt::StringLiterals;

namespace {

std::vector<ListColumn> columns()
{
    return {{u"data"_s, u"Data"_s, CellKind::Date},
            {u"hora"_s, u"Hora"_s},
            {u"Titulo"_s, u"Título"_s},
            {u"local"_s, u"Local"_s},
            {u"dias"_s, u"Dias restantes"_s, CellKind::Number}};
}

QString listQuery(const std::optional<AppointmentDates> &chosen)
{
    if (!chosen)
        return u"select * from compromisso order by data asc"_s;
    return u"select * from compromisso where data between '"_s + dates::stored(chosen->from) + u"' and '"_s +
           dates::stored(chosen->to) + u"' order by data asc"_s;
}

QString headingOf(const std::optional<AppointmentDates> &chosen)
{
    if (!chosen)
        return u"Exibindo todos os compromissos"_s;
    return u"Filtrando dados entre as datas de "_s + dates::shown(chosen->from) + u" e "_s +
           dates::shown(chosen->to);
}

/// The appointments of a title among those of which the query finds too many: a title may hold a pattern, or
/// an apostrophe, which no query can look for.
class OfTitle
{
public:
    OfTitle(Connection &connection, const QString &title)
        : m_title(title),
          m_rows(connection, title.contains(u'\'') ? u"SELECT * FROM compromisso"_s
                                                   : u"SELECT * FROM compromisso where(titulo like "_s +
                                                         sql::literal(title) + u")"_s)
    {
    }
    Recordset *next()
    {
        while (m_rows.next())
            if (textorder::equalFolded(m_rows.text(u"Titulo"), m_title))
                return &m_rows;
        return nullptr;
    }

private:
    QString m_title;
    Recordset m_rows;
};

void set(Recordset &row, const Appointment &appointment)
{
    row.set(u"data", formtext::storedDate(u"Data"_s, appointment.date));
    row.set(u"hora", appointment.time);
    row.set(u"local", appointment.place);
    row.set(u"descricao", appointment.description);
}

/// Runs `work` on every appointment of the title within one transaction.
void forEach(Connection &connection, const QString &title, const std::function<RowChange(Recordset &)> &work)
{
    Transaction transaction(connection);
    OfTitle rows(connection, title);
    bool any = false;
    for (; Recordset *row = rows.next(); any = true)
        transaction.note(Subject::Appointments, work(*row));
    if (!any)
        throw Error(Error::Kind::Data, u"o compromisso \"%1\" não existe mais."_s.arg(title));
    transaction.commit();
}

} // namespace

namespace appointments {

Listing read(Connection &connection, const std::optional<AppointmentDates> &chosen, QDate today,
             Progress *progress)
{
    auto table = std::make_shared<StoredTable>(columns());
    Recordset rows(connection, listQuery(chosen));
    if (progress)
        progress->begin([&rows] { return rows.count(); });
    while (rows.next()) {
        const QString stored = rows.text(u"data");
        const QDate date = dates::read(stored);
        table->append(QStringList{
            dates::shownFromStored(stored), rows.text(u"hora"), rows.text(u"Titulo"), rows.text(u"local"),
            date.isValid() ? QString::number(today.daysTo(date)) + u" dias"_s : QString()});
        if (progress)
            progress->advance(table->rowCount());
    }
    return {table, headingOf(chosen)};
}

QSet<QDate> days(Connection &connection, const AppointmentDates &among)
{
    QSet<QDate> days;
    for (Recordset rows(connection, listQuery(among)); rows.next();)
        if (const QDate date = dates::read(rows.text(u"data")); date.isValid())
            days << date;
    return days;
}

Report report(const Listing &listing, std::shared_ptr<const TableSource> shown)
{
    return {.title = u"LISTA DE COMPROMISSO"_s,
            .tables = {std::move(shown)},
            .lines = {u"Filtrado por: "_s + listing.heading,
                      u"Total de compromissos: "_s + QString::number(listing.rows->rowCount())}};
}

std::optional<Appointment> find(Connection &connection, const QString &title)
{
    OfTitle rows(connection, title);
    const Recordset *row = rows.next();
    if (!row)
        return std::nullopt;
    return Appointment{dates::shownFromStored(row->text(u"data")), row->text(u"hora"), row->text(u"Titulo"),
                       row->text(u"local"), row->text(u"descricao")};
}

void add(Connection &connection, const Appointment &appointment)
{
    if (appointment.title.trimmed().isEmpty())
        throw Error(Error::Kind::Data, u"o título do compromisso deve ser digitado."_s);
    Transaction transaction(connection);
    Recordset table(connection, u"compromisso"_s);
    table.addNew();
    set(table, appointment);
    table.set(u"Titulo", appointment.title);
    transaction.note(Subject::Appointments, table.update());
    transaction.commit();
}

void change(Connection &connection, const Appointment &appointment)
{
    forEach(connection, appointment.title, [&](Recordset &row) {
        set(row, appointment);
        return row.update();
    });
}

void remove(Connection &connection, const QString &title)
{
    forEach(connection, title, [](Recordset &row) { return row.remove(); });
}

} // namespace appointments
