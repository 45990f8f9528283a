#include "widgets/frmcarregando.h"

#include "ui_frmcarregando.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

namespace {

constexpr qint64 betweenChecks = 20; ///< milliseconds, while the screen is not shown
constexpr qint64 repaints = 50;

} // namespace

frmCarregando::frmCarregando(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      m_ui(std::make_unique<Ui::frmCarregando>())
{
    m_ui->setupUi(this);
    m_ui->cmdcancelar->hide();
    connect(m_ui->cmdcancelar, &QPushButton::clicked, this, &QDialog::reject);
}

frmCarregando::~frmCarregando() = default;

void frmCarregando::setTexts(const QString &title, const QString &text)
{
    m_ui->lbltitulo->setText(title);
    m_ui->lblmensagem->setText(text);
}

void frmCarregando::setRange(qint64 total)
{
    m_ui->pbprogresso->setRange(0, int(std::min<qint64>(total, std::numeric_limits<int>::max())));
}

void frmCarregando::setDone(qint64 done)
{
    m_ui->pbprogresso->setValue(int(std::clamp<qint64>(done, 0, m_ui->pbprogresso->maximum())));
}

void frmCarregando::offerCancel()
{
    m_ui->cmdcancelar->show();
}

void frmCarregando::reject()
{
    m_cancelled = !m_ui->cmdcancelar->isHidden();
}

WaitProgress::WaitProgress(QWidget *parent, QString title, QString text, Cancel cancel)
    : m_parent(parent), m_title(std::move(title)), m_text(std::move(text)), m_cancel(cancel)
{
}

WaitProgress::~WaitProgress()
{
    delete m_screen;
}

void WaitProgress::begin(std::function<qint64()> total)
{
    m_total = std::move(total);
    if (!m_clock.isValid()) // several short pieces of work make one long one
        m_clock.start();
    m_step = 1;
    m_nextCheck = 1;
    if (m_screen)
        show();
}

void WaitProgress::check(qint64 done)
{
    if (!m_screen) {
        // Rows may take microseconds or tenths of a second: the pace so far says when to look at the clock
        // again.
        const qint64 elapsed = m_clock.elapsed();
        m_step = elapsed < betweenChecks ? m_step * 2 : std::max<qint64>(1, done * betweenChecks / elapsed);
        if (elapsed >= frmCarregando::tooShortToSee)
            show();
    }
    m_nextCheck = done + m_step;
    if (m_screen) {
        m_screen->setDone(done);
        const bool mayCancel = m_cancel == Cancel::Allowed;
        QCoreApplication::processEvents(mayCancel ? QEventLoop::AllEvents
                                                  : QEventLoop::ExcludeUserInputEvents);
        if (mayCancel && (!m_screen || m_screen->isCancelled()))
            throw Cancelled();
    }
}

void WaitProgress::show()
{
    const qint64 total = m_total ? m_total() : 0;
    if (!m_screen) {
        m_screen = new frmCarregando(m_parent ? m_parent->window() : nullptr);
        m_screen->setTexts(m_title, m_text);
        m_screen->setWindowModality(Qt::ApplicationModal);
        if (m_cancel == Cancel::Allowed)
            m_screen->offerCancel();
    }
    m_screen->setRange(total);
    if (total > 0)
        m_step = std::max<qint64>(1, total / repaints);
    m_screen->show();
}
