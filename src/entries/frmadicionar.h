#pragma once

#include "entries/entry.h"
#include "entries/entryscreen.h"

#include <memory>

namespace Ui {
class frmAdicionar;
}

/// The entry screen: records one payable or receivable, or changes one. It announces the side's Subject when
/// it closes after saving.
class frmAdicionar : public EntryScreen
{
    Q_OBJECT

public:
    /// Shows an empty screen for a new entry.
    static frmAdicionar *openNew(const Side &side, QWidget *parent);
    /// Shows the entry with the code; null, with a message, when it is no longer there.
    static frmAdicionar *openEdit(const Side &side, const QString &code, QWidget *parent);
    ~frmAdicionar() override;

private:
    frmAdicionar(const Side &side, const QString &code, QWidget *parent);
    void connectControls();
    void showForm(const EntryForm &form);
    EntryForm form() const;
    void showUnitCost(bool timesQuantity);
    void save();
    void prepareNext();

    std::unique_ptr<Ui::frmAdicionar> m_ui;
    QString m_code; ///< empty for a new entry
    bool m_unannounced = false;
};
