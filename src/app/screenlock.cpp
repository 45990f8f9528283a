#include "app/screenlock.h"

#include "app/frmlogin.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QMessageBox>

ScreenLock::ScreenLock(QMainWindow &window) : m_window(window)
{
    ++s_locks;
    const auto actions = window.findChildren<QAction *>();
    for (QAction *action : actions)
        if (action->isEnabled()) {
            action->setEnabled(false);
            m_actions << action;
        }
    window.centralWidget()->hide();
    const QWidgetList screens = QApplication::topLevelWidgets();
    for (QWidget *screen : screens)
        if (screen != &window && screen->isVisible())
            hide(screen);
    qApp->installEventFilter(this);
}

ScreenLock::~ScreenLock()
{
    qApp->removeEventFilter(this);
    --s_locks;
    if (!m_window.isVisible()) // the program ends
        return;
    m_window.centralWidget()->show();
    for (const auto &action : m_actions)
        if (action)
            action->setEnabled(true);
    for (const auto &screen : m_screens)
        if (screen)
            screen->show();
}

void ScreenLock::hide(QWidget *screen)
{
    screen->hide();
    m_screens << screen;
}

bool ScreenLock::eventFilter(QObject *object, QEvent *event)
{
    auto *screen = event->type() == QEvent::Show ? qobject_cast<QDialog *>(object) : nullptr;
    if (screen && !qobject_cast<frmLogin *>(screen) && !qobject_cast<QMessageBox *>(screen))
        QMetaObject::invokeMethod(
            this,
            [this, shown = QPointer<QWidget>(screen)] {
                if (shown && shown->isVisible())
                    hide(shown);
            },
            Qt::QueuedConnection);
    return QObject::eventFilter(object, event);
}
