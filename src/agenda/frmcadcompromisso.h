#pragma once

#include "widgets/screen.h"

#include <QDate>

namespace Ui {
class frmCadCompromisso;
}

/// A new appointment, or all but the title of one that is there.
class frmCadCompromisso : public Screen
{
    Q_OBJECT

public:
    /// On `date`, or today.
    static frmCadCompromisso *openNew(QWidget *parent, QDate date = {});
    /// `listed` is the file() of the list that named it.
    static frmCadCompromisso *openEdit(const QString &title, QWidget *parent, quint64 listed);
    ~frmCadCompromisso() override;

private:
    explicit frmCadCompromisso(QWidget *parent);
    void save();

    std::unique_ptr<Ui::frmCadCompromisso> m_ui;
};
