#include "entries/frmadicionar.h"
#include "ui_frmadicionar.h"

#include "bank/frmbanco.h"
#include "data/clock.h"
#include "entries/frmcadcli.h"
#include "entries/frmcentrocusto.h"
#include "stock/stock.h"
#include "widgets/boxes.h"
#include "widgets/formkeys.h"
#include "widgets/messages.h"

#include <iterator>

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
    return shown(std::move(screen));
}

frmAdicionar *frmAdicionar::openEdit(const Side &side, const QString &code, QWidget *parent, quint64 listed)
{
    auto screen = std::unique_ptr<frmAdicionar>(new frmAdicionar(side, code, parent));
    std::optional<EntryForm> form;
    const bool found = screen->loadRow(listed, side.caption, u"Este lançamento não existe mais."_s,
                                       [&](Connection &connection) {
                                           form = entry::load(connection, side, code);
                                           return form.has_value();
                                       });
    if (!found || !screen->fillBoxes())
        return nullptr;
    screen->showForm(*form);
    screen->connectControls(); // filling the fields computes no cost: the entry has its own
    return shown(std::move(screen));
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
        for (const auto chosen :
             {&QComboBox::currentTextChanged, &QComboBox::textActivated}) // also once more
            connect(m_ui->cboproduto, chosen, this, [this] { showUnitCost(false); });
        connect(m_ui->txtqtde, &QLineEdit::textChanged, this, [this] { showUnitCost(true); });
    }
    connect(this, &QDialog::finished, this, &frmAdicionar::announce);
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
    load([&](Connection &connection) {
        const auto cost = stock::unitCost(connection, m_ui->cboproduto->currentText());
        if (!cost)
            return;
        const Quantity quantity = Quantity::stored(QStringView(m_ui->txtqtde->text()));
        m_ui->txtcusto->setText((timesQuantity ? cost->times(quantity) : *cost).grouped());
    });
}

/// The save goes on all the same; false when the stock cannot be read.
bool frmAdicionar::warnOfLowStock(const EntryForm &typed)
{
    bool exceeds = false;
    if (m_code.isEmpty() && !write(messages::savePrefix, [&](Connection &connection) {
            exceeds = entry::exceedsStock(connection, m_side, typed);
        }))
        return false;
    if (exceeds)
        messages::exclamation(
            this, u"Aviso de estoque"_s,
            u"A quantidade de produtos adicionada é maior do que a quantidade de itens no estoque! "
            "Seu saldo no estoque ficara negativo"_s);
    return true;
}

void frmAdicionar::save()
{
    const EntryForm typed = form();
    if (refuseBlank(entry::blankFields(typed)) || !warnOfLowStock(typed))
        return;
    {
        Changes::Hold untilClosed;
        if (!write(messages::savePrefix,
                   [&](Connection &connection) { entry::save(connection, m_side, typed, m_code); }))
            return;
        std::ranges::move(untilClosed.take(), std::back_inserter(m_saved));
    }
    messages::information(this, u"Cadastrada"_s, m_side.savedMessage);
    if (!m_ui->chkcontinuar->isChecked()) {
        close();
        return;
    }
    // Lists may be read again before the screen closes, and have counted these rows by then.
    for (Change &change : m_saved)
        change.rows.clear();
    prepareNext();
}

/// What is saved next is a new entry, also after one that was edited.
void frmAdicionar::prepareNext()
{
    m_code.clear();
    forgetFile();
    m_ui->cmdinserir->setText(m_side.insertCaption);
    m_ui->txtvencimento->clear();
    m_ui->txtvalor->clear();
    m_ui->txtdocumento->clear();
    m_ui->txtinfo->clear();
    m_ui->txtdescricao->setFocus();
}

void frmAdicionar::announce()
{
    const Changes::Hold together; // several of one subject become one
    if (m_saved.empty())
        Changes::announce(m_side.subject);
    for (Change &change : std::exchange(m_saved, {}))
        Changes::announce(std::move(change));
}
