#include "entries/frmjurosparcelado.h"
#include "ui_frmjurosparcelado.h"

#include "data/clock.h"
#include "data/dates.h"
#include "entries/interest.h"
#include "widgets/formkeys.h"
#include "widgets/messages.h"

#include <QHeaderView>
#include <QIntValidator>

using namespace Qt::StringLiterals;

namespace {

StoredTable rowsOf(const interest::Spread &spread)
{
    StoredTable rows({{u"parcela"_s, u"Parcela"_s},
                      {u"data"_s, u"Data"_s, CellKind::Date},
                      {u"valor"_s, u"Valor"_s, CellKind::Amount}});
    const QString amount = u"R$ "_s + spread.installment.plain();
    for (std::size_t i = 0; i < spread.dates.size(); ++i)
        rows.append(QStringList{QString::number(i + 1) + u'ª', dates::shown(spread.dates[i]), amount});
    return rows;
}

} // namespace

frmJurosParcelado::frmJurosParcelado(QWidget *parent)
    : Screen(parent), m_ui(std::make_unique<Ui::frmJurosParcelado>())
{
    m_ui->setupUi(this);
    prepare();
    formkeys::acceptQuantity(m_ui->txtjurosmes);
    for (QLineEdit *field : {m_ui->txtparcelas, m_ui->txtdias}) {
        field->setValidator(new QIntValidator(0, 9999, field));
        field->setAlignment(Qt::AlignRight);
    }
    m_ui->txtdias->setText(u"30"_s);
    m_ui->txtdata->setDate(programclock::today());
    m_ui->lstparcelas->setEmptyText(u"Preencha os campos e clique em Calcular"_s);
    m_ui->lstparcelas->header()->setStretchLastSection(true);
    connect(m_ui->cmdcalcular, &QPushButton::clicked, this, &frmJurosParcelado::calculate);
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

frmJurosParcelado::~frmJurosParcelado() = default;

frmJurosParcelado *frmJurosParcelado::open(QWidget *parent)
{
    if (auto *screen = raised<frmJurosParcelado>(parent, u"frmJurosParcelado"_s))
        return screen;
    return shown(std::unique_ptr<frmJurosParcelado>(new frmJurosParcelado(parent)));
}

void frmJurosParcelado::calculate()
{
    const QDate start = m_ui->txtdata->date();
    if (!start.isValid()) {
        messages::exclamation(this, windowTitle(), u"A data de início deve ser preenchida!"_s);
        m_ui->txtdata->setFocus();
        return;
    }
    interest::Spread spread;
    try {
        spread = interest::spread({.amount = interest::number(m_ui->txtvalor->text()),
                                   .monthlyRate = interest::number(m_ui->txtjurosmes->text()),
                                   .count = interest::wholeNumber(m_ui->txtparcelas->text()),
                                   .days = interest::wholeNumber(m_ui->txtdias->text()),
                                   .start = start},
                                  m_ui->optunico->isChecked() ? interest::Charging::Once
                                                              : interest::Charging::EachInstallment);
    } catch (const Error &error) {
        messages::exclamation(this, windowTitle(), error.text());
        return;
    }
    m_ui->lstparcelas->setTable(std::make_shared<StoredTable>(rowsOf(spread)));
    m_ui->lbltotal->setText(spread.charged.total.plain());
    m_ui->lbljuros->setText(spread.charged.amount.plain());
}
