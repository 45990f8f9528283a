#pragma once

#include "widgets/screen.h"

#include <QSet>

namespace Ui {
class frmCalendario;
}

/// A calendar in which the days with appointments stand out, and the appointments of the chosen day.
class frmCalendario : public Screen
{
    Q_OBJECT

public:
    static frmCalendario *open(QWidget *parent);
    ~frmCalendario() override;

private:
    explicit frmCalendario(QWidget *parent);
    bool read();
    void editSelected(int row);

    std::unique_ptr<Ui::frmCalendario> m_ui;
    QSet<QDate> m_marked;
};
