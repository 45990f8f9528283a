#pragma once

#include "data/error.h"
#include "data/progress.h"
#include "entries/side.h"

#include <QDate>
#include <QStringList>

#include <optional>
#include <vector>

class Connection;

/// A run of entries as its screen shows and takes it: every field as its text.
struct InstallmentsForm
{
    QString status, account, contact;
    QString date; ///< "dd/mm/yyyy"; the first due date is one step later
    QString description, document, notes;
    QString value; ///< of each installment
    QString currency;
    QString count; ///< how many
    bool monthly;  ///< one a month, or else one every `days` days
    QString days;
};

/// How a run of installments ended: `failure` is what kept the rest from being written.
struct InstallmentsOutcome
{
    int written = 0;
    std::optional<Error> failure;
};

namespace installments {

/// The names of the required fields that are empty, in the order in which they are reported.
QStringList blankFields(const InstallmentsForm &form);
/// The message about the number of installments or of days; nothing when both can be. The days count in a
/// monthly run too.
std::optional<QString> problem(const InstallmentsForm &form);
/// The due date after `previous`. A day that the month does not have becomes its last day, and stays lowered
/// from then on.
QDate nextDue(QDate previous, const InstallmentsForm &form);
/// The due dates of the whole run. Throws Error when one lies beyond the year 9999.
std::vector<QDate> dueDates(const InstallmentsForm &form);
/// Adds one row for each installment, all in one transaction. An error ends the run; the rows before it stay.
/// `progress` (may be null) advances by one a row.
InstallmentsOutcome write(Connection &connection, const Side &side, const InstallmentsForm &form,
                          Progress *progress);
/// The failure as the user is told it, with how many rows were written.
Error report(const InstallmentsForm &form, const InstallmentsOutcome &outcome);

} // namespace installments
