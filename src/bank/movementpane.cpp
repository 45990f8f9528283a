#include "bank/movementpane.h"
#include "ui_movementpane.h"

#include "bank/frmmovimentobanc.h"
#include "data/changes.h"
#include "data/clock.h"
#include "lists/period.h"
#include "reports/listexportcommands.h"
#include "settings/database.h"
#include "widgets/listcommand.h"
#include "widgets/messages.h"
#include "widgets/settingmenu.h"

#include <QAction>
#include <QComboBox>
#include <QRadioButton>

using namespace Qt::StringLiterals;

MovementPane::MovementPane(QWidget *parent) : ListPane(parent), m_ui(std::make_unique<Ui::MovementPane>())
{
    m_ui->setupUi(this);
    setUp(m_ui->lstmovimento, m_ui->lbltotalm,
          new ListFeed(*m_ui->lstmovimento, movementlist::columns(), std::make_unique<MovementTotals>(),
                       movementlist::loadingTitle.toString()));
    m_ui->lstmovimento->setEmptyText(u"Nenhum movimento bancário com estes filtros"_s);
    makeFilters();
    makeCommands();
    makePeriodMenu();
}

MovementPane::~MovementPane() = default;

void MovementPane::makeFilters()
{
    m_ui->cbotipom->addItems(movementlist::kindChoices());
    m_ui->cbofiltrom->addItems(period::choices());
    m_ui->cboorgm->addItems(movementlist::sortChoices());
    filters().add(m_ui->cbotipom, settings::movementKind);
    filters().add(m_ui->cbofiltrom, settings::movementPeriod);
    filters().add(m_ui->cboorgm, settings::movementSort);
    filters().add(m_ui->optascm, m_ui->optdescm, settings::movementAscending);
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
            feed().finish();
            return Report{.title = u"Movimento bancário"_s,
                          .subtitle = movementlist::shownPeriod(filter()),
                          .filterText = filter().kind,
                          .tables = {m_ui->lstmovimento->tableSource()},
                          .statistics = m_ui->lbltotalm->text()};
        },
        modimpressao::ListKind::Movements);
    connect(addCommand, &QAction::triggered, this, [this] { frmmovimentobanc::openNew(window()); });
    connect(editCommand, &QAction::triggered, this, &MovementPane::editSelected);
    connect(removeCommand, &QAction::triggered, this, &MovementPane::removeSelected);
    connect(m_ui->lstmovimento, &ListView::rowActivated, editCommand, &QAction::trigger);
    connect(m_ui->lstmovimento, &ListView::insertRequested, addCommand, &QAction::trigger);
    connect(m_ui->lstmovimento, &ListView::removeRequested, removeCommand, &QAction::trigger);
}

void MovementPane::makePeriodMenu()
{
    settingmenu::add(m_ui->lstmovimento, settings::bankViewPeriod,
                     {{u"popbanctodos"_s, u"&Sem limite"_s, u"0"_s},
                      {u"popbancmes"_s, u"Limitar ao &mês atual"_s, u"1"_s},
                      {u"popbancano"_s, u"Limitar ao &ano atual"_s, u"2"_s}});
    connect(&Changes::instance(), &Changes::changed, this,
            [this, limit = settings::value(settings::bankViewPeriod)](const Change &change) mutable {
                if (change.subject == Subject::Settings &&
                    std::exchange(limit, settings::value(settings::bankViewPeriod)) !=
                        settings::value(settings::bankViewPeriod))
                    reload();
            });
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
        frmmovimentobanc::openEdit(feed().key(row), window(), feed().serial());
}

void MovementPane::removeSelected()
{
    if (selectedOrTell() < 0)
        return;
    if (!messages::confirmRemoval(this))
        return;
    std::vector<qint64> codes;
    for (const int row : m_ui->lstmovimento->selectedRows())
        codes.push_back(feed().key(row));
    const OwnCommand own(*this);
    if (!messages::guarded(this, messages::removePrefix,
                           [&] { movement::remove(*openDatabase(feed().serial()), codes); }))
        reload(); // a movement may be gone
}

MovementFilter MovementPane::filter() const
{
    return {.kind = m_ui->cbotipom->currentText(),
            .period = m_ui->cbofiltrom->currentText(),
            .sortBy = m_ui->cboorgm->currentText(),
            .ascending = m_ui->optascm->isChecked(),
            .limit = settings::value(settings::bankViewPeriod)};
}

QString MovementPane::query() const
{
    return movementlist::query(filter(), programclock::today());
}

QString MovementPane::totalsText() const
{
    return static_cast<const MovementTotals &>(feed().totals()).text();
}
