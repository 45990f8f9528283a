#include "entries/frmadicionar.h"
#include "ui_frmadicionar.h"

#include "bank/frmbanco.h"
#include "data/clock.h"
#include "entries/frmcadcli.h"
#include "entries/frmcentrocusto.h"
#include "settings/database.h"
#include "stock/stock.h"
#include "widgets/boxes.h"
#include "widgets/formkeys.h"
#include "widgets/messages.h"

using namespace Qt::StringLiterals;

frmAdicionar::frmAdicionar(const Side &side, const QString &code, QWidget *parent)
    : EntryScreen(side, parent), m_ui(std::make_unique<Ui::frmAdicionar>()), m_code(code)
{
    m_ui->setupUi(this);
    setUp({m_ui->cboestatus, m_ui->cboorigem, m_ui->cbotipo, m_ui->txtdescricao, m_ui->cbomoeda,
           m_ui->cboproduto, m_ui->txtdata, m_ui->cmdcancelar});

    formkeys::acceptQuantity(m_ui->txtqtde);
    setWindowTitle(side.caption);
    m_ui->lbldescricao->setText(side.descriptionLabel);
    m_ui->lblnome->setText(side.contactLabel);
    m_ui->cmdinserir->setText(code.isEmpty() ? side.insertCaption : side.editCaption);
    m_ui->lblcusto->setVisible(side.hasUnitCost);
    m_ui->txtcusto->setVisible(side.hasUnitCost);
    if (side.hasUnitCost)
        m_ui->txtcusto->setText(u"00,00"_s);
    m_ui->txtvencimento->setDate(programclock::today());
}

frmAdicionar::~frmAdicionar() = default;

frmAdicionar *frmAdicionar::openNew(const Side &side, QWidget *parent)
{
    auto screen = std::unique_ptr<frmAdicionar>(new frmAdicionar(side, QString(), parent));
    if (!screen->fillBoxes())
        return nullptr;
    screen->connectControls();
    screen->show();
    return screen.release();
}

frmAdicionar *frmAdicionar::openEdit(const Side &side, const QString &code, QWidget *parent)
{
    std::optional<EntryForm> form;
    if (!messages::guarded(parent, messages::generalPrefix,
                           [&] { form = entry::load(*openDatabase(), side, code); }))
        return nullptr;
    if (!form) {
        messages::information(parent, side.caption, u"Este lançamento não existe mais."_s);
        return nullptr;
    }
    auto screen = std::unique_ptr<frmAdicionar>(new frmAdicionar(side, code, parent));
    if (!screen->fillBoxes())
        return nullptr;
    screen->connectControls();
    screen->showForm(*form);
    screen->show();
    return screen.release();
}

void frmAdicionar::connectControls()
{
    connect(m_ui->cmdinserir, &QPushButton::clicked, this, &frmAdicionar::save);
    connect(m_ui->cmdbancoinc, &QToolButton::clicked, this, [this] {
        topmost::set(this, u"desativo");
        frmbanco::openNew(this);
    });
    connect(m_ui->cmdforncliinc, &QToolButton::clicked, this, [this] {
        topmost::set(this, u"desativo");
        frmCadCli::openNew(m_side.contacts, m_side.contacts.quickAddCaption, this);
    });
    connect(m_ui->cmddescinc, &QToolButton::clicked, this, [this] {
        topmost::set(this, u"desativo");
        frmCentroCusto::openFor(m_side.centres, this);
    });
    stepBackFor(m_ui->txtvencimento);
    if (m_side.hasUnitCost) {
        connect(m_ui->cboproduto, &QComboBox::currentTextChanged, this, [this] { showUnitCost(false); });
        connect(m_ui->txtqtde, &QLineEdit::textChanged, this, [this] { showUnitCost(true); });
    }
    connect(this, &QDialog::finished, this, [this] {
        if (std::exchange(m_unannounced, false))
            Changes::announce(m_side.subject);
    });
}

void frmAdicionar::showForm(const EntryForm &form)
{
    boxes::choose(m_ui->cboestatus, form.status);
    boxes::choose(m_ui->cboorigem, form.account);
    boxes::choose(m_ui->cbotipo, form.contact);
    m_ui->txtdata->setText(form.date);
    m_ui->txtdescricao->setCurrentText(form.description);
    m_ui->txtdocumento->setText(form.document);
    m_ui->txtinfo->setText(form.notes);
    m_ui->txtvalor->setText(form.value);
    if (m_side.hasUnitCost)
        m_ui->txtcusto->setText(form.unitCost);
    boxes::choose(m_ui->cboproduto, form.product);
    m_ui->txtqtde->setText(form.quantity);
    m_ui->txtvencimento->setText(form.due);
    boxes::choose(m_ui->cbomoeda, form.currency);
}

EntryForm frmAdicionar::form() const
{
    return {
        .status = m_ui->cboestatus->currentText(),
        .account = m_ui->cboorigem->currentText(),
        .contact = m_ui->cbotipo->currentText(),
        .date = m_ui->txtdata->dateText(),
        .due = m_ui->txtvencimento->dateText(),
        .description = m_ui->txtdescricao->currentText(),
        .document = m_ui->txtdocumento->text(),
        .notes = m_ui->txtinfo->text(),
        .value = m_ui->txtvalor->text(),
        .unitCost = m_ui->txtcusto->text(),
        .product = m_ui->cboproduto->currentText(),
        .quantity = m_ui->txtqtde->text(),
        .currency = m_ui->cbomoeda->currentText(),
    };
}

void frmAdicionar::showUnitCost(bool timesQuantity)
{
    messages::guarded(this, messages::generalPrefix, [&] {
        const auto cost = stock::unitCost(*openDatabase(), m_ui->cboproduto->currentText());
        if (!cost)
            return;
        const Quantity quantity = Quantity::stored(QStringView(m_ui->txtqtde->text()));
        m_ui->txtcusto->setText((timesQuantity ? cost->times(quantity) : *cost).grouped());
    });
}

void frmAdicionar::save()
{
    const EntryForm typed = form();
    if (refuseBlank(entry::blankFields(typed)))
        return;
    const bool saved = messages::guarded(this, messages::savePrefix, [&] {
        if (m_code.isEmpty() && entry::exceedsStock(*openDatabase(), m_side, typed))
            messages::exclamation(
                this, u"Aviso de estoque"_s,
                u"A quantidade de produtos adicionada é maior do que a quantidade de itens no estoque! "
                "Seu saldo no estoque ficara negativo"_s);
        entry::save(*openDatabase(), m_side, typed, m_code);
    });
    if (!saved)
        return;
    m_unannounced = true;
    messages::information(this, u"Cadastrada"_s, m_side.savedMessage);
    if (m_ui->chkcontinuar->isChecked())
        prepareNext();
    else
        close();
}

void frmAdicionar::prepareNext()
{
    m_ui->txtvencimento->clear();
    m_ui->txtvalor->clear();
    m_ui->txtdocumento->clear();
    m_ui->txtinfo->clear();
    m_ui->txtdescricao->setFocus();
}
