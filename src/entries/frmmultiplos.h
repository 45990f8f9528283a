#pragma once

#include "entries/entryscreen.h"
#include "entries/installments.h"

namespace Ui {
class frmMultiplos;
}

/// The installments screen: records a run of payables or receivables that differ in due date and number only.
class frmMultiplos : public EntryScreen
{
    Q_OBJECT

public:
    static frmMultiplos *openFor(const Side &side, QWidget *parent);
    ~frmMultiplos() override;

private:
    frmMultiplos(const Side &side, QWidget *parent);
    InstallmentsForm form() const;
    void save();

    std::unique_ptr<Ui::frmMultiplos> m_ui;
};
