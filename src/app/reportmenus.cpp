#include "app/reportmenus.h"

#include "analysis/frmconfextrato.h"
#include "analysis/frmdatabanco.h"
#include "entries/frmfincli.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace {

using Open = void (*)(QWidget *parent);

/// An entry of a menu, or, without anything to open, a submenu.
struct Entry
{
    const char16_t *menu; ///< object name of the menu that the entry is in
    const char16_t *name; ///< null for a separator
    const char16_t *text;
    Open open;
};

constexpr Open submenu = nullptr;

[[maybe_unused]] constexpr Entry separator(const char16_t *menu)
{
    return {menu, nullptr, nullptr, nullptr};
}

template <const HistorySide &(*side)()>
void openHistory(QWidget *parent)
{
    frmFinCli::open(side(), parent);
}

template <frmdatabanco::Asks asks>
void openDates(QWidget *parent)
{
    frmdatabanco::open(asks, parent);
}

constexpr Entry entries[] = {
    {u"mnuexibir", u"mnufincli", u"Histórico financeiro de &cliente...", openHistory<clientHistory>},
    {u"mnuexibir", u"mnufinforn", u"Histórico financeiro de &fornecedor...", openHistory<supplierHistory>},
    {u"mnuexibir", u"mnuextrato", u"E&xtrato bancário...",
     [](QWidget *parent) { frmconfextrato::open(parent); }},

    {u"barramenu", u"mnuestatisticas", u"E&statísticas", submenu},
    {u"mnuestatisticas", u"mnuestbancos", u"&Caixas e bancos em um período...",
     openDates<frmdatabanco::Asks::Range>},
    {u"mnuestatisticas", u"mnuestsaldodia", u"&Saldo dos bancos em um dia...",
     openDates<frmdatabanco::Asks::End>},
};

QMenu *newMenu(QMainWindow &window, const Entry &entry)
{
    auto *menu = new QMenu(QString::fromUtf16(entry.text), &window);
    menu->setObjectName(QString::fromUtf16(entry.name));
    return menu;
}

} // namespace

void makeReportMenus(QMainWindow &window)
{
    auto *bar = window.menuBar();
    QAction *tools = window.findChild<QMenu *>(QStringLiteral("mnuferramentas"))->menuAction();
    for (const Entry &entry : entries) {
        const QString place = QString::fromUtf16(entry.menu);
        if (place == bar->objectName()) {
            bar->insertMenu(tools, newMenu(window, entry));
            continue;
        }
        auto *menu = window.findChild<QMenu *>(place);
        Q_ASSERT(menu);
        if (!entry.name) {
            menu->addSeparator();
        } else if (!entry.open) {
            menu->addMenu(newMenu(window, entry));
        } else {
            QAction *action = menu->addAction(QString::fromUtf16(entry.text));
            action->setObjectName(QString::fromUtf16(entry.name));
            QObject::connect(action, &QAction::triggered, &window,
                             [&window, open = entry.open] { open(&window); });
        }
    }
}
