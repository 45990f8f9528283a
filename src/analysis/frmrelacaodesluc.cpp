#include "analysis/frmrelacaodesluc.h"
#include "ui_frmrelacaodesluc.h"

#include "data/clock.h"
#include "reports/listexportcommands.h"
#include "widgets/messages.h"
#include "widgets/reading.h"

#include <QLocale>

using namespace Qt::StringLiterals;

frmRelacaoDesLuc::frmRelacaoDesLuc(QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmRelacaoDesLuc>())
{
    m_ui->setupUi(this);
    prepare();
    const QDate today = programclock::today();
    const QLocale portuguese(QLocale::Portuguese, QLocale::Brazil);
    for (int month = 1; month <= 12; ++month)
        m_ui->cbomes->addItem(portuguese.standaloneMonthName(month), month);
    m_ui->cbomes->setCurrentIndex(today.month() - 1);
    m_ui->spnano->setValue(today.year());
    m_ui->lstcontas->setTable(std::make_shared<StoredTable>(accountresults::columns()));
    m_ui->lstcontas->setEmptyText(u"Escolha o período e clique em Consultar"_s);
    connectControls();
}

frmRelacaoDesLuc::~frmRelacaoDesLuc() = default;

frmRelacaoDesLuc *frmRelacaoDesLuc::open(QWidget *parent)
{
    return shown(std::unique_ptr<frmRelacaoDesLuc>(new frmRelacaoDesLuc(parent)));
}

void frmRelacaoDesLuc::connectControls()
{
    // Who fills a field in wants to ask by it.
    connect(m_ui->cbomes, &QComboBox::activated, this, [this] { m_ui->optmes->setChecked(true); });
    connect(m_ui->spnano, &QSpinBox::valueChanged, this, [this] {
        if (!m_ui->optmes->isChecked())
            m_ui->optano->setChecked(true);
    });
    for (DateEdit *date : {m_ui->txtinicial, m_ui->txtfinal})
        connect(date, &QLineEdit::textEdited, this, [this] { m_ui->optperiodo->setChecked(true); });
    connect(m_ui->cmdconsultar, &QPushButton::clicked, this, &frmRelacaoDesLuc::ask);
    connectExports(this, {m_ui->cmdimprimir, m_ui->cmdtxt, m_ui->cmdhtml}, [this] { return report(); });
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

ResultFilter frmRelacaoDesLuc::filter() const
{
    using enum ResultFilter::Span;
    return {.span = m_ui->optdia->isChecked()   ? Day
                    : m_ui->optmes->isChecked() ? Month
                    : m_ui->optano->isChecked() ? Year
                                                : Range,
            .today = programclock::today(),
            .year = m_ui->spnano->value(),
            .month = m_ui->cbomes->currentData().toInt(),
            .first = m_ui->txtinicial->date(),
            .last = m_ui->txtfinal->date()};
}

void frmRelacaoDesLuc::ask()
{
    const ResultFilter wanted = filter();
    if (const std::optional<QString> problem = accountresults::problem(wanted)) {
        messages::exclamation(this, u"Erro"_s, *problem);
        return;
    }
    std::optional<accountresults::Result> result;
    if (!reading::run(this, u"Carregando despesas e lucros"_s,
                      [&](Connection &connection, Progress &progress) {
                          result = accountresults::read(connection, wanted, &progress);
                      }))
        return;
    if (!result) {
        messages::exclamation(this, u"Erro"_s, u"Não há nenhum banco cadastrado!"_s);
        return;
    }
    m_filterText = accountresults::filterText(wanted);
    m_ui->lstcontas->setTable(result->table);
    m_ui->lbltotal->setText(accountresults::totalText(*result));
}

Report frmRelacaoDesLuc::report() const
{
    return {.title = windowTitle(),
            .filterText = m_filterText,
            .tables = {m_ui->lstcontas->tableSource()},
            .statistics = m_ui->lbltotal->text()};
}
