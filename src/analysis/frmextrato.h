#pragma once

#include "analysis/statement.h"
#include "widgets/screen.h"

namespace Ui {
class frmextrato;
}
struct Report;

/// The statement of one account. The balance runs down the rows in whatever order they are shown.
class frmextrato : public Screen
{
    Q_OBJECT

public:
    /// Null when the statement cannot be read, after a message, or reading was given up.
    static frmextrato *open(const StatementChoice &choice, QWidget *parent);
    ~frmextrato() override;

private:
    frmextrato(const StatementChoice &choice, QWidget *parent);
    bool read();
    void showRows(int column, Qt::SortOrder order);
    Report report() const;

    std::unique_ptr<Ui::frmextrato> m_ui;
    StatementChoice m_choice;
    AccountStatement m_statement;
};
