#pragma once

#include "app/frmlogin.h"

#include <QObject>

class QAction;
class QMainWindow;

/// Who may use the program: the login at the start, and the commands that lock the program and say whether a
/// login is required.
class AccessCommands : public QObject
{
    Q_OBJECT

public:
    explicit AccessCommands(QMainWindow &window);

    /// Asks for a login when the database, which opens, requires one. True once somebody was let in; while
    /// that is being asked, and when it was refused, false. Refusing closes the window. Throws Error.
    bool letIn();
    bool isIn() const { return m_isIn; }

private:
    bool ask(frmLogin::Kind kind);
    void lock();
    void toggleRequired();
    void showRequired();

    QMainWindow &m_window;
    QAction *m_required;
    bool m_isIn = false, m_asking = false;
};
