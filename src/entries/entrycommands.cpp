#include "entries/entrycommands.h"

#include "entries/entry.h"
#include "entries/entrylist.h"
#include "entries/entrypane.h"
#include "entries/frmadicionar.h"
#include "entries/frmfincli.h"
#include "entries/frmmultiplos.h"
#include "entries/frmrecibo.h"
#include "entries/settlecommands.h"
#include "settings/database.h"
#include "widgets/listview.h"
#include "widgets/messages.h"

#include <QAction>

using namespace Qt::StringLiterals;

EntryCommands::EntryCommands(EntryPane &pane, EntryPane &stockPane, QObject *parent)
    : QObject(parent), m_pane(pane), m_stockPane(stockPane)
{
    connect(pane.addCommand, &QAction::triggered, this, &EntryCommands::add);
    connect(pane.editCommand, &QAction::triggered, this, &EntryCommands::edit);
    connect(pane.removeCommand, &QAction::triggered, this, &EntryCommands::remove);
    connect(pane.installmentsCommand, &QAction::triggered, this,
            [this] { frmMultiplos::openFor(m_pane.side(), m_pane.window()); });
    connect(pane.historyCommand, &QAction::triggered, this, &EntryCommands::openHistory);
    connect(pane.receiptCommand, &QAction::triggered, this, &EntryCommands::openReceipt);
    connect(pane.settleCommand, &QAction::triggered, this, &EntryCommands::settle);
}

int EntryCommands::selectedOrTell()
{
    return m_pane.list().selectedRowOrTell(u"Lançamentos"_s, u"Selecione um lançamento na lista."_s);
}

void EntryCommands::add()
{
    frmAdicionar::openNew(m_pane.side(), m_pane.window());
}

void EntryCommands::edit()
{
    const int row = selectedOrTell();
    if (row >= 0)
        frmAdicionar::openEdit(m_pane.side(), QString::number(m_pane.feed().key(row)), m_pane.window(),
                               m_pane.feed().serial());
}

void EntryCommands::openHistory()
{
    const Side &side = m_pane.side();
    const int row = m_pane.list().selectedRow();
    const QString name =
        row < 0 ? QString() : m_pane.list().cell(row, entrylist::columnOf(side, side.contactColumnKey));
    frmFinCli::open(historyOf(side.contacts), m_pane.window(), {.name = name, .code = {}});
}

void EntryCommands::openReceipt()
{
    const int row = m_pane.list().selectedRow();
    if (row < 0)
        frmRecibo::open(m_pane.window());
    else
        frmRecibo::openOf(m_pane.side(), QString::number(m_pane.feed().key(row)), m_pane.feed().serial(),
                          m_pane.window());
}

std::optional<EntryRemoval> EntryCommands::removalOf(int row)
{
    const int stockRow = &m_pane == &m_stockPane ? row : m_stockPane.list().selectedRow();
    if (stockRow < 0)
        return std::nullopt;
    const auto stockCell = [&](QStringView key) {
        return m_stockPane.list().cell(stockRow, entrylist::columnOf(m_stockPane.side(), key));
    };
    return EntryRemoval{.code = QString::number(m_pane.feed().key(row)),
                        .product = stockCell(u"produto"),
                        .quantity = Quantity::stored(QStringView(stockCell(u"qtde")))};
}

void EntryCommands::remove()
{
    if (selectedOrTell() < 0)
        return;
    if (!messages::confirmRemoval(&m_pane))
        return;
    std::vector<EntryRemoval> removals;
    for (const int row : m_pane.list().selectedRows()) {
        const auto removal = removalOf(row);
        if (!removal) {
            messages::exclamation(
                &m_pane, u"Remover"_s,
                u"Nada foi removido. Selecione também, na lista de contas a receber, a linha do produto "
                "cujo estoque será corrigido."_s);
            return;
        }
        removals.push_back(*removal);
    }
    tellAfter(u"Remover"_s, messages::removePrefix,
              [&] { return entry::remove(*openDatabase(m_pane.feed().serial()), m_pane.side(), removals); });
}

void EntryCommands::settle()
{
    if (selectedOrTell() < 0)
        return;
    QStringList codes;
    for (const int row : m_pane.list().selectedRows())
        codes << QString::number(m_pane.feed().key(row));
    const ListPane::OwnCommand own(m_pane);
    if (settlecommands::settle(&m_pane, m_pane.side(), m_pane.feed().serial(), codes) ==
        settlecommands::Outcome::Gone)
        m_pane.reload();
}

void EntryCommands::tellAfter(const QString &title, QStringView prefix, const std::function<bool()> &work)
{
    const ListPane::OwnCommand own(m_pane);
    bool found = false;
    if (!messages::guarded(&m_pane, prefix, [&] { found = work(); }) || found)
        return;
    messages::information(&m_pane, title, u"Este lançamento não existe mais."_s);
    m_pane.reload();
}
