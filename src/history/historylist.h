#pragma once

#include "lists/storedtable.h"

#include <QDate>

class Connection;
class Progress;

/// What of the journal is looked at; a blank user or text stands for all.
struct HistoryFilter
{
    QDate first, last; ///< both included
    QString user;
    QString text; ///< anywhere in the words of a step, letter case and accents ignored
};

namespace historylist {

struct Listing
{
    std::shared_ptr<StoredTable> rows; ///< newest first; the first column is the number of the step
    QStringList users;                 ///< who worked in these days
    QString heading;
};

/// At most this many steps are listed: the newest.
inline constexpr int most = 5'000;

Listing read(Connection &connection, const HistoryFilter &filter);

} // namespace historylist
