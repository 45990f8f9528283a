#pragma once

#include <QObject>

#include <functional>
#include <optional>

class EntryPane;
struct EntryRemoval;

/// What the user can do with the entries of one pane: add, edit, delete, settle.
class EntryCommands : public QObject
{
    Q_OBJECT

public:
    /// `stockPane` has the list whose selected line names the product and quantity that a deletion corrects:
    /// for both sides it is the receivables list.
    EntryCommands(EntryPane &pane, EntryPane &stockPane, QObject *parent);

private:
    void add();
    void edit();
    void remove();
    void openHistory();
    /// Of the selected entry; an empty one when none is selected.
    void openReceipt();
    void settle();
    /// Runs a change, which says whether all of its entries were still there, and has the lists follow.
    void tellAfter(const QString &title, QStringView prefix, const std::function<bool()> &work);
    int selectedOrTell();
    std::optional<EntryRemoval> removalOf(int row);

    EntryPane &m_pane;
    EntryPane &m_stockPane;
};
