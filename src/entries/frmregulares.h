#pragma once

#include "entries/side.h"
#include "widgets/screen.h"

namespace Ui {
class frmRegulares;
}

/// The rules for entries that come again and again.
class frmRegulares : public Screen
{
    Q_OBJECT

public:
    static frmRegulares *open(QWidget *parent);
    ~frmRegulares() override;

private:
    explicit frmRegulares(QWidget *parent);
    void connectControls();
    bool refresh();
    /// The code of the selected rule; 0, after a message, when none is.
    qint64 selectedOrTell();
    void edit();
    void remove();

    std::unique_ptr<Ui::frmRegulares> m_ui;
};
