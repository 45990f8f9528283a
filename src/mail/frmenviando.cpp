#include "mail/frmenviando.h"
#include "ui_frmenviando.h"

#include "mail/mailjob.h"
#include "widgets/messages.h"

#include <QEventLoop>
#include <QPointer>

using namespace Qt::StringLiterals;

frmEnviando::frmEnviando(QWidget *parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmEnviando>()), m_job(new MailJob(this))
{
    m_ui->setupUi(this);
    m_ui->lblmensagem->setText(u"Preparando o envio..."_s);
    connect(m_ui->cmdcancelar, &QPushButton::clicked, this, &frmEnviando::cancel);
    connect(m_job, &MailJob::progressed, this, &frmEnviando::showProgress);
    connect(m_job, &MailJob::ended, this, &frmEnviando::end);
    show();
}

frmEnviando::~frmEnviando() = default;

void frmEnviando::tell(const MailOutcome &outcome, QWidget *parent)
{
    const QString late = u"O servidor já tinha recebido toda a mensagem, e ela ainda pode chegar."_s;
    if (outcome.end == MailOutcome::End::Sent)
        messages::information(parent, u"Via e-mail"_s,
                              u"O e-mail foi enviado com sucesso para o endereço especificado!"_s);
    else if (outcome.end == MailOutcome::End::Cancelled)
        messages::information(parent, u"Via e-mail"_s,
                              u"O envio foi cancelado. "_s + (outcome.mayArrive ? late : QString()));
    else
        messages::critical(
            parent, u"Erro"_s,
            u"Não foi possível enviaro e-mail verifique se os dados foram digitados corretamente!"_s,
            outcome.reason + (outcome.mayArrive ? u' ' + late : QString()));
}

void frmEnviando::start(const MailMessage &message, const MailAccess &access)
{
    m_started = !m_cancelled;
    if (!m_started) {
        end({MailOutcome::End::Cancelled});
        return;
    }
    m_ui->lblmensagem->setText(u"Conectando ao servidor..."_s);
    m_job->start(message, access);
}

bool frmEnviando::mayStop(const QString &question)
{
    if (m_outcome || m_cancelled)
        return true;
    m_asking = true;
    const QPointer<frmEnviando> self = this;
    const bool stops = messages::question(this, windowTitle(), question);
    if (!self)
        return true;
    m_asking = false;
    if (m_outcome)
        Q_EMIT ended(MailOutcome(*m_outcome));
    else if (stops)
        cancel();
    return stops;
}

void frmEnviando::stop()
{
    cancel();
    if (m_outcome || !m_started)
        return;
    QEventLoop loop;
    connect(m_job, &MailJob::ended, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void frmEnviando::reject()
{
    mayStop(u"O e-mail ainda está sendo enviado. Deseja cancelar o envio?"_s);
}

void frmEnviando::cancel()
{
    m_cancelled = true;
    m_job->cancel();
    m_ui->cmdcancelar->setEnabled(false);
    m_ui->lblmensagem->setText(u"Cancelando o envio..."_s);
}

void frmEnviando::showProgress(qint64 sent, qint64 total)
{
    if (m_cancelled || total <= 0)
        return;
    m_ui->pbprogresso->setRange(0, 100);
    m_ui->pbprogresso->setValue(int(sent * 100 / total));
    m_ui->lblmensagem->setText(sent < total ? u"Enviando o e-mail..."_s
                                            : u"Aguardando a confirmação do servidor..."_s);
}

void frmEnviando::end(const MailOutcome &outcome)
{
    m_outcome = outcome;
    if (!m_asking)
        Q_EMIT ended(outcome);
}
