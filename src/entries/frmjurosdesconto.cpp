#include "entries/frmjurosdesconto.h"
#include "ui_frmjurosdesconto.h"

#include "entries/interest.h"
#include "widgets/formkeys.h"
#include "widgets/messages.h"

using namespace Qt::StringLiterals;

namespace {

const QString interestChoice = u"Juros"_s, discountChoice = u"Desconto"_s;

} // namespace

frmJurosDesconto::frmJurosDesconto(QWidget *parent)
    : Screen(parent), m_ui(std::make_unique<Ui::frmJurosDesconto>())
{
    m_ui->setupUi(this);
    prepare();
    m_ui->cboorigem->addItems({interestChoice, discountChoice});
    formkeys::acceptQuantity(m_ui->txtporcentagem);
    showCaptions();
    connect(m_ui->cboorigem, &QComboBox::currentTextChanged, this, &frmJurosDesconto::showCaptions);
    connect(m_ui->cmdcalcular, &QPushButton::clicked, this, &frmJurosDesconto::calculate);
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

frmJurosDesconto::~frmJurosDesconto() = default;

frmJurosDesconto *frmJurosDesconto::open(QWidget *parent)
{
    if (auto *screen = raised<frmJurosDesconto>(parent, u"frmJurosDesconto"_s))
        return screen;
    return shown(std::unique_ptr<frmJurosDesconto>(new frmJurosDesconto(parent)));
}

bool frmJurosDesconto::isInterest() const
{
    return m_ui->cboorigem->currentText() == interestChoice;
}

/// What was calculated before the choice would stand under the wrong words.
void frmJurosDesconto::showCaptions()
{
    m_ui->rotjuros->setText(isInterest() ? u"Juros:"_s : u"Desconto:"_s);
    m_ui->rottotaljuros->setText(isInterest() ? u"Total de juros:"_s : u"Total de desconto:"_s);
    m_ui->lbljuros->clear();
    m_ui->lbltotal->clear();
}

void frmJurosDesconto::calculate()
{
    try {
        const interest::Charged charged = interest::charge(
            isInterest() ? interest::Kind::Interest : interest::Kind::Discount,
            interest::number(m_ui->txttotal->text()), interest::number(m_ui->txtporcentagem->text()));
        m_ui->lbljuros->setText(u"R$ "_s + charged.amount.grouped());
        m_ui->lbltotal->setText(u"R$ "_s + charged.total.grouped());
    } catch (const Error &error) {
        showCaptions();
        messages::exclamation(this, windowTitle(), error.text());
    }
}
