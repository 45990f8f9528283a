#pragma once

#include "data/error.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>

class QWidget;
class frmCarregando;

/// Long work on the user-interface thread, done in slices between which the window answers. When it is long
/// enough to see, a wait screen that leaves the window its input tells how far it has come.
class SlicedWork : public QObject
{
    Q_OBJECT

public:
    struct Task
    {
        QString title, text; ///< of the wait screen
        /// Works until it is done (true) or the time is up; throws Error.
        std::function<bool(const QDeadlineTimer &until)> run;
        std::function<void()> interrupted; ///< after each slice that is not the last
        std::function<void()> done;
        std::function<void(const Error &)> failed; ///< in a slice after the first
        std::function<qint64()> total, progress;   ///< in the same unit, of the wait screen's bar
    };

    /// `over` is a widget of the window that waits.
    explicit SlicedWork(QWidget *over);
    ~SlicedWork() override;

    /// Does a first slice, and the rest later when that is not enough. Work that was under way is given up.
    /// Throws what the first slice throws; then nothing is under way.
    void start(Task task);
    /// Does all that is left of it.
    void finish();
    void cancel();
    bool isRunning() const { return bool(m_task.run); }

    /// How long the first slice and the following ones last, in milliseconds; for tests.
    static void setSlices(int first, int following);

private:
    void work(int milliseconds);
    void goOn(int milliseconds);
    void showWait();

    QWidget *m_over;
    Task m_task;
    QTimer m_next;
    QElapsedTimer m_clock;
    QPointer<frmCarregando> m_wait;
};
