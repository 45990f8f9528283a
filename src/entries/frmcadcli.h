#pragma once

#include "entries/contact.h"
#include "widgets/screen.h"

namespace Ui {
class frmCadCli;
}

/// The record dialog of clients (frmCadCli) and suppliers (frmCadForn): adds one contact or changes one.
class frmCadCli : public Screen
{
    Q_OBJECT

public:
    ~frmCadCli() override;

    /// Shows an empty dialog for a new contact.
    static frmCadCli *openNew(const ContactSide &side, const QString &caption, QWidget *parent);
    /// Shows the contact with the code; null, with a message, when it is no longer there or another file than
    /// the one with the serial `listed` is the database (0: any).
    static frmCadCli *openEdit(const ContactSide &side, const QString &code, QWidget *parent,
                               quint64 listed = 0);

private:
    frmCadCli(const ContactSide &side, const QString &code, const QString &caption, QWidget *parent);
    void refillSuggestions();
    void showKind(bool isPerson);
    void showPicture(const QString &path);
    void choosePicture();
    void showForm(const ContactForm &form);
    ContactForm form() const;
    void save();

    std::unique_ptr<Ui::frmCadCli> m_ui;
    const ContactSide &m_side;
    QString m_code; ///< empty for a new contact
};
