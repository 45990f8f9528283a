#include "widgets/slicedwork.h"

#include "widgets/frmcarregando.h"

#include <utility>

namespace {

int firstSlice = 40;                   ///< milliseconds; work that takes no longer is done at once
int slice = 30;                        ///< milliseconds
constexpr qint64 tooShortToTell = 400; ///< milliseconds

} // namespace

SlicedWork::SlicedWork(QWidget *over) : m_over(over)
{
    m_next.setSingleShot(true);
    connect(&m_next, &QTimer::timeout, this, [this] { goOn(slice); });
}

SlicedWork::~SlicedWork()
{
    cancel();
}

void SlicedWork::setSlices(int first, int following)
{
    firstSlice = first;
    slice = following;
}

void SlicedWork::start(Task task)
{
    cancel();
    m_task = std::move(task);
    m_clock.start();
    work(firstSlice);
}

void SlicedWork::work(int milliseconds)
{
    try {
        if (!m_task.run(QDeadlineTimer(milliseconds))) {
            if (m_task.interrupted)
                m_task.interrupted();
            if (m_clock.elapsed() > tooShortToTell)
                showWait();
            m_next.start();
            return;
        }
    } catch (const Error &) {
        cancel();
        throw;
    }
    const Task finished = std::exchange(m_task, {});
    cancel();
    finished.done();
}

void SlicedWork::goOn(int milliseconds)
{
    const auto failed = m_task.failed;
    try {
        work(milliseconds);
    } catch (const Error &error) {
        if (failed)
            failed(error);
    }
}

void SlicedWork::finish()
{
    while (isRunning())
        goOn(slice);
}

void SlicedWork::cancel()
{
    m_next.stop();
    m_task = {};
    delete m_wait;
}

void SlicedWork::showWait()
{
    if (!m_wait) {
        m_wait = new frmCarregando(m_over->window());
        m_wait->setTexts(m_task.title, m_task.text);
        m_wait->setAttribute(Qt::WA_ShowWithoutActivating);
        m_wait->setRange(m_task.total());
        m_wait->show();
    }
    m_wait->setDone(m_task.progress());
}
