#include "entries/entrypane.h"
#include "ui_entrypane.h"

#include "data/clock.h"
#include "data/dates.h"
#include "data/status.h"
#include "entries/entrylist.h"
#include "lists/period.h"
#include "reports/listexportcommands.h"
#include "settings/database.h"
#include "widgets/listcommand.h"

#include <QAction>
#include <QComboBox>

using namespace Qt::StringLiterals;

const EntryPaneNames &payablePaneNames()
{
    static const EntryPaneNames names{.basedOn = u"cbobaseadoP"_s,
                                      .status = u"cbotipop"_s,
                                      .account = u"cbobancop"_s,
                                      .centre = u"cbocentrocusto"_s,
                                      .contact = u"cbofornecedor"_s,
                                      .period = u"cbofiltrop"_s,
                                      .list = u"lstpagar"_s,
                                      .totals = u"lbltotalp"_s,
                                      .add = u"cmdadicionard"_s,
                                      .edit = u"cmdalterard"_s,
                                      .remove = u"cmdremoverd"_s,
                                      .settle = u"popbaixapagar"_s,
                                      .installments = u"cmdmultiplosp"_s,
                                      .history = u"cmdhistoricoforn"_s,
                                      .months = u"cmdmesp"_s,
                                      .goals = u"cmdprojecaop"_s,
                                      .receipt = u"cmdrecibod"_s,
                                      .exportSuffix = u"p"_s,
                                      .reportTitle = u"Contas a pagar"_s,
                                      .pages = modimpressao::ListKind::Payables,
                                      .centreLabel = u"Centro de c&usto:"_s,
                                      .contactLabel = u"Fo&rnecedor:"_s,
                                      .emptyText = u"Nenhuma conta a pagar com estes filtros"_s};
    return names;
}

const EntryPaneNames &receivablePaneNames()
{
    static const EntryPaneNames names{.basedOn = u"cbobaseadoR"_s,
                                      .status = u"cbotipor"_s,
                                      .account = u"cbobancor"_s,
                                      .centre = u"cbocentrolucro"_s,
                                      .contact = u"cbocliente"_s,
                                      .period = u"cbofiltror"_s,
                                      .list = u"lstreceber"_s,
                                      .totals = u"lbltotalr"_s,
                                      .add = u"cmdadicionarr"_s,
                                      .edit = u"cmdalterarr"_s,
                                      .remove = u"cmdremoverr"_s,
                                      .settle = u"popbaixareceber"_s,
                                      .installments = u"cmdmultiplosr"_s,
                                      .history = u"cmdhistoricocli"_s,
                                      .months = u"cmdmesr"_s,
                                      .goals = u"cmdprojecoesr"_s,
                                      .receipt = u"cmdrecibor"_s,
                                      .exportSuffix = u"r"_s,
                                      .reportTitle = u"Contas a receber"_s,
                                      .pages = modimpressao::ListKind::Receivables,
                                      .centreLabel = u"Centro de l&ucro:"_s,
                                      .contactLabel = u"Clie&nte:"_s,
                                      .emptyText = u"Nenhuma conta a receber com estes filtros"_s};
    return names;
}

EntryPane::EntryPane(const Side &side, const EntryPaneNames &names, QWidget *parent)
    : ListPane(parent), m_ui(std::make_unique<Ui::EntryPane>()), m_side(side), m_names(names)
{
    m_ui->setupUi(this);
    nameControls();
    setUp(m_ui->lista, m_ui->total,
          new ListFeed(*m_ui->lista, entrylist::columns(side), std::make_unique<EntryTotals>(),
                       side.loadingTitle));
    m_ui->lista->setEmptyText(names.emptyText);
    makeFilters();
    makeCommands();
}

EntryPane::~EntryPane() = default;

void EntryPane::applySigns()
{
    if (!settings::isOn(settings::rowSigns)) {
        list().table().setSigns(-1, {});
        return;
    }
    const int status = entrylist::columnOf(m_side, u"estatus"),
              due = entrylist::columnOf(m_side, u"vencimento");
    list().table().setSigns(status, [this, status, due](int row) {
        const TableModel &table = list().table();
        if (table.cell(row, status) != status::pending)
            return RowSign::Settled;
        const QDate date = dates::read(table.cell(row, due)), today = programclock::today();
        if (!date.isValid() || date > today)
            return RowSign::None;
        return date < today ? RowSign::Overdue : RowSign::DueToday;
    });
}

void EntryPane::nameControls()
{
    m_ui->baseado->setObjectName(m_names.basedOn);
    m_ui->tipo->setObjectName(m_names.status);
    m_ui->banco->setObjectName(m_names.account);
    m_ui->centro->setObjectName(m_names.centre);
    m_ui->contato->setObjectName(m_names.contact);
    m_ui->filtro->setObjectName(m_names.period);
    m_ui->lista->setObjectName(m_names.list);
    m_ui->total->setObjectName(m_names.totals);
    m_ui->rotuloCentro->setText(m_names.centreLabel);
    m_ui->rotuloContato->setText(m_names.contactLabel);
}

