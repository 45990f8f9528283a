#pragma once

#include "analysis/dialogreports.h"
#include "widgets/screen.h"

class DialogDates;
class QComboBox;
class QRadioButton;

namespace Ui {
class frmConfRelatorio2;
}

/// The reports of one client, supplier, cost centre, profit centre or payment method.
class frmConfRelatorio2 : public Screen
{
    Q_OBJECT

public:
    ~frmConfRelatorio2() override;

    /// Ready to choose a name of one kind. Null, after a message, when the names cannot be read.
    static frmConfRelatorio2 *open(dialogreports::Choice kind, QWidget *parent);

private:
    explicit frmConfRelatorio2(QWidget *parent);
    void fill(Connection &connection);
    void showReport(std::size_t at);

    std::unique_ptr<Ui::frmConfRelatorio2> m_ui;
    DialogDates *m_dates;
    std::vector<QComboBox *> m_names; ///< of the commands, in their order
    QRadioButton *m_received;
};
