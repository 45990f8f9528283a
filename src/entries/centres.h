#pragma once

#include "data/progress.h"
#include "entries/centreside.h"
#include "lists/figures.h"
#include "lists/listcolumn.h"
#include "lists/rowstore.h"
#include "reports/report.h"

#include <QStringList>

#include <vector>

class Connection;

/// One line of the summary.
struct CentreLine
{
    QString name;
    Figures figures; ///< of its entries
};

/// The chart of accounts: centres are names, and an entry belongs to every centre whose name its description
/// is like.
namespace centres {

QStringList names(Connection &connection, const CentreSide &side);
/// Blanks around a name do not belong to it.
void add(Connection &connection, const CentreSide &side, const QString &name);
/// Entries keep the old name. Throws Error when the centre is no longer there or its name has an apostrophe.
void rename(Connection &connection, const CentreSide &side, const QString &oldName, const QString &newName);
/// Entries are left as they are. Throws Error as rename() does, and when the name is a pattern that reaches
/// other centres; then nothing has changed.
void remove(Connection &connection, const CentreSide &side, const QString &name);

/// A line for each of `names`, in their order: what a query with `descricao like` the name would add up, all
/// in one pass over the entries. Every entry that is not pending counts as settled. `progress` may be null.
std::vector<CentreLine> summary(Connection &connection, const CentreSide &side, const QStringList &names,
                                Progress *progress = nullptr);
Figures total(const std::vector<CentreLine> &lines);
/// The line under the summary list.
QString totalsText(const CentreSide &side, const Figures &total);

std::vector<ListColumn> columns(const CentreSide &side);
RowStore rows(const std::vector<CentreLine> &lines);
/// The summary as it is saved and printed: a paragraph with labels for each centre, then the totals.
Report report(const CentreSide &side, const std::vector<CentreLine> &lines);

} // namespace centres
