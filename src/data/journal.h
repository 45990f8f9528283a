#pragma once

#include "data/rowrecorder.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <vector>

class Connection;

/// The journal of a file: one step for every transaction that changed rows of the business, with who made it,
/// and each row as it was and as it became. It stands in the tables `historico` and `historico_linha` of the
/// file itself and is written within the same transaction. Nothing is ever taken out of it.
namespace journal {

/// Whoever works with this process.
struct Author
{
    QString user, machine;
    QString installation; ///< the same for every run of one installation: whose steps Ctrl+Z takes back
};
void setAuthor(const Author &author);
const Author &author();

enum class Kind {
    Done,   ///< by a command
    Undone, ///< takes another step back
    Redone  ///< does again what was taken back
};

/// One line of the journal.
struct Step
{
    qint64 number = 0; ///< later steps have higher numbers
    QString when;      ///< "yyyy/mm/dd hh:mm:ss", by the clock of the machine
    QString user, machine;
    Kind kind = Kind::Done;
    qint64 of = 0; ///< the step that is taken back or done again
    bool isUndone = false;
};

/// The tables whose rows are kept.
const QStringList &tables();
/// From here on every Transaction of the connection is recorded; does nothing to a file without the tables of
/// the journal, which one of an earlier version may be.
void keep(Connection &connection);
/// Writes what the open transaction changed so far as one step, and gives its number; 0 when it changed
/// nothing. A commit does so by itself.
qint64 writeStep(Connection &connection, Kind kind = Kind::Done, qint64 of = 0);

/// The step with the number; number 0 when there is none.
Step step(Connection &connection, qint64 number);
/// The steps from `first` to `last`, days included, newest first; at most `limit` of them.
std::vector<Step> steps(Connection &connection, QDate first, QDate last, int limit);
/// What a step changed, in the order in which it did.
std::vector<RecordedRow> rows(Connection &connection, qint64 step);

} // namespace journal
