#include "app/frmprincipal.h"
#include "ui_frmprincipal.h"

#include "agenda/frmalerta.h"
#include "analysis/frmconfextrato.h"
#include "analysis/frmpormes.h"
#include "analysis/frmprojecao.h"
#include "app/accesscommands.h"
#include "app/backupcommands.h"
#include "app/frmconfigsoft.h"
#include "app/frmdica.h"
#include "app/listreader.h"
#include "app/reportmenus.h"
#include "app/screencommands.h"
#include "app/switchcommands.h"
#include "app/toolbarcommands.h"
#include "bank/accountpane.h"
#include "bank/movementpane.h"
#include "data/clock.h"
#include "data/dates.h"
#include "entries/entrycommands.h"
#include "entries/entrylist.h"
#include "entries/entrypane.h"
#include "mail/frmviaemail.h"
#include "settings/database.h"
#include "settings/listlayout.h"
#include "widgets/background.h"
#include "widgets/liststyle.h"
#include "widgets/listview.h"
#include "widgets/messages.h"

#include <QCloseEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QStatusBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int betweenTries = 5'000; ///< milliseconds, to open a database that was not there

} // namespace

frmPrincipal::frmPrincipal(QWidget *parent) : QMainWindow(parent), m_ui(std::make_unique<Ui::frmPrincipal>())
{
    m_ui->setupUi(this);
    m_welcome = new QLabel(this);
    m_welcome->setObjectName(u"lblbemvindo"_s);
    statusBar()->addWidget(m_welcome);
    makeTabs();
    connectCommands();
    connect(&Changes::instance(), &Changes::changed, this, &frmPrincipal::dataChanged);
}

frmPrincipal::~frmPrincipal() = default;

void frmPrincipal::makeTabs()
{
    m_payables = new EntryPane(payable(), payablePaneNames(), this);
    m_receivables = new EntryPane(receivable(), receivablePaneNames(), this);
    m_movements = new MovementPane(this);
    m_accounts = new AccountPane(this);
    m_ui->tabprincipal->addTab(m_payables, QIcon::fromTheme(u"view-financial-category-expense"_s),
                               u"Contas a pagar"_s);
    m_ui->tabprincipal->addTab(m_receivables, QIcon::fromTheme(u"view-financial-category-income"_s),
                               u"Contas a receber"_s);
    m_ui->tabprincipal->addTab(m_movements, QIcon::fromTheme(u"view-financial-transfer-reconcile"_s),
                               u"Movimento bancário"_s);
    m_ui->tabprincipal->addTab(m_accounts, QIcon::fromTheme(u"view-bank"_s), u"Caixas e bancos"_s);
    const std::pair<QMenu *, QWidget *> menus[] = {{m_ui->mnueditarpagar, m_payables},
                                                   {m_ui->mnueditarreceber, m_receivables},
                                                   {m_ui->mnueditarbancario, m_movements},
                                                   {m_ui->mnueditarbancos, m_accounts}};
    for (const auto &[menu, pane] : menus)
        menu->addActions(pane->findChild<ListView *>()->actions());
    m_reader = new ListReader(listPanes(), *m_accounts, this);
    connect(m_ui->tabprincipal, &QTabWidget::currentChanged, m_reader, &ListReader::show);
    for (EntryPane *pane : {m_payables, m_receivables})
        new EntryCommands(*pane, *m_receivables, this);
    m_tryAgain.setInterval(betweenTries);
    connect(&m_tryAgain, &QTimer::timeout, this, &frmPrincipal::tryToOpen);
}

void frmPrincipal::connectCommands()
{
    connect(m_ui->mnucaddespesas, &QAction::triggered, m_payables->addCommand, &QAction::trigger);
    connect(m_ui->mnucadrececeber, &QAction::triggered, m_receivables->addCommand, &QAction::trigger);
    connect(m_ui->mnucadbancario, &QAction::triggered, m_movements->addCommand, &QAction::trigger);
    connectScreenCommands(*this);
    makeReportMenus(*this);
    completeToolBar(*this);
    m_access = new AccessCommands(*this);
    m_switches = new SwitchCommands(*this);
    connect(m_ui->mnurestbak, &QAction::triggered, this, [this] {
        if (backupcommands::restore(this))
            reloadAll();
    });
    for (EntryPane *pane : {m_payables, m_receivables}) {
        connect(pane->monthsCommand, &QAction::triggered, this,
                [this, pane] { frmPorMes::open(pane->side(), monthview::Basis::EntryDate, this); });
        connect(pane->goalsCommand, &QAction::triggered, this,
                [this, pane] { frmProjecao::open(pane->side(), this); });
    }
    connect(m_accounts->statementCommand, &QAction::triggered, this,
            [this] { frmconfextrato::open(this, m_accounts->selectedAccount()); });
    connect(m_ui->mnucadbancos, &QAction::triggered, m_accounts->addCommand, &QAction::trigger);
    connect(m_ui->mnuviscaixabanco, &QAction::triggered, this, [this] {
        showTab(AccountsTab);
        m_accounts->refresh();
    });
    connect(m_ui->mnuatualizarlistas, &QAction::triggered, this, &frmPrincipal::reloadAll);
    connect(m_ui->mnuconfigsoft, &QAction::triggered, this, [this] { frmConfigSoft(this).exec(); });
    connect(m_ui->mnusair, &QAction::triggered, this, &QWidget::close);
}

