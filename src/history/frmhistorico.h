#pragma once

#include "history/historylist.h"
#include "history/undocommands.h"
#include "widgets/screen.h"

namespace Ui {
class frmHistorico;
}

/// The journal: who did what and when, what each step changed, and taking a step back or doing it again.
class frmHistorico : public Screen
{
    Q_OBJECT

public:
    static frmHistorico *open(QWidget *parent);
    ~frmHistorico() override;

private:
    explicit frmHistorico(QWidget *parent);
    void connectControls();
    bool refresh();
    void showDetails();
    void run(undocommands::Direction direction);
    /// The number of the selected step; 0 when none is.
    qint64 selectedStep() const;

    std::unique_ptr<Ui::frmHistorico> m_ui;
};
