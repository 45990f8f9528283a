#pragma once

#include "entries/entry.h"
#include "entries/entryscreen.h"

#include <vector>

namespace Ui {
class frmAdicionar;
}

/// The entry screen: records one payable or receivable, or changes one. The rest of the program hears of what
/// was saved when it closes; closing it without saving has the side's lists read again, too.
class frmAdicionar : public EntryScreen
{
    Q_OBJECT

public:
    /// Shows an empty screen for a new entry.
    static frmAdicionar *openNew(const Side &side, QWidget *parent);
    /// Shows the entry with the code; null, with a message, when it is no longer there or another file than
    /// the one with the serial `listed` is the database (0: any).
    static frmAdicionar *openEdit(const Side &side, const QString &code, QWidget *parent, quint64 listed = 0);
    ~frmAdicionar() override;

private:
    frmAdicionar(const Side &side, const QString &code, QWidget *parent);
    void connectControls();
    void showForm(const EntryForm &form);
    EntryForm form() const;
    void showUnitCost(bool timesQuantity);
    bool warnOfLowStock(const EntryForm &typed);
    void save();
    void prepareNext();
    void announce();

    std::unique_ptr<Ui::frmAdicionar> m_ui;
    QString m_code;              ///< empty for a new entry
    std::vector<Change> m_saved; ///< not announced yet
};
