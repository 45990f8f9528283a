#pragma once

#include "lists/storedtable.h"
#include "reports/report.h"

#include <QDate>
#include <QSet>

#include <optional>

class Connection;
class Progress;

/// One engagement as its screen shows it.
struct Appointment
{
    QString date; ///< "dd/mm/yyyy"
    QString time, title, place, description;
};

/// The days between which a list of appointments shows them, both included.
struct AppointmentDates
{
    QDate from, to;
};

/// The appointment book. A title is the key: appointments of one title, in whatever letter case, are changed
/// and removed together.
namespace appointments {

/// What a list shows, and the words over it.
struct Listing
{
    std::shared_ptr<StoredTable> rows;
    QString heading;
};

inline constexpr int titleColumn = 2;

/// In the order of the dates. The days that remain until `today` are negative for a date that is past.
Listing read(Connection &connection, const std::optional<AppointmentDates> &chosen, QDate today,
             Progress *progress = nullptr);
/// Those of the days that have appointments.
QSet<QDate> days(Connection &connection, const AppointmentDates &among);
/// `shown` is the list as it is on the screen.
Report report(const Listing &listing, std::shared_ptr<const TableSource> shown);

/// Nothing when there is none of the title.
std::optional<Appointment> find(Connection &connection, const QString &title);
/// Both throw Error::Kind::Data when the date is none, or the title is blank.
void add(Connection &connection, const Appointment &appointment);
/// Rewrites all but the title of the appointments of that title. Throws when there is none, too.
void change(Connection &connection, const Appointment &appointment);
void remove(Connection &connection, const QString &title);

} // namespace appointments
