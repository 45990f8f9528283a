#pragma once

#include "entries/entryfilter.h"
#include "reports/modimpressao.h"
#include "settings/listlayout.h"

#include <QWidget>

#include <memory>

namespace Ui {
class EntryPane;
}
class ListView;
class QAction;
class QComboBox;

/// Names of the controls of one entry pane, and what they are called on its side.
struct EntryPaneNames
{
    QString basedOn, status, account, centre, contact, period; ///< filter boxes
    QString list, totals;
    QString add, edit, remove, settle, installments; ///< commands
    QString exportSuffix;                            ///< ends the names of the print and export commands
    QString reportTitle;
    modimpressao::ListKind pages; ///< how the list is printed
    QString centreLabel, contactLabel, emptyText;
    const ListLayoutFile &layout;
};

const EntryPaneNames &payablePaneNames();
const EntryPaneNames &receivablePaneNames();

/// One tab of the main window: the payables or the receivables with filter boxes, commands and totals line. A
/// changed filter box refills the list at once and is kept in the settings; when the list cannot be read,
/// list and boxes stay as they were.
class EntryPane : public QWidget
{
    Q_OBJECT

public:
    EntryPane(const Side &side, const EntryPaneNames &names, QWidget *parent = nullptr);
    ~EntryPane() override;

    const Side &side() const { return m_side; }
    ListView &list();

    /// The query of the list as it is shown.
    QString query() const { return m_query; }

    void restoreFilters();
    /// Reads the list with the filters shown; false, with a message, when that failed.
    bool reload();
    /// Offers the accounts, centres and contacts that the entries name.
    void refillFilterBoxes();
    void restoreLayout();
    /// Throws Error.
    void saveLayout();

    QAction *addCommand, *editCommand, *removeCommand, *settleCommand, *installmentsCommand;

private:
    void nameControls();
    void makeCommands();
    Report report();
    EntryFilter filter() const;
    void showFilter(const EntryFilter &filter);
    void filterChanged();

    std::unique_ptr<Ui::EntryPane> m_ui;
    const Side &m_side;
    const EntryPaneNames &m_names;
    EntryFilter m_applied;
    QString m_query;
};
