#pragma once

#include "entries/contact.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmCadCli;
}

/// The record dialog of clients (frmCadCli) and suppliers (frmCadForn): adds one contact or changes one.
/// Announces the side's Subject after saving.
class frmCadCli : public QDialog
{
    Q_OBJECT

public:
    ~frmCadCli() override;

    /// Shows an empty dialog for a new contact.
    static frmCadCli *openNew(const ContactSide &side, const QString &caption, QWidget *parent);
    /// Shows the contact with the code; null, with a message, when it is no longer there.
    static frmCadCli *openEdit(const ContactSide &side, const QString &code, QWidget *parent);

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
