#pragma once

#include "entries/contactside.h"
#include "lists/listcolumn.h"

#include <QStringList>

#include <optional>
#include <vector>

class Connection;

/// One client or supplier as the record dialog shows and takes it.
struct ContactForm
{
    QString name;
    QString taxNumber; ///< CPF of a person, CNPJ of a company
    QString birth;     ///< "dd/mm/yyyy" or empty
    QString country, state, city, district, address;
    QString phone, phone2, mobile;
    QString site, email;
    QString registration; ///< state registration number
    QString picture;      ///< path of a picture file; need not exist
    QString notes;
    bool isPerson = true;
};

/// The choices of a contact list's boxes, as their texts; letter case is ignored.
struct ContactFilter
{
    QString field;
    QString text; ///< empty: all contacts
    QString sortBy;
    QString direction;
};

namespace contact {

QStringList sortChoices(const ContactSide &side);
QStringList filterChoices(const ContactSide &side);
QStringList directionChoices();
/// The list's query, in the program's SQL dialect. Part of a date is typed as it is shown, day first. Throws
/// Error when the text has an apostrophe.
QString query(const ContactSide &side, const ContactFilter &filter);
/// What the list shows, in words.
QString heading(const ContactSide &side, const ContactFilter &filter);

/// The row key first. `emailColumn` is the column of the e-mail address.
std::vector<ListColumn> columns(const ContactSide &side);
int emailColumn(const ContactSide &side);

/// The values of a column that contacts have already, in name order, without blank ones.
QStringList used(Connection &connection, const ContactSide &side, const QString &column);
/// The contact with the code; nothing when there is none.
std::optional<ContactForm> load(Connection &connection, const ContactSide &side, const QString &code);
/// Adds a row (empty code) or rewrites the one with the code. Throws Error; then nothing has changed.
void save(Connection &connection, const ContactSide &side, const ContactForm &form, const QString &code);
/// Entries that name the contact keep its name. Throws Error, also when it is no longer there.
void remove(Connection &connection, const ContactSide &side, const QString &code);

} // namespace contact
