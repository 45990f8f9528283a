#include "analysis/frmextrato.h"
#include "ui_frmextrato.h"

#include "entries/opencommands.h"
#include "reports/listexportcommands.h"
#include "widgets/reading.h"

#include <QHeaderView>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

frmextrato::frmextrato(const StatementChoice &choice, QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmextrato>()),
      m_choice(choice)
{
    m_ui->setupUi(this);
    prepare();
    setWindowTitle(statement::caption(choice));
    m_ui->lblperiodo->setText(statement::periodText(choice));
    m_ui->lstdados->setEmptyText(u"Nenhum lançamento concluído neste período"_s);
    opencommands::openOnActivation(*m_ui->lstdados);
    connect(m_ui->lstdados->header(), &QHeaderView::sortIndicatorChanged, this, &frmextrato::showRows);
    connectExports(
        this, {m_ui->cmdimprimir, m_ui->cmdtxt, m_ui->cmdhtml}, [this] { return report(); },
        exportar::reportTexts());
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
    connect(&Changes::instance(), &Changes::changed, this, [this](const Change &change) {
        const Subject shown[] = {Subject::Payables, Subject::Receivables, Subject::Movements,
                                 Subject::Database};
        if (std::ranges::find(shown, change.subject) != std::end(shown))
            read();
    });
}

frmextrato::~frmextrato() = default;

frmextrato *frmextrato::open(const StatementChoice &choice, QWidget *parent)
{
    auto screen = std::unique_ptr<frmextrato>(new frmextrato(choice, parent));
    return screen->read() ? shown(std::move(screen)) : nullptr;
}

bool frmextrato::read()
{
    AccountStatement fresh;
    if (!reading::run(place(), u"Carregando extrato"_s, [&](Connection &connection, Progress &progress) {
            fresh = statement::read(connection, m_choice, &progress);
        }))
        return false;
    m_statement = std::move(fresh);
    const QHeaderView &header = *m_ui->lstdados->header();
    showRows(header.sortIndicatorSection(), header.sortIndicatorOrder());
    m_ui->lbltotalpagar->setText(m_statement.payables.inReais());
    m_ui->lbltotalreceber->setText(m_statement.receivables.inReais());
    m_ui->lbltotalbancario->setText(m_statement.movements.inReais());
    return true;
}

/// Puts the rows in order by the list's own means, and writes the balances of that order.
void frmextrato::showRows(int column, Qt::SortOrder order)
{
    ListView &list = *m_ui->lstdados;
    const QSignalBlocker blocker(list.header());
    list.setTable(m_statement.rows);
    if (column == statement::balanceColumn) // the balances follow the order
        column = -1;
    list.table().sort(column, order);
    std::vector<int> shownOrder(std::size_t(list.rowCount()));
    for (int row = 0; row < list.rowCount(); ++row)
        shownOrder[std::size_t(row)] = list.table().heldRow(row);
    list.setTable(statement::inOrder(*m_statement.rows, shownOrder));
    list.header()->setSortIndicator(column, order);
}

Report frmextrato::report() const
{
    return {.title = windowTitle(),
            .filterText = m_ui->lblperiodo->text(),
            .tables = {m_ui->lstdados->tableSource()},
            .statistics = statement::totals(m_statement),
            .textTitle = windowTitle() + u'\n' + m_ui->lblperiodo->text(),
            .textStatistics = statement::totals(m_statement) + u'\n'};
}
