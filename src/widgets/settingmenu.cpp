#include "widgets/settingmenu.h"

#include "data/changes.h"
#include "widgets/messages.h"

#include <QAction>
#include <QActionGroup>
#include <QWidget>

void settingmenu::add(QWidget *list, const settings::Key &key, const std::vector<Choice> &choices)
{
    list->setContextMenuPolicy(Qt::ActionsContextMenu);
    if (!list->actions().isEmpty()) {
        auto *separator = new QAction(list);
        separator->setSeparator(true);
        list->addAction(separator);
    }
    auto *group = new QActionGroup(list);
    for (const Choice &choice : choices) {
        QAction *action = group->addAction(choice.text);
        action->setObjectName(choice.name);
        action->setCheckable(true);
        const auto check = [action, key, value = choice.value] {
            action->setChecked(settings::value(key) == value);
        };
        check();
        QObject::connect(&Changes::instance(), &Changes::changed, action, check);
        list->addAction(action);
        QObject::connect(action, &QAction::triggered, list, [list, key, value = choice.value] {
            messages::guarded(list->window(), messages::generalPrefix,
                              [&] { settings::setValue(key, value); });
            Changes::announce(Subject::Settings); // also after a failure: the marks show what is stored
        });
    }
}
