#include "mail/mailjob.h"

#include <QThread>

MailJob::MailJob(QObject *parent) : QObject(parent)
{
}

MailJob::~MailJob()
{
    cancel();
    if (m_thread)
        m_thread->wait();
}

void MailJob::start(const MailMessage &message, const MailAccess &access)
{
    m_thread.reset(QThread::create([this, message, access, limits = mailer::limits()] {
        const MailOutcome outcome = mailer::send(
            message, access, limits, [this](qint64 sent, qint64 total) { return tell(sent, total); });
        QMetaObject::invokeMethod(
            this, [this, outcome] { Q_EMIT ended(outcome); }, Qt::QueuedConnection);
    }));
    m_thread->start();
}

bool MailJob::tell(qint64 sent, qint64 total)
{
    const qint64 hundredths = total > 0 ? sent * 100 / total : 0;
    if (hundredths != m_told) {
        m_told = hundredths;
        QMetaObject::invokeMethod(
            this, [this, sent, total] { Q_EMIT progressed(sent, total); }, Qt::QueuedConnection);
    }
    return !m_cancelled;
}
