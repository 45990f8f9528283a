#include "widgets/threadwork.h"

#include "widgets/frmcarregando.h"
#include "widgets/messages.h"

#include <QEventLoop>
#include <QThread>
#include <QTimer>

#include <atomic>
#include <exception>

namespace {

constexpr int betweenLooks = 50; ///< milliseconds

/// What the thread tells and is told.
class SharedProgress : public Progress
{
public:
    void begin(std::function<qint64()> total) override { m_total = total(); }
    void advance(qint64 done) override
    {
        m_done = done;
        if (m_cancelled)
            throw Cancelled();
    }
    void cancel() { m_cancelled = true; }
    qint64 total() const { return m_total; }
    qint64 done() const { return m_done; }

private:
    std::atomic<qint64> m_total = 0, m_done = 0;
    std::atomic<bool> m_cancelled = false;
};

void showUntilDone(QEventLoop &loop, QWidget *over, const QString &title, const QString &text,
                   SharedProgress &progress)
{
    frmCarregando screen(over ? over->window() : nullptr);
    screen.setTexts(title, text);
    screen.setWindowModality(Qt::ApplicationModal);
    screen.offerCancel();
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &screen, [&] {
        screen.setRange(progress.total());
        screen.setDone(progress.done());
        if (screen.isCancelled())
            progress.cancel();
    });
    look.start(betweenLooks);
    screen.show();
    loop.exec();
}

} // namespace

bool threadwork::run(QWidget *over, const QString &title, const QString &text,
                     const std::function<void(Progress &)> &work)
{
    SharedProgress progress;
    std::exception_ptr failure;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        try {
            work(progress);
        } catch (...) {
            failure = std::current_exception();
        }
    }));
    QEventLoop loop;
    QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    QTimer::singleShot(frmCarregando::tooShortToSee, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    if (!thread->isFinished())
        showUntilDone(loop, over, title, text, progress);
    thread->wait();
    try {
        return messages::guarded(over, messages::generalPrefix, [&] {
            if (failure)
                std::rethrow_exception(failure);
        });
    } catch (const Cancelled &) {
        return false;
    }
}
