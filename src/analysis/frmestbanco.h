#pragma once

#include "analysis/bankbook.h"
#include "widgets/screen.h"

namespace Ui {
class frmestbanco;
}
struct Report;

/// The bank statistics: every account's balances and what moved it, and for a range a line per day.
class frmestbanco : public Screen
{
    Q_OBJECT

public:
    /// Null when the books cannot be read, after a message, or reading was given up.
    static frmestbanco *open(const BookPeriod &period, QWidget *parent);
    ~frmestbanco() override;

private:
    frmestbanco(const BookPeriod &period, QWidget *parent);
    bool read();
    void showDays();
    Report report() const;

    std::unique_ptr<Ui::frmestbanco> m_ui;
    BookPeriod m_period;
    std::vector<AccountBook> m_books;
};
