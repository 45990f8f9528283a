#include "bank/movementpane.h"
#include "ui_movementpane.h"

#include "bank/frmmovimentobanc.h"
#include "data/clock.h"
#include "lists/period.h"
#include "reports/listexportcommands.h"
#include "settings/database.h"
#include "settings/listlayout.h"
#include "widgets/filterbox.h"
#include "widgets/frmcarregando.h"
#include "widgets/listcommand.h"
#include "widgets/messages.h"
#include "widgets/waittext.h"

#include <QAction>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

MovementPane::MovementPane(QWidget *parent) : QWidget(parent), m_ui(std::make_unique<Ui::MovementPane>())
{
    m_ui->setupUi(this);
    makeCommands();
    m_ui->lstmovimento->setColumns(movementlist::columns());
    m_ui->lstmovimento->setEmptyText(u"Nenhum movimento bancário com estes filtros"_s);
    m_ui->lbltotalm->setText(MovementTotals().text());
    m_ui->cbotipom->addItems(movementlist::kindChoices());
    m_ui->cbofiltrom->addItems(period::choices());
    m_ui->cboorgm->addItems(movementlist::sortChoices());
    for (QComboBox *box : {m_ui->cbotipom, m_ui->cbofiltrom, m_ui->cboorgm})
        connect(box, &QComboBox::currentTextChanged, this, &MovementPane::filterChanged);
    connect(m_ui->optascm, &QRadioButton::toggled, this, &MovementPane::filterChanged);
    m_applied = filter();
}

MovementPane::~MovementPane() = default;

ListView &MovementPane::list()
{
    return *m_ui->lstmovimento;
}

void MovementPane::makeCommands()
{
    const auto command = [this](const QString &name, const listcommand::Look &look) {
        return listcommand::add(m_ui->comandos, *m_ui->lstmovimento, name, look);
    };
    addCommand = command(u"cmdadicionarm"_s, listcommand::addLook(u"Adiciona um movimento bancário"_s));
    editCommand = command(u"cmdalterarm"_s, listcommand::editLook(u"Altera o movimento selecionado"_s));
    removeCommand =
        command(u"cmdremoverm"_s, listcommand::removeLook(u"Remove os movimentos selecionados"_s));
    addListExport(
        m_ui->comandos, *m_ui->lstmovimento, u"m"_s,
        [this] {
            return Report{.title = u"Movimento bancário"_s,
                          .subtitle = m_applied.period,
                          .filterText = m_applied.kind,
                          .tables = {m_ui->lstmovimento->tableSource()},
                          .statistics = m_ui->lbltotalm->text()};
        },
        modimpressao::ListKind::Movements);
    connect(addCommand, &QAction::triggered, this, [this] { frmmovimentobanc::openNew(window()); });
    connect(editCommand, &QAction::triggered, this, &MovementPane::editSelected);
    connect(removeCommand, &QAction::triggered, this, &MovementPane::removeSelected);
    connect(m_ui->lstmovimento, &ListView::rowActivated, editCommand, &QAction::trigger);
    connect(m_ui->lstmovimento, &ListView::removeRequested, removeCommand, &QAction::trigger);
}

int MovementPane::selectedOrTell()
{
    return m_ui->lstmovimento->selectedRowOrTell(u"Movimento bancário"_s,
                                                 u"Selecione um movimento na lista."_s);
}

void MovementPane::editSelected()
{
    const int row = selectedOrTell();
    if (row >= 0)
        frmmovimentobanc::openEdit(m_ui->lstmovimento->cell(row, 0).toLongLong(), window());
}

void MovementPane::removeSelected()
{
    if (selectedOrTell() < 0)
        return;
    if (!messages::confirmRemoval(this))
        return;
    std::vector<qint64> codes;
    for (const int row : m_ui->lstmovimento->selectedRows())
        codes.push_back(m_ui->lstmovimento->cell(row, 0).toLongLong());
    if (messages::guarded(this, messages::removePrefix, [&] { movement::remove(*openDatabase(), codes); }))
        Q_EMIT changed();
}

MovementFilter MovementPane::filter() const
{
    return {.kind = m_ui->cbotipom->currentText(),
            .period = m_ui->cbofiltrom->currentText(),
            .sortBy = m_ui->cboorgm->currentText(),
            .ascending = m_ui->optascm->isChecked()};
}

void MovementPane::showFilter(const MovementFilter &filter)
{
    filterbox::show(m_ui->cbotipom, filter.kind);
    filterbox::show(m_ui->cbofiltrom, filter.period);
    filterbox::show(m_ui->cboorgm, filter.sortBy);
    const QSignalBlocker blocker(m_ui->optascm);
    (filter.ascending ? m_ui->optascm : m_ui->optdescm)->setChecked(true);
}

void MovementPane::restoreFilters()
{
    m_applied = {.kind = settings::value(settings::movementKind),
                 .period = settings::value(settings::movementPeriod),
                 .sortBy = settings::value(settings::movementSort),
                 .ascending = settings::value(settings::movementAscending).toLower() == u"true"};
    showFilter(m_applied);
}

void MovementPane::filterChanged()
{
    if (!reload()) {
        showFilter(m_applied);
        return;
    }
    m_applied = filter();
    messages::guarded(this, messages::generalPrefix, [this] {
        settings::setValue(settings::movementKind, m_applied.kind);
        settings::setValue(settings::movementPeriod, m_applied.period);
        settings::setValue(settings::movementSort, m_applied.sortBy);
        settings::setValue(settings::movementAscending, m_applied.ascending ? u"true"_s : u"false"_s);
    });
}

bool MovementPane::reload()
{
    return messages::guarded(this, messages::generalPrefix, [this] {
        const QString query = movementlist::query(filter(), programclock::today());
        WaitProgress progress(window(), movementlist::loadingTitle.toString(), listWaitText());
        MovementList movements = movementlist::load(*openDatabase(), query, &progress);
        m_ui->lstmovimento->setRows(std::move(movements.rows));
        m_ui->lbltotalm->setText(movements.totals.text());
    });
}

void MovementPane::restoreLayout()
{
    m_ui->lstmovimento->applyLayout(listlayout::load(listlayout::movements()));
}

void MovementPane::saveLayout()
{
    listlayout::save(listlayout::movements(), m_ui->lstmovimento->layout());
}
