#include "app/frmprincipal.h"
#include "ui_frmprincipal.h"

#include "app/externaltools.h"
#include "app/frmconfigsoft.h"
#include "app/screencommands.h"
#include "bank/accountpane.h"
#include "bank/movementpane.h"
#include "data/clock.h"
#include "data/dates.h"
#include "entries/entrycommands.h"
#include "entries/entrypane.h"
#include "settings/autostart.h"
#include "settings/database.h"
#include "widgets/background.h"
#include "widgets/liststyle.h"
#include "widgets/listview.h"
#include "widgets/messages.h"

#include <QCloseEvent>
#include <QLabel>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStatusBar>

using namespace Qt::StringLiterals;

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
    connect(m_ui->tabprincipal, &QTabWidget::currentChanged, this, [this](int tab) {
        if (tab == AccountsTab)
            m_accounts->refresh();
    });
    for (EntryPane *pane : {m_payables, m_receivables}) {
        auto *commands = new EntryCommands(*pane, *m_receivables, this);
        connect(commands, &EntryCommands::changed, this, [this, pane] { entriesChangedHere(*pane); });
    }
    connect(m_accounts, &AccountPane::changed, this, [this] {
        m_accounts->refresh();
        const QScopedValueRollback own(m_ownChange, true);
        Changes::announce(Subject::Accounts);
    });
    connect(m_movements, &MovementPane::changed, this, [this] {
        m_movements->reload();
        m_accounts->refresh();
        const QScopedValueRollback own(m_ownChange, true);
        Changes::announce(Subject::Movements);
    });
}

void frmPrincipal::connectCommands()
{
    connect(m_ui->mnucaddespesas, &QAction::triggered, m_payables->addCommand, &QAction::trigger);
    connect(m_ui->mnucadrececeber, &QAction::triggered, m_receivables->addCommand, &QAction::trigger);
    connect(m_ui->mnucadbancario, &QAction::triggered, m_movements->addCommand, &QAction::trigger);
    connectScreenCommands(*this);
    connect(m_ui->mnucadbancos, &QAction::triggered, m_accounts->addCommand, &QAction::trigger);
    connect(m_ui->mnuviscaixabanco, &QAction::triggered, this, [this] {
        const QSignalBlocker blocker(m_ui->tabprincipal);
        m_ui->tabprincipal->setCurrentIndex(AccountsTab);
        m_accounts->refresh();
    });
    connect(m_ui->mnuatualizarlistas, &QAction::triggered, this, &frmPrincipal::reloadAll);
    connect(m_ui->mnuconfigsoft, &QAction::triggered, this, [this] { frmConfigSoft(this).exec(); });
    connectSwitch(m_ui->mnuexibirprincipal, settings::refreshMainWindow);
    connectSwitch(m_ui->mnuatualizarsaldo, settings::updateBalances);
    connect(m_ui->mnuiniciar, &QAction::toggled, this, [this](bool on) {
        messages::guarded(this, messages::generalPrefix, [&] {
            if (const QString problem = autostart::setEnabled(on); !problem.isEmpty())
                messages::exclamation(this, u"Iniciar com o sistema"_s, problem);
        });
        applySettings(); // the mark shows what is stored
    });
    connect(m_ui->mnucalc, &QAction::triggered, this, [this] { externaltools::calculator(this); });
    connect(m_ui->mnunotepad, &QAction::triggered, this, [this] { externaltools::textEditor(this); });
    connect(m_ui->mnumanual, &QAction::triggered, this, [this] { externaltools::manual(this); });
    connect(m_ui->mnusobre, &QAction::triggered, this, [this] {
        messages::information(this, u"Sobre o Tavaro"_s,
                              u"Tavaro "_s + QCoreApplication::applicationVersion() +
                                  u"\nControle financeiro e de estoque para pequenas empresas.\n\n"
                                  "Software livre sob a licença GPL, versão 3 ou posterior."_s);
    });
    connect(m_ui->mnusair, &QAction::triggered, this, &QWidget::close);
    const std::pair<QAction *, QString> keys[] = {
        {m_ui->mnuclientes, u"clientes"_s}, {m_ui->mnufornecedores, u"fornecedores"_s},
        {m_ui->mnuestoque, u"estoque"_s},   {m_ui->mnumanual, u"manual"_s},
        {m_ui->mnusobre, u"sobre"_s},       {m_ui->mnusair, u"sair"_s}};
    for (const auto &[action, key] : keys)
        m_ui->tbrbarra->widgetForAction(action)->setObjectName(key);
}

