#include "analysis/frmviaemail.h"
#include "ui_frmviaemail.h"

#include "analysis/frmconfloginemail.h"
#include "analysis/frmenviando.h"
#include "entries/opencommands.h"
#include "settings/programfolder.h"
#include "widgets/frmcarregando.h"
#include "widgets/messages.h"
#include "widgets/reading.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView preparing = u"Preparando o e-mail";

/// Advances the screen's own bar along with the wait screen.
class BarProgress : public Progress
{
public:
    BarProgress(QProgressBar &bar, qint64 rows)
        : m_bar(bar),
          m_wait(bar.window(), preparing.toString(), u"Por favor aguarde enquanto o arquivo é gravado."_s)
    {
        m_bar.setRange(0, int(std::clamp<qint64>(rows, 1, std::numeric_limits<int>::max())));
    }
    ~BarProgress() override { m_bar.setValue(m_bar.maximum()); }
    Q_DISABLE_COPY_MOVE(BarProgress)

    void begin(std::function<qint64()> total) override
    {
        m_before += m_done;
        m_done = 0;
        m_wait.begin(std::move(total));
    }
    void advance(qint64 done) override
    {
        m_done = done;
        m_bar.setValue(int(m_before + done));
        m_wait.advance(done);
    }

private:
    QProgressBar &m_bar;
    WaitProgress m_wait;
    qint64 m_before = 0, m_done = 0; ///< rows of the lists that are written, and of this one
};

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
    connect(m_ui->cmdaviso, &QPushButton::clicked, this, [this] {
        messages::information(
            this, u"Aviso"_s,
            u"É recomendável enviar pequenas quantidade de dados por e-mail, pois este processo pode ser "
            "extremamente lento se enviado todo o banco de dados, você pode filtrar os dados entre datas "
            "para "
            "que o envio seja mais rápido."_s);
    });
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
    keeps(m_ui->chkpagar, settings::mailPayables);
    keeps(m_ui->chkreceber, settings::mailReceivables);
    keeps(m_ui->chkbancario, settings::mailMovements);
    keeps(m_ui->chkpordata, settings::mailDated);
    keeps(m_ui->chkpagarest, settings::mailPayables2);
    keeps(m_ui->chkreceberest, settings::mailReceivables2);
    keeps(m_ui->chkbancarioest, settings::mailMovements2);
    keeps(m_ui->chkpordatasest, settings::mailDated2);
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

void frmViaEmail::keeps(QCheckBox *box, const settings::Key &key)
{
    box->setChecked(settings::isOn(key));
    connect(box, &QCheckBox::toggled, this, [this, key](bool on) { keep(key, on ? u"1"_s : u"0"_s); });
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
    ListView *const lists[] = {m_ui->lstpagar, m_ui->lstreceber, m_ui->lstmovimento};
    return lists[std::size_t(table)];
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
    if (saveAttachment(path, sections))
        send(mailreport::reportMessage(sender(), choice, path), u"Relatório via e-mail"_s,
             u"Enviado relatório via e-mail"_s);
}

bool frmViaEmail::saveAttachment(const QString &path, const std::vector<MailSection> &sections)
{
    qint64 rows = 0;
    for (const MailSection &section : sections)
        rows += section.rows->rowCount();
    return messages::guarded(this, messages::generalPrefix, [&] {
        BarProgress progress(*m_ui->pbprogresso, rows);
        mailreport::saveText(path, sections, &progress);
    });
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
    const QString late = u"O servidor já tinha recebido toda a mensagem, e ela ainda pode chegar."_s;
    if (outcome.end == MailOutcome::End::Sent)
        messages::information(this, u"Via e-mail"_s,
                              u"O e-mail foi enviado com sucesso para o endereço especificado!"_s);
    else if (outcome.end == MailOutcome::End::Cancelled)
        messages::information(this, u"Via e-mail"_s,
                              u"O envio foi cancelado. "_s + (outcome.mayArrive ? late : QString()));
    else
        messages::critical(
            this, u"Erro"_s,
            u"Não foi possível enviaro e-mail verifique se os dados foram digitados corretamente!"_s,
            outcome.reason + (outcome.mayArrive ? u' ' + late : QString()));
}
