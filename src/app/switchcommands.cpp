#include "app/switchcommands.h"

#include "data/changes.h"
#include "settings/autostart.h"
#include "settings/settings.h"
#include "settings/tips.h"
#include "widgets/messages.h"

#include <QAction>
#include <QMainWindow>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

const QString startWithSystem = u"mnuiniciar"_s;

struct Switch
{
    QString action;
    const settings::Key &key;
};

const Switch switches[] = {{u"mnuexibirprincipal"_s, settings::refreshMainWindow},
                           {u"mnuatualizarsaldo"_s, settings::updateBalances},
                           {u"mnumostrardicadia"_s, settings::tipOfTheDay},
                           {u"mnualertavenc"_s, settings::dueAlerts},
                           {u"mnusinais"_s, settings::rowSigns},
                           {startWithSystem, settings::startWithSystem}};

bool isMarked(const settings::Key &key)
{
    return key.name == settings::tipOfTheDay.name ? tips::areShown() : settings::isOn(key);
}

} // namespace

SwitchCommands::SwitchCommands(QMainWindow &window) : QObject(&window), m_window(window)
{
    for (const Switch &entry : switches) {
        auto *action = window.findChild<QAction *>(entry.action);
        Q_ASSERT(action);
        connect(action, &QAction::toggled, this, [this, action, &entry](bool on) {
            entry.action == startWithSystem ? switchAutostart(on) : store(action, entry.key, on);
        });
    }
}

void SwitchCommands::show()
{
    for (const Switch &entry : switches) {
        auto *action = m_window.findChild<QAction *>(entry.action);
        const QSignalBlocker blocker(action);
        action->setChecked(isMarked(entry.key));
    }
}

void SwitchCommands::store(QAction *action, const settings::Key &key, bool on)
{
    if (messages::guarded(&m_window, messages::generalPrefix,
                          [&] { settings::setValue(key, on ? u"1"_s : u"0"_s); })) {
        Changes::announce(Subject::Settings);
        return;
    }
    const QSignalBlocker blocker(action);
    action->setChecked(!on);
}

void SwitchCommands::switchAutostart(bool on)
{
    messages::guarded(&m_window, messages::generalPrefix, [&] {
        if (const QString problem = autostart::setEnabled(on); !problem.isEmpty())
            messages::exclamation(&m_window, u"Iniciar com o sistema"_s, problem);
    });
    show(); // what is stored, and so it stands in the other marks, too
}
