#include "entries/frmmultiplos.h"
#include "ui_frmmultiplos.h"

#include "widgets/formkeys.h"
#include "widgets/frmcarregando.h"
#include "widgets/messages.h"

using namespace Qt::StringLiterals;

namespace {

const QString waitTitle = u"Adicionando parcelas ..."_s;
const QString waitText =
    u"Aguarde enquanto o software adicionar os dados ao banco de dados, este processo pode demorar "
    "dependendo da quantidade de parcelas que forem adicionadas."_s;

} // namespace

frmMultiplos::frmMultiplos(const Side &side, QWidget *parent)
    : EntryScreen(side, parent), m_ui(std::make_unique<Ui::frmMultiplos>())
{
    m_ui->setupUi(this);
    setUp({m_ui->cboestatus, m_ui->cboorigem, m_ui->cbotipo, m_ui->txtdescricao, m_ui->cbomoeda, nullptr,
           m_ui->txtdata, m_ui->cmdcancelar});
    setWindowTitle(side.installmentsCaption);
    m_ui->lbldescricao->setText(side.installmentsDescriptionLabel);
    m_ui->lblnome->setText(side.contactLabel);
    m_ui->cmdinserir->setText(side.insertCaption);
    connect(m_ui->optperiodo, &QRadioButton::toggled, m_ui->txtdiasparcelas, &QWidget::setEnabled);
    connect(m_ui->cmdinserir, &QPushButton::clicked, this, &frmMultiplos::save);
}

frmMultiplos::~frmMultiplos() = default;

frmMultiplos *frmMultiplos::openFor(const Side &side, QWidget *parent)
{
    auto screen = std::unique_ptr<frmMultiplos>(new frmMultiplos(side, parent));
    return screen->fillBoxes() ? shown(std::move(screen)) : nullptr;
}

InstallmentsForm frmMultiplos::form() const
{
    return {
        .status = m_ui->cboestatus->currentText(),
        .account = m_ui->cboorigem->currentText(),
        .contact = m_ui->cbotipo->currentText(),
        .date = m_ui->txtdata->dateText(),
        .description = m_ui->txtdescricao->currentText(),
        .document = m_ui->txtdocumento->text(),
        .notes = m_ui->txtinfo->text(),
        .value = m_ui->txtvalor->text(),
        .currency = m_ui->cbomoeda->currentText(),
        .count = m_ui->txtnparcelas->text(),
        .monthly = m_ui->optdia->isChecked(),
        .days = m_ui->txtdiasparcelas->text(),
    };
}

void frmMultiplos::save()
{
    const InstallmentsForm typed = form();
    if (refuseBlank(installments::blankFields(typed)))
        return;
    if (const auto problem = installments::problem(typed)) {
        messages::exclamation(this, u"Erro"_s, *problem);
        return;
    }
    InstallmentsOutcome outcome;
    const Changes::Hold untilClosed;
    const bool opened = write(messages::savePrefix, [&](Connection &connection) {
        const topmost::StepBack stepBack(this);
        WaitProgress progress(this, waitTitle, waitText);
        outcome = installments::write(connection, m_side, typed, &progress);
    });
    if (!opened)
        return;
    if (outcome.failure)
        messages::error(this, messages::savePrefix, installments::report(typed, outcome));
    else
        close();
}
