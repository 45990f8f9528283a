#pragma once

#include "mail/mailer.h"

#include <QDialog>

#include <memory>
#include <optional>

namespace Ui {
class frmEnviando;
}

class MailJob;

/// Shown while a message is sent: how far that has come, and a way to give it up. Closing it asks.
class frmEnviando : public QDialog
{
    Q_OBJECT

public:
    /// Shows itself; nothing is sent yet.
    explicit frmEnviando(QWidget *parent);
    ~frmEnviando() override;

    /// How a send ended, in a box over `parent`.
    static void tell(const MailOutcome &outcome, QWidget *parent);

    /// Sends; once.
    void start(const MailMessage &message, const MailAccess &access);
    /// Asks `question` while something is sent; yes gives it up. False when it shall go on.
    bool mayStop(const QString &question);
    /// Gives up, and returns when the sending has ended; a second or so.
    void stop();

    void reject() override;

Q_SIGNALS:
    /// The last signal; never while a question is open.
    void ended(const MailOutcome &outcome);

private:
    void cancel();
    void showProgress(qint64 sent, qint64 total);
    void end(const MailOutcome &outcome);

    std::unique_ptr<Ui::frmEnviando> m_ui;
    MailJob *m_job;
    std::optional<MailOutcome> m_outcome;
    bool m_started = false, m_cancelled = false, m_asking = false;
};