void EntryPane::makeFilters()
{
    m_ui->baseado->addItems(entryfilter::basedOnChoices());
    m_ui->tipo->addItems(entryfilter::statusChoices());
    m_ui->filtro->addItems(period::choices());
    m_ui->banco->addItem(entryfilter::allAccounts.toString());
    m_ui->centro->addItem(m_side.allCentres);
    m_ui->contato->addItem(m_side.allContacts);
    filters().add(m_ui->baseado);
    filters().add(m_ui->tipo, m_side.statusKey);
    filters().add(m_ui->banco, m_side.accountKey);
    filters().add(m_ui->centro, m_side.centreKey);
    filters().add(m_ui->contato, m_side.contactKey);
    filters().add(m_ui->filtro, m_side.periodKey);
}

void EntryPane::makeCommands()
{
    const auto command = [this](const QString &name, const listcommand::Look &look) {
        return listcommand::add(m_ui->comandos, *m_ui->lista, name, look);
    };
    addCommand = command(m_names.add, listcommand::addLook(u"Adiciona um lançamento"_s));
    installmentsCommand = command(m_names.installments, {u"Múltiplas parcelas"_s, u"view-calendar-month"_s,
                                                         u"Adiciona uma série de parcelas de uma vez"_s});
    editCommand = command(m_names.edit, listcommand::editLook(u"Altera o lançamento selecionado"_s));
    removeCommand = command(m_names.remove, listcommand::removeLook(u"Remove os lançamentos selecionados"_s));
    settleCommand = command(m_names.settle, {u"Efetuar baixa"_s, u"dialog-ok-apply"_s,
                                             u"Marca o lançamento selecionado como concluído hoje"_s});
    historyCommand = command(m_names.history, {u"Histórico"_s, u"view-financial-list"_s,
                                               u"Todos os lançamentos de quem está na linha selecionada"_s});
    receiptCommand = command(m_names.receipt, {u"Recibo"_s, u"document-preview"_s,
                                               u"Imprime um recibo do lançamento selecionado"_s});
    const auto button = [this](const QString &name, const listcommand::Look &look) {
        return listcommand::addButton(m_ui->comandos, *m_ui->lista, name, look);
    };
    monthsCommand = button(
        m_names.months, {u"Por mês"_s, u"view-calendar"_s, u"Os lançamentos de um ano, separados por mês"_s});
    goalsCommand = button(
        m_names.goals, {u"Metas"_s, u"office-chart-line"_s, u"A meta de um mês e o que já foi efetivado"_s});
    addListExport(
        m_ui->comandos, *m_ui->lista, m_names.exportSuffix, [this] { return report(); }, m_names.pages);
    connect(m_ui->lista, &ListView::rowActivated, editCommand, &QAction::trigger);
    connect(m_ui->lista, &ListView::insertRequested, addCommand, &QAction::trigger);
    connect(m_ui->lista, &ListView::removeRequested, removeCommand, &QAction::trigger);
}

Report EntryPane::report()
{
    feed().finish();
    return {.title = m_names.reportTitle,
            .subtitle = filter().period,
            .filterText = entryfilter::description(filter()),
            .tables = {m_ui->lista->tableSource()},
            .statistics = m_ui->total->text()};
}

EntryFilter EntryPane::filter() const
{
    return {.basedOn = m_ui->baseado->currentText(),
            .status = m_ui->tipo->currentText(),
            .account = m_ui->banco->currentText(),
            .centre = m_ui->centro->currentText(),
            .contact = m_ui->contato->currentText(),
            .period = m_ui->filtro->currentText()};
}

QString EntryPane::query() const
{
    return entryfilter::query(m_side, filter(), programclock::today());
}

QString EntryPane::totalsText() const
{
    return static_cast<const EntryTotals &>(feed().totals()).text(m_side);
}

std::vector<std::pair<QComboBox *, QString>> EntryPane::nameBoxes() const
{
    return {
        {m_ui->contato, m_side.contactColumn}, {m_ui->centro, u"descricao"_s}, {m_ui->banco, u"origem"_s}};
}

void EntryPane::refillFilterBoxes()
{
    const std::shared_ptr<Connection> database = openDatabase();
    for (const auto &[box, column] : nameBoxes())
        FilterBoxes::refill(box, box->itemText(0), entrylist::distinct(*database, m_side, column));
}

bool EntryPane::changesNames(const Change &change)
{
    if (change.rows.empty())
        return true;
    const std::shared_ptr<Connection> database = openDatabase();
    for (const RowChange &row : change.rows) {
        for (const auto &[box, column] : nameBoxes()) {
            const QString before = row.before.text(column), after = row.after.text(column);
            const bool isNew = row.after.exists() && box->findText(after, Qt::MatchFixedString) < 0;
            const bool wasLast = row.before.exists() && before != after &&
                                 !entrylist::isNamed(*database, m_side, column, before);
            if (isNew || wasLast)
                return true;
        }
    }
    return false;
}
