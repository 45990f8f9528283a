#pragma once

#include "entries/entryfilter.h"
#include "reports/modimpressao.h"
#include "widgets/listpane.h"

#include <memory>

namespace Ui {
class EntryPane;
}
class QAction;
class QComboBox;

/// Names of the controls of one entry pane, and what they are called on its side.
struct EntryPaneNames
{
    QString basedOn, status, account, centre, contact, period; ///< filter boxes
    QString list, totals;
    QString add, edit, remove, settle, installments; ///< commands
    QString history, months, goals;                  ///< commands that look back and ahead
    QString receipt;                                 ///< command: a receipt of the selected entry
    QString exportSuffix;                            ///< ends the names of the print and export commands
    QString reportTitle;
    modimpressao::ListKind pages; ///< how the list is printed
    QString centreLabel, contactLabel, emptyText;
};

const EntryPaneNames &payablePaneNames();
const EntryPaneNames &receivablePaneNames();

/// One tab of the main window: the payables or the receivables with filter boxes, commands and totals line.
class EntryPane : public ListPane
{
    Q_OBJECT

public:
    EntryPane(const Side &side, const EntryPaneNames &names, QWidget *parent = nullptr);
    ~EntryPane() override;

    const Side &side() const { return m_side; }

    /// The rows bear signs, or none, as the settings say.
    void applySigns();

    QAction *addCommand, *editCommand, *removeCommand, *settleCommand, *installmentsCommand;
    QAction *historyCommand, *receiptCommand, *monthsCommand, *goalsCommand;

protected:
    QString query() const override;
    QString totalsText() const override;
    /// The accounts, centres and contacts that the entries name.
    void refillFilterBoxes() override;
    bool changesNames(const Change &change) override;

private:
    void nameControls();
    void makeFilters();
    void makeCommands();
    Report report();
    EntryFilter filter() const;
    /// The boxes that offer what the rows name, and the columns that they name it in.
    std::vector<std::pair<QComboBox *, QString>> nameBoxes() const;

    std::unique_ptr<Ui::EntryPane> m_ui;
    const Side &m_side;
    const EntryPaneNames &m_names;
};
