#include "entries/entrypane.h"
#include "ui_entrypane.h"

#include "data/clock.h"
#include "entries/entrylist.h"
#include "lists/period.h"
#include "reports/listexportcommands.h"
#include "settings/database.h"
#include "widgets/filterbox.h"
#include "widgets/frmcarregando.h"
#include "widgets/listcommand.h"
#include "widgets/messages.h"
#include "widgets/waittext.h"

#include <QAction>

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
                                      .exportSuffix = u"p"_s,
                                      .reportTitle = u"Contas a pagar"_s,
                                      .pages = modimpressao::ListKind::Payables,
                                      .centreLabel = u"Centro de c&usto:"_s,
                                      .contactLabel = u"Fo&rnecedor:"_s,
                                      .emptyText = u"Nenhuma conta a pagar com estes filtros"_s,
                                      .layout = listlayout::payables()};
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
                                      .exportSuffix = u"r"_s,
                                      .reportTitle = u"Contas a receber"_s,
                                      .pages = modimpressao::ListKind::Receivables,
                                      .centreLabel = u"Centro de l&ucro:"_s,
                                      .contactLabel = u"Clie&nte:"_s,
                                      .emptyText = u"Nenhuma conta a receber com estes filtros"_s,
                                      .layout = listlayout::receivables()};
    return names;
}

EntryPane::EntryPane(const Side &side, const EntryPaneNames &names, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::EntryPane>()), m_side(side), m_names(names)
{
    m_ui->setupUi(this);
    nameControls();
    makeCommands();
    m_ui->lista->setColumns(entrylist::columns(side));
    m_ui->lista->setEmptyText(names.emptyText);
    m_ui->total->setText(EntryTotals().text(side));

    m_ui->baseado->addItems(entryfilter::basedOnChoices());
    m_ui->tipo->addItems(entryfilter::statusChoices());
    m_ui->filtro->addItems(period::choices());
    m_ui->banco->addItem(entryfilter::allAccounts.toString());
    m_ui->centro->addItem(side.allCentres);
    m_ui->contato->addItem(side.allContacts);
    for (QComboBox *box : {m_ui->baseado, m_ui->tipo, m_ui->banco, m_ui->centro, m_ui->contato, m_ui->filtro})
        connect(box, &QComboBox::currentTextChanged, this, &EntryPane::filterChanged);
    m_applied = filter();
}

EntryPane::~EntryPane() = default;

ListView &EntryPane::list()
{
    return *m_ui->lista;
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
    addListExport(
        m_ui->comandos, *m_ui->lista, m_names.exportSuffix, [this] { return report(); }, m_names.pages);
    connect(m_ui->lista, &ListView::rowActivated, editCommand, &QAction::trigger);
    connect(m_ui->lista, &ListView::removeRequested, removeCommand, &QAction::trigger);
}

Report EntryPane::report()
{
    return {.title = m_names.reportTitle,
            .subtitle = m_applied.period,
            .filterText = entryfilter::description(m_applied),
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

void EntryPane::showFilter(const EntryFilter &filter)
{
    filterbox::show(m_ui->baseado, filter.basedOn);
    filterbox::show(m_ui->tipo, filter.status);
    filterbox::show(m_ui->banco, filter.account);
    filterbox::show(m_ui->centro, filter.centre);
    filterbox::show(m_ui->contato, filter.contact);
    filterbox::show(m_ui->filtro, filter.period);
}

void EntryPane::restoreFilters()
{
    filterbox::restore(m_ui->tipo, m_side.statusKey);
    filterbox::restore(m_ui->banco, m_side.accountKey);
    filterbox::restore(m_ui->centro, m_side.centreKey);
    filterbox::restore(m_ui->contato, m_side.contactKey);
    filterbox::restore(m_ui->filtro, m_side.periodKey);
    m_applied = filter();
}

void EntryPane::filterChanged()
{
    if (!reload()) {
        showFilter(m_applied);
        return;
    }
    m_applied = filter();
    messages::guarded(this, messages::generalPrefix, [this] {
        settings::setValue(m_side.statusKey, m_applied.status);
        settings::setValue(m_side.accountKey, m_applied.account);
        settings::setValue(m_side.centreKey, m_applied.centre);
        settings::setValue(m_side.contactKey, m_applied.contact);
        settings::setValue(m_side.periodKey, m_applied.period);
    });
}

bool EntryPane::reload()
{
    return messages::guarded(this, messages::generalPrefix, [this] {
        const QString query = entryfilter::query(m_side, filter(), programclock::today());
        WaitProgress progress(window(), m_side.loadingTitle, listWaitText());
        EntryList entries = entrylist::load(*openDatabase(), m_side, query, &progress);
        m_ui->lista->setRows(std::move(entries.rows));
        m_ui->total->setText(entries.totals.text(m_side));
        m_query = query;
    });
}

void EntryPane::refillFilterBoxes()
{
    messages::guarded(this, messages::generalPrefix, [this] {
        const std::shared_ptr<Connection> database = openDatabase();
        Connection &connection = *database;
        filterbox::refill(m_ui->contato, m_side.allContacts,
                          entrylist::distinct(connection, m_side, m_side.contactColumn));
        filterbox::refill(m_ui->centro, m_side.allCentres,
                          entrylist::distinct(connection, m_side, u"descricao"_s));
        filterbox::refill(m_ui->banco, entryfilter::allAccounts.toString(),
                          entrylist::distinct(connection, m_side, u"origem"_s));
    });
}

void EntryPane::restoreLayout()
{
    m_ui->lista->applyLayout(listlayout::load(m_names.layout));
}

void EntryPane::saveLayout()
{
    listlayout::save(m_names.layout, m_ui->lista->layout());
}
