#pragma once

#include "entries/contacthistory.h"
#include "reports/report.h"
#include "widgets/screen.h"

class ListFeed;

namespace Ui {
class frmFinCli;
}

/// The financial history of one client (frmFinCli) or supplier (frmFinForn): every entry, with totals.
class frmFinCli : public Screen
{
    Q_OBJECT

public:
    /// Shows the screen, or brings it to the front; with a contact, of whom one of name and code may be
    /// empty, the contact's entries too. Null, with a message, when the contacts cannot be read.
    static frmFinCli *open(const HistorySide &side, QWidget *parent,
                           const contacthistory::Contact &contact = {});
    ~frmFinCli() override;

private:
    frmFinCli(const HistorySide &side, QWidget *parent);
    void connectControls();
    bool fillNames();
    void choose(const contacthistory::Contact &contact);
    void nameChosen();
    void verify();
    bool reload();
    QString chosenCode() const;
    contacthistory::Shown shownStatus() const;
    Report report(const QString &heading) const;

    std::unique_ptr<Ui::frmFinCli> m_ui;
    const HistorySide &m_side;
    ListFeed *m_feed;
    // Of the list, which stays while another contact is being chosen.
    contacthistory::Contact m_contact;
    contacthistory::Shown m_shown = contacthistory::Shown::All;
};
