#include "analysis/todaypane.h"
#include "ui_todaypane.h"

#include "bank/accountpane.h"
#include "data/clock.h"
#include "entries/frmadicionar.h"
#include "entries/settlecommands.h"
#include "settings/autobackup.h"
#include "settings/database.h"
#include "settings/settings.h"
#include "widgets/messages.h"

#include <QHeaderView>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace {

const Side &sideOf(Subject subject)
{
    return subject == Subject::Payables ? payable() : receivable();
}

void showTable(ListView &list, std::shared_ptr<const StoredTable> table)
{
    list.setTable(std::move(table));
    list.header()->setStretchLastSection(true);
}

} // namespace

TodayPane::TodayPane(AccountPane &accounts, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::TodayPane>()), m_accounts(accounts), m_work(this)
{
    m_ui->setupUi(this);
    m_ui->lsthoje->setEmptyText(u"Nada vencido e nada a vencer nos próximos %1 dias"_s.arg(TodayFacts::soon));
    m_ui->chkabrirhoje->setChecked(settings::isOn(settings::openToday));
    m_ui->lblaviso->hide();
    m_ui->cmdcopias->hide();
    connectControls();
}

TodayPane::~TodayPane() = default;

void TodayPane::connectControls()
{
    connect(m_ui->lsthoje, &ListView::rowActivated, this, &TodayPane::open);
    connect(m_ui->cmdabrir, &QPushButton::clicked, this, [this] {
        const int row = m_ui->lsthoje->selectedRowOrTell(u"Hoje"_s, u"Selecione um lançamento na lista."_s);
        if (row >= 0)
            open(row);
    });
    connect(m_ui->cmdbaixahoje, &QPushButton::clicked, this, &TodayPane::settle);
    connect(m_ui->cmdcopias, &QPushButton::clicked, this, &TodayPane::copiesWanted);
    connect(m_ui->chkabrirhoje, &QCheckBox::toggled, this, [this](bool on) {
        messages::guarded(window(), messages::generalPrefix,
                          [on] { settings::setValue(settings::openToday, on ? u"1"_s : u"0"_s); });
    });
    connect(&m_accounts, &AccountPane::loaded, this, &TodayPane::showBalances);
}

void TodayPane::readAll()
{
    m_mayRead = true;
    m_isStale = true;
    if (isVisible())
        refresh();
}

/// Short work is done on return, the rest goes on while the window answers.
void TodayPane::refresh()
{
    messages::guarded(window(), messages::generalPrefix, [this] {
        const auto load = std::make_shared<TodayLoad>(openDatabase(), programclock::today());
        m_isStale = false;
        m_work.start({.title = u"Hoje"_s,
                      .text = u"Por favor aguarde enquanto o software carrega os dados."_s,
                      .run = [load](const QDeadlineTimer &until) { return load->run(until); },
                      .interrupted = {},
                      .done =
                          [this, load] {
                              m_facts = load->take();
                              showFacts();
                          },
                      .failed =
                          [this](const Error &error) {
                              m_isStale = true;
                              messages::error(window(), messages::generalPrefix, error);
                          },
                      .total = [] { return qint64(0); },
                      .progress = [] { return qint64(0); }});
    });
}

void TodayPane::follow(const Change &change)
{
    if (change.subject != Subject::Payables && change.subject != Subject::Receivables &&
        change.subject != Subject::Accounts && change.subject != Subject::Database)
        return;
    m_isStale = true;
    if (m_mayRead && isVisible())
        refresh();
}

void TodayPane::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_mayRead && (m_isStale || m_facts.day != programclock::today()))
        refresh();
}

void TodayPane::showFacts()
{
    showTable(*m_ui->lstresumo, today::summary(m_facts));
    showTable(*m_ui->lstmeses, today::months(m_facts));
    showTable(*m_ui->lsthoje, m_facts.due);
    showProjection();
    messages::guarded(window(), messages::generalPrefix, [this] { m_ui->primeirospassos->refresh(); });
    const QString warning = autobackup::warning(m_facts.day);
    m_ui->lblaviso->setText(u"⚠ "_s + warning);
    for (QWidget *part : std::initializer_list<QWidget *>{m_ui->lblaviso, m_ui->cmdcopias})
        part->setVisible(!warning.isEmpty());
}

void TodayPane::showBalances()
{
    showTable(*m_ui->lstsaldos, today::balances(m_accounts.balances()));
    if (m_facts.day.isValid())
        showProjection();
}

void TodayPane::showProjection()
{
    const std::vector<Sum> cash = today::projection(m_facts, today::total(m_accounts.balances()));
    const QString words = today::projectionText(m_facts, cash);
    m_ui->lblprojecao->setText(words);
    m_ui->graprojecao->setAccessibleDescription(words);
    m_ui->graprojecao->setCash(m_facts.day, cash);
}

void TodayPane::open(int row)
{
    if (const auto origin = m_ui->lsthoje->origin(row))
        frmAdicionar::openEdit(sideOf(origin->subject), QString::number(origin->key), window(), origin->file);
}

/// The selected entries of one side go together; a choice of both is settled one side after the other.
void TodayPane::settle()
{
    if (m_ui->lsthoje->selectedRowOrTell(u"Hoje"_s, u"Selecione um lançamento na lista."_s) < 0)
        return;
    QStringList payables, receivables;
    quint64 file = 0;
    for (const int row : m_ui->lsthoje->selectedRows()) // settling reads the list anew
        if (const auto origin = m_ui->lsthoje->origin(row)) {
            (origin->subject == Subject::Payables ? payables : receivables) << QString::number(origin->key);
            file = origin->file;
        }
    const QScopedValueRollback commanding(m_isCommanding, true);
    for (const auto &[side, codes] : {std::pair(&payable(), payables), {&receivable(), receivables}})
        if (!codes.isEmpty() &&
            settlecommands::settle(this, *side, file, codes) == settlecommands::Outcome::Gone)
            refresh();
}