void frmPrincipal::connectSwitch(QAction *action, const settings::Key &key)
{
    connect(action, &QAction::toggled, this, [this, action, key](bool on) {
        if (messages::guarded(this, messages::generalPrefix,
                              [&] { settings::setValue(key, on ? u"1"_s : u"0"_s); }))
            return;
        const QSignalBlocker blocker(action);
        action->setChecked(!on);
    });
}

void frmPrincipal::start()
{
    background::apply(m_accounts->list().viewport()); // the one place of the window that lists leave empty
    m_payables->restoreFilters();
    m_receivables->restoreFilters();
    m_movements->restoreFilters();
    m_welcome->setText(u"Seja bem vindo ao software   -   "_s + dates::longDate(programclock::today()));
    if (messages::guarded(this, messages::openPrefix, [] { openDatabase(); }))
        reloadAll();
    applySettings();
    QCoreApplication::processEvents();
    m_payables->restoreLayout();
    m_receivables->restoreLayout();
    m_movements->restoreLayout();
    m_layoutShown = true;
}

void frmPrincipal::reloadEntries(EntryPane &pane)
{
    if (pane.reload())
        pane.refillFilterBoxes();
}

void frmPrincipal::reloadAll()
{
    reloadEntries(*m_payables);
    reloadEntries(*m_receivables);
    m_movements->reload();
    m_accounts->refresh();
}

void frmPrincipal::entriesChangedHere(EntryPane &pane)
{
    reloadEntries(pane);
    m_accounts->refresh();
    const QScopedValueRollback own(m_ownChange, true);
    Changes::announce(pane.side().subject);
}

void frmPrincipal::dataChanged(const Change &change)
{
    const Subject subject = change.subject;
    if (subject == Subject::Settings)
        applySettings();
    if (m_ownChange || !settings::isOn(settings::refreshMainWindow))
        return;
    const auto show = [this](Tab tab) {
        const QSignalBlocker blocker(m_ui->tabprincipal); // the accounts are refilled once, below
        m_ui->tabprincipal->setCurrentIndex(tab);
    };
    switch (subject) {
    case Subject::Payables:
    case Subject::Receivables:
        show(subject == Subject::Payables ? PayablesTab : ReceivablesTab);
        reloadEntries(subject == Subject::Payables ? *m_payables : *m_receivables);
        break;
    case Subject::Movements:
        show(MovementsTab);
        m_movements->reload();
        break;
    case Subject::Accounts:
        show(AccountsTab);
        break;
    default:
        return;
    }
    m_accounts->refresh();
}

QList<ListView *> frmPrincipal::lists()
{
    return {&m_payables->list(), &m_receivables->list(), &m_movements->list(), &m_accounts->list()};
}

void frmPrincipal::applySettings()
{
    for (ListView *list : lists())
        applyListStyle(*list);
    const std::pair<QAction *, const settings::Key &> switches[] = {
        {m_ui->mnuexibirprincipal, settings::refreshMainWindow},
        {m_ui->mnuatualizarsaldo, settings::updateBalances},
        {m_ui->mnuiniciar, settings::startWithSystem}};
    for (const auto &[action, key] : switches) {
        const QSignalBlocker blocker(action);
        action->setChecked(settings::isOn(key));
    }
}

void frmPrincipal::closeEvent(QCloseEvent *event)
{
    if (m_layoutShown)
        messages::guarded(this, messages::generalPrefix, [this] {
            m_payables->saveLayout();
            m_receivables->saveLayout();
            m_movements->saveLayout();
        });
    QMainWindow::closeEvent(event);
}
