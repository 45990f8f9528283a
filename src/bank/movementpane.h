#pragma once

#include "bank/movementlist.h"

#include <QWidget>

#include <memory>

namespace Ui {
class MovementPane;
}
class ListView;
class QAction;

/// The tab of bank movements: list, filter boxes, order, commands and totals line. Boxes and list behave as
/// in EntryPane.
class MovementPane : public QWidget
{
    Q_OBJECT

public:
    explicit MovementPane(QWidget *parent = nullptr);
    ~MovementPane() override;

    ListView &list();
    void restoreFilters();
    bool reload();
    void restoreLayout();
    /// Throws Error.
    void saveLayout();

    QAction *addCommand, *editCommand, *removeCommand;

Q_SIGNALS:
    /// Movements of this pane were deleted.
    void changed();

private:
    void makeCommands();
    int selectedOrTell();
    void editSelected();
    void removeSelected();
    MovementFilter filter() const;
    void showFilter(const MovementFilter &filter);
    void filterChanged();

    std::unique_ptr<Ui::MovementPane> m_ui;
    MovementFilter m_applied;
};
