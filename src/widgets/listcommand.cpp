#include "widgets/listcommand.h"

#include "widgets/listview.h"

#include <QAction>
#include <QBoxLayout>
#include <QToolButton>

QAction *listcommand::addButton(QBoxLayout *bar, ListView &list, const QString &name, const Look &look)
{
    QWidget *pane = bar->parentWidget();
    auto *action = new QAction(QIcon::fromTheme(look.icon), look.text, pane);
    action->setObjectName(name);
    action->setStatusTip(look.statusTip);
    action->setToolTip(look.statusTip);
    auto *button = new QToolButton(pane);
    button->setObjectName(name);
    button->setDefaultAction(action);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    bar->addWidget(button);
    QWidget::setTabOrder(button, &list); // the list comes after all buttons of its bar
    return action;
}

QAction *listcommand::add(QBoxLayout *bar, ListView &list, const QString &name, const Look &look)
{
    QAction *action = addButton(bar, list, name, look);
    list.addAction(action);
    list.setContextMenuPolicy(Qt::ActionsContextMenu);
    return action;
}
