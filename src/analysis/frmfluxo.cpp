#include "analysis/frmfluxo.h"
#include "ui_frmfluxo.h"

#include "entries/opencommands.h"
#include "reports/listexportcommands.h"
#include "widgets/background.h"
#include "widgets/barprogress.h"
#include "widgets/messages.h"
#include "widgets/reading.h"

using namespace Qt::StringLiterals;

frmfluxo::frmfluxo(cashflow::Mode mode, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmfluxo>()),
      m_result{mode, {}, {}}
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    background::apply(this);
    setWindowTitle(cashflow::caption(mode));
    for (ListView *list : {m_ui->lstpagar, m_ui->lstreceber}) {
        list->setEmptyText(u"Nenhuma conta neste período"_s);
        opencommands::openOnActivation(*list);
    }
    connectExports(this, {m_ui->cmdimprimir, m_ui->cmdtxt, nullptr}, [this] { return report(); },
                   {u"Salvar relatório de fluxo de caixa em txt"_s, u"Arquivos de Texto(*.txt)"_s, {}, {}});
    connect(m_ui->cmdhtml, &QPushButton::clicked, this, &frmfluxo::saveHtml);
    connect(m_ui->cmdInfo, &QPushButton::clicked, this,
            [this] { messages::information(this, u"Estatísticas"_s, m_ui->txtinfo->toPlainText()); });
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

frmfluxo::~frmfluxo() = default;

frmfluxo *frmfluxo::open(cashflow::Mode mode, const cashflow::Choice &choice, QWidget *parent)
{
    auto screen = std::unique_ptr<frmfluxo>(new frmfluxo(mode, parent));
    cashflow::Result result{mode, choice, {}};
    const bool read =
        reading::run(parent, cashflow::caption(mode), [&](Connection &connection, Progress &progress) {
            BarProgress bar(*screen->m_ui->barraprogresso, &progress);
            result = cashflow::read(connection, mode, choice, &bar);
        });
    if (!read)
        return nullptr;
    for (const cashflow::Part &part : result.parts)
        if (part.rows->rowCount() == 0)
            messages::information(parent, u"Info"_s, cashflow::emptyMessage(mode, *part.side));
    if (mode != cashflow::Mode::General && cashflow::count(result) == 0)
        return nullptr;
    screen->showResult(std::move(result));
    screen->show();
    return screen.release();
}

ListView *frmfluxo::listOf(const Side &side) const
{
    return &side == &payable() ? m_ui->lstpagar : m_ui->lstreceber;
}

void frmfluxo::showResult(cashflow::Result result)
{
    m_result = std::move(result);
    m_ui->tabfluxo->setTabVisible(0, m_result.mode != cashflow::Mode::Receivables);
    m_ui->tabfluxo->setTabVisible(1, m_result.mode != cashflow::Mode::Payables);
    for (cashflow::Part &part : m_result.parts)
        listOf(*part.side)->setTable(std::exchange(part.rows, nullptr));
    const int count = int(std::max<qint64>(cashflow::count(m_result), 1));
    m_ui->barraprogresso->setMaximum(count);
    m_ui->barraprogresso->setValue(count);
    m_ui->lbldata->setText(cashflow::periodText(m_result.choice));
    m_ui->lbltotal->setText(cashflow::totals(m_result));
    m_ui->lblcadastros->setText(cashflow::countText(m_result));
    m_ui->txtinfo->setPlainText(cashflow::summary(m_result));
    m_ui->txtinfop2->setPlainText(cashflow::htmlSummary(m_result));
}

Report frmfluxo::report() const
{
    Report report = cashflow::report(m_result);
    for (const cashflow::Part &part : m_result.parts)
        report.tables.push_back(listOf(*part.side)->tableSource());
    return report;
}

void frmfluxo::saveHtml()
{
    const Report shown = report();
    exportar::saveFile(
        this, {u"Salvar relatório de fluxo de caixa em html"_s, u"Arquivos HTML(*.html)"_s, u"html"_s},
        [&](QIODevice &device, Progress *progress) {
            BarProgress bar(*m_ui->barraprogresso, progress);
            reporttext::writeHtml(device, shown, &bar);
        });
}
