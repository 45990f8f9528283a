#pragma once

#include "mail/mailreport.h"
#include "settings/settings.h"
#include "widgets/screen.h"

#include <QPointer>

namespace Ui {
class frmViaEmail;
}

class ListView;
class frmEnviando;

/// Sends the user, to his own address, a report as a file or statistics. Every choice is kept.
class frmViaEmail : public Screen
{
    Q_OBJECT

public:
    enum Tab { Report, Statistics };

    /// One screen over `parent`; it is brought to the front when it is shown already.
    static frmViaEmail *open(Tab tab, QWidget *parent);
    ~frmViaEmail() override;

    /// Before `window` closes: asks while a message is being sent. False when that shall go on; otherwise
    /// nothing is being sent any more.
    static bool mayClose(QWidget *window);

    void reject() override;

private:
    explicit frmViaEmail(QWidget *parent);
    void showChoices();
    void keepChoices();
    void keep(const settings::Key &key, const QString &value);

    MailSender sender() const;
    MailChoice reportChoice() const;
    MailChoice statisticsChoice() const;
    ListView *list(mailreport::Table table) const;

    void sendReport();
    void sendStatistics();
    /// Tells what is missing; keeps who sends to where.
    bool accepts(const MailChoice &choice);
    void send(const MailMessage &message, const QString &title, const QString &text);
    void tell(const MailOutcome &outcome);

    std::unique_ptr<Ui::frmViaEmail> m_ui;
    QPointer<frmEnviando> m_sending;
    bool m_closing = false;
};
