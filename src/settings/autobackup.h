#pragma once

#include "data/progress.h"

#include <QDate>
#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

/// Copies of the database that nobody has to remember: one when the program closes, and one a day while it is
/// left open, when something has changed. Of these, the newest of each of seven days, four weeks and twelve
/// months are kept.
namespace autobackup {

/// One copy, by its name "tavaro-2026-11-14-183059.qorvex".
struct Copy
{
    QString path;
    QDateTime when;
    qint64 bytes = 0;
};

bool isOn();
/// Where the copies go: what the user chose, or the folder "backups" of the program folder.
QString folder();
/// Both throw Error::Kind::File.
void setOn(bool on);
void setFolder(const QString &path);

/// Newest first; none where the folder cannot be read.
std::vector<Copy> copies();
/// Those of the copies, newest first, that are not kept.
std::vector<Copy> surplus(const std::vector<Copy> &copies);

/// Whether the database was written to since the last copy that this installation made.
bool hasNews();
/// A copy that is to be made.
struct Plan
{
    QString database, target;
    QString state;       ///< of the database, before it is copied
    QString spared = {}; ///< an older copy that stays even if it is surplus: it is about to be restored
};
/// What a copy now would be; makes the folder. Throws Error::Kind::File when it cannot be made.
Plan plan();
/// Copies, checks the copy, and only then removes the surplus. Runs in any thread; see databasecopy for what
/// may be thrown.
void make(const Plan &plan, Progress &progress);
/// Keeps that the copy was made, and its day. Throws Error::Kind::File.
void remember(const Plan &plan);

/// What the user is to be warned of: no good copy for more than a week, or the folder is gone. Empty when all
/// is well.
QString warning(QDate today);

} // namespace autobackup
