#include "mail/frmviaemail.h"
#include "ui_frmviaemail.h"

#include "entries/opencommands.h"
#include "mail/frmconfloginemail.h"
#include "mail/frmenviando.h"
#include "settings/programfolder.h"
#include "widgets/barprogress.h"
#include "widgets/frmcarregando.h"
#include "widgets/messages.h"
#include "widgets/reading.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView preparing = u"Preparando o e-mail";

} // namespace

frmViaEmail::frmViaEmail(QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmViaEmail>())
{
    m_ui->setupUi(this);
    prepare();
    for (const auto table : mailreport::tables) {
        list(table)->setTable(std::make_shared<StoredTable>(mailreport::columns(table)));
        list(table)->setEmptyText(u"Aqui aparece o que foi enviado"_s);
        opencommands::openOnActivation(*list(table));
    }
    showChoices();
    keepChoices();
    connect(m_ui->cmdconflogin, &QPushButton::clicked, this, [this] { frmConfLoginEmail::open(this); });
    connect(m_ui->cmdaviso, &QPushButton::clicked, this,
            [this] { messages::information(this, u"Aviso"_s, mailreport::advice.toString()); });
    connect(m_ui->cmdenviarret, &QPushButton::clicked, this, &frmViaEmail::sendReport);
    connect(m_ui->cmdenviar2, &QPushButton::clicked, this, &frmViaEmail::sendStatistics);
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

frmViaEmail::~frmViaEmail() = default;

frmViaEmail *frmViaEmail::open(Tab tab, QWidget *parent)
{
    auto *screen = raised<frmViaEmail>(parent, u"frmViaEmail"_s);
    if (!screen)
        screen = shown(std::unique_ptr<frmViaEmail>(new frmViaEmail(parent)));
    screen->m_ui->xtab->setCurrentIndex(tab);
    return screen;
}

bool frmViaEmail::mayClose(QWidget *window)
{
    for (auto *screen : window->findChildren<frmViaEmail *>()) {
        if (!screen->m_sending)
            continue;
        if (!screen->m_sending->mayStop(
                u"Um e-mail ainda está sendo enviado. Deseja cancelar o envio e sair?"_s))
            return false;
        screen->m_closing = true; // the outcome is not told
        if (screen->m_sending)
            screen->m_sending->stop();
    }
    return true;
}

void frmViaEmail::reject()
{
    if (!m_sending)
        Screen::reject();
    else if (m_sending->mayStop(u"O e-mail ainda está sendo enviado. Deseja cancelar o envio e fechar?"_s)) {
        m_closing = true; // closes when the sending has ended
        if (!m_sending)
            Screen::reject();
    }
}

void frmViaEmail::showChoices()
{
    m_ui->txtnome->setText(settings::value(settings::mailName));
    m_ui->txtemail->setText(settings::value(settings::mailAddress));
    m_ui->txtservidor->setText(settings::value(settings::mailServer));
    QRadioButton *const options[] = {m_ui->opttodosret, m_ui->optpendentesret, m_ui->optconcluidosret};
    options[int(mailreport::statusNamed(settings::value(settings::mailStatus)))]->setChecked(true);
}

void frmViaEmail::keepChoices()
{
    const std::pair<QCheckBox *, const settings::Key &> boxes[] = {
        {m_ui->chkpagar, settings::mailPayables},         {m_ui->chkreceber, settings::mailReceivables},
        {m_ui->chkbancario, settings::mailMovements},     {m_ui->chkpordata, settings::mailDated},
        {m_ui->chkpagarest, settings::mailPayables2},     {m_ui->chkreceberest, settings::mailReceivables2},
        {m_ui->chkbancarioest, settings::mailMovements2}, {m_ui->chkpordatasest, settings::mailDated2}};
    for (const auto &[box, key] : boxes) {
        box->setChecked(settings::isOn(key));
        connect(box, &QCheckBox::toggled, this,
                [this, stored = key](bool on) { keep(stored, on ? u"1"_s : u"0"_s); });
    }
    for (QRadioButton *option : {m_ui->opttodosret, m_ui->optpendentesret, m_ui->optconcluidosret})
        connect(option, &QRadioButton::toggled, this, [this](bool on) {
            if (on)
                keep(settings::mailStatus, mailreport::statusWord(reportChoice().status));
        });
    const std::pair<QCheckBox *, QWidget *> dated[] = {{m_ui->chkpordata, m_ui->cboinicioret},
                                                       {m_ui->chkpordata, m_ui->cbofinalret},
                                                       {m_ui->chkpordatasest, m_ui->cbodata1est},
                                                       {m_ui->chkpordatasest, m_ui->cbodata2est}};
    for (const auto &[box, date] : dated) {
        date->setEnabled(box->isChecked());
        connect(box, &QCheckBox::toggled, date, &QWidget::setEnabled);
    }
}

void frmViaEmail::keep(const settings::Key &key, const QString &value)
{
    messages::guarded(this, messages::generalPrefix, [&] { settings::setValue(key, value); });
}

MailSender frmViaEmail::sender() const
{
    return {m_ui->txtnome->text(), m_ui->txtemail->text(), m_ui->txtservidor->text()};
}

MailChoice frmViaEmail::reportChoice() const
{
    using Status = MailChoice::Status;
    return {.payables = m_ui->chkpagar->isChecked(),
            .receivables = m_ui->chkreceber->isChecked(),
            .movements = m_ui->chkbancario->isChecked(),
            .dated = m_ui->chkpordata->isChecked(),
            .first = m_ui->cboinicioret->date(),
            .last = m_ui->cbofinalret->date(),
            .status = m_ui->optpendentesret->isChecked()    ? Status::Pending
                      : m_ui->optconcluidosret->isChecked() ? Status::Settled
                                                            : Status::All};
}

MailChoice frmViaEmail::statisticsChoice() const
{
    return {.payables = m_ui->chkpagarest->isChecked(),
            .receivables = m_ui->chkreceberest->isChecked(),
            .movements = m_ui->chkbancarioest->isChecked(),
            .dated = m_ui->chkpordatasest->isChecked(),
            .first = m_ui->cbodata1est->date(),
            .last = m_ui->cbodata2est->date()};
}

ListView *frmViaEmail::list(mailreport::Table table) const
{
    return std::array{m_ui->lstpagar, m_ui->lstreceber, m_ui->lstmovimento}[std::size_t(table)];
}

bool frmViaEmail::accepts(const MailChoice &choice)
{
    const MailSender from = sender();
    if (const auto problem = mailreport::problem(from, choice)) {
        messages::exclamation(this, u"Erro"_s, *problem);
        return false;
    }
    return messages::guarded(this, messages::generalPrefix, [&] {
        settings::setValue(settings::mailName, from.name);
        settings::setValue(settings::mailAddress, from.address);
        settings::setValue(settings::mailServer, from.server);
    });
}

void frmViaEmail::sendReport()
{
    const MailChoice choice = reportChoice();
    if (!accepts(choice))
        return;
    std::vector<MailSection> sections;
    const bool read =
        reading::run(this, preparing.toString(), [&](Connection &connection, Progress &progress) {
            for (const auto table : mailreport::tables)
                if (isChosen(choice, table))
                    sections.push_back(mailreport::section(connection, table, choice, &progress));
        });
    if (!read)
        return;
    auto section = sections.cbegin();
    for (const auto table : mailreport::tables)
        list(table)->setTable(isChosen(choice, table)
                                  ? (section++)->rows
                                  : std::make_shared<StoredTable>(mailreport::columns(table)));
    const QString path = programfolder::file(mailreport::attachmentName.toString());
    const bool saved = messages::guarded(this, messages::generalPrefix, [&] {
        WaitProgress wait(this, preparing.toString(), u"Por favor aguarde enquanto o arquivo é gravado."_s);
        BarProgress progress(*m_ui->pbprogresso, &wait);
        mailreport::saveText(path, sections, &progress);
    });
    if (saved)
        send(mailreport::reportMessage(sender(), choice, path), u"Relatório via e-mail"_s,
             u"Enviado relatório via e-mail"_s);
}

void frmViaEmail::sendStatistics()
{
    const MailChoice choice = statisticsChoice();
    if (!accepts(choice))
        return;
    QStringList blocks;
    const bool read =
        reading::run(this, preparing.toString(), [&](Connection &connection, Progress &progress) {
            for (const auto table : mailreport::tables)
                if (isChosen(choice, table))
                    blocks << mailreport::statistics(connection, table, choice, &progress);
        });
    if (read)
        send(mailreport::statisticsMessage(sender(), choice, blocks), u"Estatísticas via e-mail"_s,
             u"Enviado estatísticas via e-mail"_s);
}

void frmViaEmail::send(const MailMessage &message, const QString &title, const QString &text)
{
    const MailAccess access{m_ui->txtservidor->text(), settings::value(settings::mailLogin),
                            settings::value(settings::mailPassword),
                            settings::isOn(settings::mailAnyCertificate)};
    m_closing = false;
    m_sending = new frmEnviando(this);
    connect(m_sending, &frmEnviando::ended, this, &frmViaEmail::tell);
    for (QPushButton *button : {m_ui->cmdenviarret, m_ui->cmdenviar2})
        button->setEnabled(false);
    const QPointer<frmEnviando> sending = m_sending;
    messages::information(
        sending, title,
        text + u", este processo pode demorar dependendo do tamanho dos dados a serem enviados "
               "e da velocidade de conexão."_s);
    if (sending)
        sending->start(message, access);
}

void frmViaEmail::tell(const MailOutcome &outcome)
{
    m_sending->hide();
    m_sending->deleteLater();
    m_sending = nullptr;
    for (QPushButton *button : {m_ui->cmdenviarret, m_ui->cmdenviar2})
        button->setEnabled(true);
    if (m_closing) {
        Screen::reject();
        return;
    }
    frmEnviando::tell(outcome, this);
}
