#pragma once

#include <QObject>

class QAction;
class QMainWindow;

namespace settings {
struct Key;
}

/// The commands of the main window that switch a setting on and off.
class SwitchCommands : public QObject
{
    Q_OBJECT

public:
    explicit SwitchCommands(QMainWindow &window);

    /// The marks say what is stored.
    void show();

private:
    void store(QAction *action, const settings::Key &key, bool on);
    void switchAutostart(bool on);

    QMainWindow &m_window;
};
