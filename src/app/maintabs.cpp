#include "app/maintabs.h"

#include "analysis/todaypane.h"
#include "app/listreader.h"
#include "bank/accountpane.h"
#include "bank/movementpane.h"
#include "entries/entrycommands.h"
#include "entries/entrylist.h"
#include "entries/entrypane.h"
#include "settings/settings.h"
#include "widgets/background.h"
#include "widgets/liststyle.h"

#include <QScopedValueRollback>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTabWidget>

using namespace Qt::StringLiterals;

MainTabs::MainTabs(QTabWidget &tabs, QWidget &window)
    : QObject(&window),
      m_tabs(tabs),
      m_payables(new EntryPane(payable(), payablePaneNames(), &window)),
      m_receivables(new EntryPane(receivable(), receivablePaneNames(), &window)),
      m_movements(new MovementPane(&window)),
      m_accounts(new AccountPane(&window))
{
    const auto add = [&tabs](QWidget *pane, const QString &icon, const QString &title) {
        tabs.addTab(pane, QIcon::fromTheme(icon), title);
    };
    add(m_payables, u"view-financial-category-expense"_s, u"Contas a pagar"_s);
    add(m_receivables, u"view-financial-category-income"_s, u"Contas a receber"_s);
    add(m_movements, u"view-financial-transfer-reconcile"_s, u"Movimento bancário"_s);
    add(m_accounts, u"view-bank"_s, u"Caixas e bancos"_s);
    m_today = new TodayPane(*m_accounts, &window);
    add(m_today, u"view-calendar-day"_s, u"Hoje"_s);
    for (const Tab tab :
         {Payables, Receivables, Movements, Today}) // the accounts have a command of their own
        connect(new QShortcut(QKeySequence(Qt::CTRL | Qt::Key(int(Qt::Key_1) + int(tab))), &window),
                &QShortcut::activated, this, [this, tab] { m_tabs.setCurrentIndex(tab); });
    m_reader = new ListReader(listPanes(), *m_accounts, this);
    connect(&tabs, &QTabWidget::currentChanged, m_reader, &ListReader::show);
    for (EntryPane *pane : {m_payables, m_receivables})
        new EntryCommands(*pane, *m_receivables, &window);
}

QList<ListPane *> MainTabs::listPanes() const
{
    return {m_payables, m_receivables, m_movements};
}

std::vector<std::pair<ListPane *, ListLayoutFile>> MainTabs::layouts() const
{
    return {{m_payables, entrylist::layoutFile(payable())},
            {m_receivables, entrylist::layoutFile(receivable())},
            {m_movements, movementlist::layoutFile()}};
}

ListPane *MainTabs::paneOf(Subject subject) const
{
    switch (subject) {
    case Subject::Payables:
        return m_payables;
    case Subject::Receivables:
        return m_receivables;
    case Subject::Movements:
        return m_movements;
    default:
        return nullptr;
    }
}

void MainTabs::show(Tab tab)
{
    const QSignalBlocker blocker(m_tabs);
    m_tabs.setCurrentIndex(tab);
}

void MainTabs::readAll()
{
    m_today->readAll();
    m_reader->readAll(m_tabs.currentIndex(),
                      m_today->isLoading() ? ListReader::Begin::Later : ListReader::Begin::Now);
}

void MainTabs::follow(const Change &change)
{
    m_today->follow(change);
    ListPane *pane = paneOf(change.subject);
    if (!pane && change.subject != Subject::Accounts)
        return;
    const bool ownCommand =
        m_today->isCommanding() || (pane ? pane->isCommanding() : m_accounts->isCommanding());
    if (!ownCommand && !settings::isOn(settings::refreshMainWindow)) {
        if (pane)
            pane->skip();
        m_accounts->skip();
        return;
    }
    if (!ownCommand && !m_isQuiet)
        show(pane ? Tab(listPanes().indexOf(pane)) : Accounts);
    if (pane)
        pane->follow(change);
    m_accounts->follow(change);
}

void MainTabs::followQuietly(const std::function<void()> &work)
{
    const QScopedValueRollback quiet(m_isQuiet, true);
    work();
}

void MainTabs::restore()
{
    background::apply(m_accounts->list().viewport()); // the one place of the window that lists leave empty
    for (ListPane *pane : listPanes())
        pane->restoreFilters();
    for (const auto &[pane, file] : layouts())
        pane->list().applyLayout(listlayout::load(file));
    m_layoutShown = true;
    if (settings::isOn(settings::openToday))
        show(Today);
}

void MainTabs::saveLayouts() const
{
    if (!m_layoutShown)
        return;
    std::vector<std::pair<ListLayoutFile, ListLayout>> shown;
    for (const auto &[pane, file] : layouts())
        shown.emplace_back(file, pane->list().layout());
    listlayout::saveAll(shown);
}

void MainTabs::dayChanged()
{
    m_today->readAll();
    applyStyle();
}

void MainTabs::applyStyle()
{
    for (ListView *list : m_tabs.findChildren<ListView *>())
        applyListStyle(*list);
    for (EntryPane *pane : {m_payables, m_receivables})
        pane->applySigns();
}
