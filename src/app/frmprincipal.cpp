#include "app/frmprincipal.h"
#include "ui_frmprincipal.h"

#include "agenda/frmalerta.h"
#include "analysis/frmconfextrato.h"
#include "analysis/frmpormes.h"
#include "analysis/frmprojecao.h"
#include "analysis/todaypane.h"
#include "app/accesscommands.h"
#include "app/backupcommands.h"
#include "app/frmconfigsoft.h"
#include "app/frmdica.h"
#include "app/historycommands.h"
#include "app/maintabs.h"
#include "app/reportmenus.h"
#include "app/screencommands.h"
#include "app/switchcommands.h"
#include "app/toolbarcommands.h"
#include "bank/accountpane.h"
#include "bank/movementpane.h"
#include "data/clock.h"
#include "data/dates.h"
#include "entries/entrypane.h"
#include "entries/regular.h"
#include "mail/frmviaemail.h"
#include "settings/database.h"
#include "settings/tips.h"
#include "widgets/listview.h"
#include "widgets/messages.h"

#include <QCloseEvent>
#include <QLabel>
#include <QStatusBar>

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
    m_tabs = new MainTabs(*m_ui->tabprincipal, *this);
    const std::pair<QMenu *, QWidget *> menus[] = {{m_ui->mnueditarpagar, &m_tabs->payables()},
                                                   {m_ui->mnueditarreceber, &m_tabs->receivables()},
                                                   {m_ui->mnueditarbancario, &m_tabs->movements()},
                                                   {m_ui->mnueditarbancos, &m_tabs->accounts()}};
    for (const auto &[menu, pane] : menus)
        menu->addActions(pane->findChild<ListView *>()->actions());
    m_tryAgain.setInterval(betweenTries);
    connect(&m_tryAgain, &QTimer::timeout, this, &frmPrincipal::tryToOpen);
}

void frmPrincipal::connectCommands()
{
    connect(m_ui->mnucaddespesas, &QAction::triggered, m_tabs->payables().addCommand, &QAction::trigger);
    connect(m_ui->mnucadrececeber, &QAction::triggered, m_tabs->receivables().addCommand, &QAction::trigger);
    connect(m_ui->mnucadbancario, &QAction::triggered, m_tabs->movements().addCommand, &QAction::trigger);
    connectScreenCommands(*this);
    historycommands::connectTo(*this);
    makeReportMenus(*this);
    connect(&m_tabs->today(), &TodayPane::copiesWanted, m_ui->mnucopias, &QAction::trigger);
    completeToolBar(*this);
    m_access = new AccessCommands(*this);
    m_switches = new SwitchCommands(*this);
    connect(m_ui->mnurestbak, &QAction::triggered, this, [this] {
        if (backupcommands::restore(this))
            reloadAll();
    });
    for (EntryPane *pane : {&m_tabs->payables(), &m_tabs->receivables()}) {
        connect(pane->monthsCommand, &QAction::triggered, this,
                [this, pane] { frmPorMes::open(pane->side(), monthview::Basis::EntryDate, this); });
        connect(pane->goalsCommand, &QAction::triggered, this,
                [this, pane] { frmProjecao::open(pane->side(), this); });
    }
    AccountPane &accounts = m_tabs->accounts();
    connect(accounts.statementCommand, &QAction::triggered, this,
            [this, &accounts] { frmconfextrato::open(this, accounts.selectedAccount()); });
    connect(m_ui->mnucadbancos, &QAction::triggered, accounts.addCommand, &QAction::trigger);
    connect(m_ui->mnuviscaixabanco, &QAction::triggered, this, [this, &accounts] {
        m_tabs->show(MainTabs::Accounts);
        accounts.refresh();
    });
    connect(m_ui->mnuatualizarlistas, &QAction::triggered, this, &frmPrincipal::reloadAll);
    connect(m_ui->mnuconfigsoft, &QAction::triggered, this, [this] { frmConfigSoft(this).exec(); });
    connect(m_ui->mnusair, &QAction::triggered, this, &QWidget::close);
}

void frmPrincipal::start()
{
    m_tabs->restore();
    if (tips::areShown())
        frmDica::open(this);
    showDate();
    applySettings();
    reloadAll();
    connect(&m_day, &DayWatch::changed, this, [this] {
        showDate();
        if (m_access->isIn())
            m_tabs->dayChanged();
        alertDue();
        postRegulars();
        backupcommands::copyIfDue(this);
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

/// What regular entries are due soon is put in before anybody looks at the lists.
void frmPrincipal::postRegulars()
{
    if (!m_access->isIn())
        return;
    messages::guarded(this, messages::generalPrefix, [this] {
        int posted = 0;
        m_tabs->followQuietly([&posted] { posted = regular::post(*openDatabase(), programclock::today()); });
        if (posted > 0)
            statusBar()->showMessage(u"Contas regulares lançadas: %1"_s.arg(posted));
    });
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
    if (!wasIn) {
        postRegulars();
        QMetaObject::invokeMethod(this, &frmPrincipal::alertDue, Qt::QueuedConnection);
    }
    m_tabs->readAll();
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

/// The one place where the window follows what was written, by its own commands or by other screens.
void frmPrincipal::dataChanged(const Change &change)
{
    if (change.subject == Subject::Settings)
        applySettings();
    if (change.subject == Subject::Database)
        reloadAll();
    m_tabs->follow(change);
}

void frmPrincipal::applySettings()
{
    m_tabs->applyStyle();
    m_switches->show();
}

void frmPrincipal::closeEvent(QCloseEvent *event)
{
    if (!frmViaEmail::mayClose(this))
        return event->ignore();
    messages::guarded(this, messages::generalPrefix, [this] { m_tabs->saveLayouts(); });
    backupcommands::copyIfDue(this);
    QMainWindow::closeEvent(event);
}