void frmPrincipal::start()
{
    background::apply(m_accounts->list().viewport()); // the one place of the window that lists leave empty
    for (ListPane *pane : listPanes())
        pane->restoreFilters();
    if (settings::value(settings::tipOfTheDay) != "0"_L1)
        frmDica::open(this);
    showDate();
    for (const auto &[pane, file] : layouts())
        pane->list().applyLayout(listlayout::load(file));
    m_layoutShown = true;
    applySettings();
    reloadAll();
    connect(&m_day, &DayWatch::changed, this, [this] {
        showDate();
        alertDue();
    });
    QCoreApplication::sendPostedEvents(); // the rest of the lists is read when the window has answered
}

void frmPrincipal::showDate()
{
    m_welcome->setText(u"Seja bem vindo ao software   -   "_s + dates::longDate(programclock::today()));
}

/// Once somebody is in, and at midnight in a program that is left running.
void frmPrincipal::alertDue()
{
    if (m_access->isIn() && settings::isOn(settings::dueAlerts))
        frmAlerta::open(this);
}

QList<ListPane *> frmPrincipal::listPanes() const
{
    return {m_payables, m_receivables, m_movements};
}

std::vector<std::pair<ListPane *, ListLayoutFile>> frmPrincipal::layouts() const
{
    return {{m_payables, entrylist::layoutFile(payable())},
            {m_receivables, entrylist::layoutFile(receivable())},
            {m_movements, movementlist::layoutFile()}};
}

void frmPrincipal::showTab(Tab tab)
{
    const QSignalBlocker blocker(m_ui->tabprincipal);
    m_ui->tabprincipal->setCurrentIndex(tab);
}

/// Reads everything anew: the tab in front at once, the others as time allows.
void frmPrincipal::reloadAll()
{
    m_tryAgain.stop();
    const bool wasIn = m_access->isIn();
    bool isIn = false;
    if (!messages::guarded(this, messages::openPrefix, [&] { isIn = m_access->letIn(); })) {
        m_tryAgain.start();
        return;
    }
    if (!isIn)
        return;
    if (!wasIn)
        QMetaObject::invokeMethod(this, &frmPrincipal::alertDue, Qt::QueuedConnection);
    m_reader->readAll(m_ui->tabprincipal->currentIndex());
}

/// The network may be back, or the file.
void frmPrincipal::tryToOpen()
{
    try {
        openDatabase();
    } catch (const Error &) {
        return;
    }
    reloadAll();
}

ListPane *frmPrincipal::paneOf(Subject subject) const
{
    const std::pair<Subject, ListPane *> panes[] = {{Subject::Payables, m_payables},
                                                    {Subject::Receivables, m_receivables},
                                                    {Subject::Movements, m_movements}};
    const auto found = std::ranges::find(panes, subject, &std::pair<Subject, ListPane *>::first);
    return found == std::end(panes) ? nullptr : found->second;
}

/// The one place where the window follows what was written, by its own commands or by other screens.
void frmPrincipal::dataChanged(const Change &change)
{
    if (change.subject == Subject::Settings)
        applySettings();
    if (change.subject == Subject::Database)
        reloadAll();
    ListPane *pane = paneOf(change.subject);
    if (!pane && change.subject != Subject::Accounts)
        return;
    const bool ownCommand = pane ? pane->isCommanding() : m_accounts->isCommanding();
    if (!ownCommand && !settings::isOn(settings::refreshMainWindow)) {
        if (pane)
            pane->skip();
        m_accounts->skip();
        return;
    }
    if (!ownCommand)
        showTab(pane ? Tab(listPanes().indexOf(pane)) : AccountsTab);
    if (pane)
        pane->follow(change);
    m_accounts->follow(change);
}

void frmPrincipal::applySettings()
{
    for (ListView *list : m_ui->tabprincipal->findChildren<ListView *>())
        applyListStyle(*list);
    m_switches->show();
}

void frmPrincipal::closeEvent(QCloseEvent *event)
{
    if (!frmViaEmail::mayClose(this))
        return event->ignore();
    if (m_layoutShown)
        messages::guarded(this, messages::generalPrefix, [this] {
            std::vector<std::pair<ListLayoutFile, ListLayout>> shown;
            for (const auto &[pane, file] : layouts())
                shown.emplace_back(file, pane->list().layout());
            listlayout::saveAll(shown);
        });
    QMainWindow::closeEvent(event);
}
