#include "analysis/comparisonpane.h"
#include "ui_comparisonpane.h"

#include "analysis/projection.h"
#include "data/clock.h"
#include "reports/exportcommands.h"
#include "widgets/reading.h"

using namespace Qt::StringLiterals;

ComparisonPane::ComparisonPane(const Side &side, comparison::Span span, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::ComparisonPane>()), m_side(side), m_span(span)
{
    m_ui->setupUi(this);
    fillBoxes();
    nameControls();
    connect(m_ui->cmdcomparar, &QPushButton::clicked, this, &ComparisonPane::compare);
    connect(m_ui->cmdtxt, &QPushButton::clicked, this, [this] {
        save(comparison::saveTextTitle(m_side, m_span), u"Arquivos de Texto(*.txt)"_s, u"txt"_s,
             comparison::writeText);
    });
    connect(m_ui->cmdhtml, &QPushButton::clicked, this, [this] {
        save(comparison::saveHtmlTitle(m_side, m_span), u"Arquivos HTML (*.html)"_s, u"html"_s,
             comparison::writeHtml);
    });
    connect(m_ui->cmdimprimir, &QPushButton::clicked, this, [this] {
        withResult([this](const comparison::Result &result) {
            exportar::print(window(), comparison::printed(result), {.fontSize = 11});
        });
    });
}

ComparisonPane::~ComparisonPane() = default;

void ComparisonPane::fillBoxes()
{
    const bool years = m_span == comparison::Span::Year;
    const QDate last = programclock::today();
    const QDate first = years ? last.addYears(-1) : last.addMonths(-1);
    for (const auto &[box, date] : {std::pair(m_ui->cbomes1, first), std::pair(m_ui->cbomes2, last)}) {
        box->addItems(projection::monthNames());
        box->setCurrentIndex(date.month() - 1);
        box->setVisible(!years);
    }
    for (const auto &[box, date] : {std::pair(m_ui->cboano1, first), std::pair(m_ui->cboano2, last)}) {
        box->addItems(projection::years());
        box->setCurrentText(QString::number(date.year()));
    }
    m_ui->lblprimeiro->setBuddy(years ? m_ui->cboano1 : m_ui->cbomes1);
    m_ui->lblcom->setBuddy(years ? m_ui->cboano2 : m_ui->cbomes2);
    m_ui->cmdcomparar->setText(years ? u"Comparar a&nos"_s : u"Comparar &meses"_s);
}

void ComparisonPane::nameControls()
{
    const bool years = m_span == comparison::Span::Year;
    const QString suffix = years ? u"ano"_s : u"mes"_s;
    m_ui->cmdcomparar->setObjectName(years ? u"cmdok"_s : u"cmdmes"_s);
    for (QWidget *control : std::initializer_list<QWidget *>{m_ui->cmdtxt, m_ui->cmdhtml, m_ui->cmdimprimir})
        control->setObjectName(control->objectName() + suffix);
    if (years)
        return; // the names of the years' controls are the plain ones
    m_ui->cboano1->setObjectName(u"cboanomes1"_s);
    m_ui->cboano2->setObjectName(u"cboanomes2"_s);
    for (QWidget *control :
         std::initializer_list<QWidget *>{m_ui->lblresumo1, m_ui->lblresumo2, m_ui->lblcomparacao,
                                          m_ui->txtresumo1, m_ui->txtresumo2, m_ui->txtcomparacao})
        control->setObjectName(control->objectName() + suffix);
}

comparison::Period ComparisonPane::period(std::size_t which) const
{
    const QComboBox *year = which == 0 ? m_ui->cboano1 : m_ui->cboano2;
    const QComboBox *month = which == 0 ? m_ui->cbomes1 : m_ui->cbomes2;
    return {m_span, year->currentText().toInt(), month->currentIndex() + 1};
}

bool ComparisonPane::compare()
{
    comparison::Result result{&m_side, {period(0), period(1)}, {}};
    for (std::size_t i = 0; i < result.periods.size(); ++i) {
        const bool read = reading::run(
            window(), comparison::waitTitle(result.periods[i]),
            [&](Connection &connection, Progress &progress) {
                result.figures[i] = comparison::read(connection, m_side, result.periods[i], &progress);
            },
            comparison::waitText(result.periods[i]));
        if (!read)
            return false;
    }
    m_result = result;
    showResult();
    return true;
}

void ComparisonPane::showResult()
{
    m_ui->lblresumo1->setText(comparison::summaryTitle(m_result->periods[0]));
    m_ui->lblresumo2->setText(comparison::summaryTitle(m_result->periods[1]));
    m_ui->lblcomparacao->setText(comparison::comparisonTitle(*m_result));
    m_ui->txtresumo1->setPlainText(comparison::summary(*m_result, 0));
    m_ui->txtresumo2->setPlainText(comparison::summary(*m_result, 1));
    m_ui->txtcomparacao->setPlainText(comparison::differences(*m_result));
}

void ComparisonPane::withResult(const std::function<void(const comparison::Result &)> &use)
{
    if (m_result || compare())
        use(*m_result);
}

void ComparisonPane::save(const QString &title, const QString &filter, const QString &suffix,
                          void (*write)(QIODevice &, const comparison::Result &))
{
    withResult([&](const comparison::Result &result) {
        exportar::saveFile(window(), {title, filter, suffix},
                           [&](QIODevice &device, Progress *) { write(device, result); });
    });
}
