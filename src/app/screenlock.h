#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class QAction;
class QMainWindow;
class QWidget;

/// While it lives, the program shows nothing of the business and takes no input: the main window is empty and
/// its commands are off, every other window is hidden, also one that would open meanwhile. A login screen
/// over the main window, with its messages, is all there is. Afterwards everything is as it was.
class ScreenLock : public QObject
{
    Q_OBJECT

public:
    explicit ScreenLock(QMainWindow &window);
    ~ScreenLock() override;

    static bool isLocked() { return s_locks > 0; }

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void hide(QWidget *screen);

    QMainWindow &m_window;
    QList<QPointer<QAction>> m_actions; ///< that were enabled
    QList<QPointer<QWidget>> m_screens; ///< that were shown, or would have been
    static inline int s_locks = 0;
};
