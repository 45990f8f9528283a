#include "app/accesscommands.h"

#include "app/frmlogin.h"
#include "app/screenlock.h"
#include "data/users.h"
#include "settings/database.h"
#include "widgets/messages.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

AccessCommands::AccessCommands(QMainWindow &window)
    : QObject(&window), m_window(window), m_required(window.findChild<QAction *>(u"mnulogininiciar"_s))
{
    connect(window.findChild<QAction *>(u"mnubloquearsoft"_s), &QAction::triggered, this,
            &AccessCommands::lock);
    connect(m_required, &QAction::triggered, this, &AccessCommands::toggleRequired);
    connect(window.findChild<QMenu *>(u"mnugerenciadorlogin"_s), &QMenu::aboutToShow, this,
            &AccessCommands::showRequired);
}

bool AccessCommands::letIn()
{
    if (m_isIn || m_asking)
        return m_isIn;
    const QScopedValueRollback asking(m_asking, true);
    const bool isRequired = users::isLoginRequired(*openDatabase());
    m_required->setChecked(isRequired);
    m_isIn = !isRequired || ask(frmLogin::Kind::Start);
    return m_isIn;
}

/// True when somebody was let in; otherwise the program is on its way out.
bool AccessCommands::ask(frmLogin::Kind kind)
{
    const ScreenLock lock(m_window);
    const bool isIn = frmLogin::ask(kind, &m_window);
    if (!isIn)
        m_window.close();
    return isIn;
}

void AccessCommands::lock()
{
    if (!ScreenLock::isLocked())
        ask(frmLogin::Kind::Unlock);
}

/// What the file says counts, not the mark: another machine may have changed it.
void AccessCommands::toggleRequired()
{
    messages::guarded(&m_window, messages::generalPrefix, [] {
        const std::shared_ptr<Connection> connection = openDatabase();
        users::setLoginRequired(*connection, !users::isLoginRequired(*connection));
    });
    showRequired();
}

void AccessCommands::showRequired()
{
    try {
        m_required->setChecked(users::isLoginRequired(*openDatabase()));
    } catch (const Error &) {
        m_required->setChecked(false); // the lists tell that there is no database
    }
}
