#pragma once

#include "bank/movementlist.h"
#include "widgets/listpane.h"

#include <memory>

namespace Ui {
class MovementPane;
}
class QAction;

/// The tab of bank movements: list, filter boxes, order, commands and totals line. The list's pop-up menu
/// limits it to the month or the year while no period is chosen.
class MovementPane : public ListPane
{
    Q_OBJECT

public:
    explicit MovementPane(QWidget *parent = nullptr);
    ~MovementPane() override;

    QAction *addCommand, *editCommand, *removeCommand;

protected:
    QString query() const override;
    QString totalsText() const override;

private:
    void makeFilters();
    void makeCommands();
    void makePeriodMenu();
    int selectedOrTell();
    void editSelected();
    void removeSelected();
    MovementFilter filter() const;

    std::unique_ptr<Ui::MovementPane> m_ui;
};
