#pragma once

#include "entries/contact.h"
#include "widgets/screen.h"

namespace Ui {
class frmCliente;
}
class ListFeed;
struct ExportTexts;
struct Report;

/// The list screen of clients (frmCliente) and suppliers (frmFornecedor): search, sort, export, e-mail and
/// address labels.
class frmCliente : public Screen
{
    Q_OBJECT

public:
    /// Shows the list; a list of the side that `parent` shows already comes to the front. Null, with a
    /// message, when the contacts cannot be read.
    static frmCliente *open(const ContactSide &side, QWidget *parent);
    ~frmCliente() override;

private:
    frmCliente(const ContactSide &side, QWidget *parent);
    void connectCommands();
    ContactFilter filter() const;
    bool refresh();
    /// The code of the selected contact; empty, with a message, when there is none.
    QString selectedOrTell();
    void editSelected();
    void removeSelected();
    void openHistory();
    void writeEmail();
    void mergeMail();
    Report report() const;
    ExportTexts exportTexts() const;

    std::unique_ptr<Ui::frmCliente> m_ui;
    const ContactSide &m_side;
    ListFeed *m_feed;
};
