#pragma once

#include "mail/mailer.h"

#include <QObject>

#include <atomic>
#include <memory>

class QThread;

/// A message on its way, in a thread of its own. Signals come in the thread to which the object belongs.
class MailJob : public QObject
{
    Q_OBJECT

public:
    explicit MailJob(QObject *parent = nullptr);
    /// Gives up what is under way, and waits for it, a second at most.
    ~MailJob() override;

    /// Once.
    void start(const MailMessage &message, const MailAccess &access);
    /// ended() follows about a second later at most.
    void cancel() { m_cancelled = true; }

Q_SIGNALS:
    void progressed(qint64 sent, qint64 total);
    /// The last signal.
    void ended(const MailOutcome &outcome);

private:
    bool tell(qint64 sent, qint64 total);

    std::unique_ptr<QThread> m_thread;
    std::atomic<bool> m_cancelled = false;
    qint64 m_told = -1; ///< in the thread: hundredths of the message that were told last
};
