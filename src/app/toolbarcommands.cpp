#include "app/toolbarcommands.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

/// An entry of a drop-down button and the menu command that it stands for.
struct ButtonEntry
{
    QString key, text, command;
};

struct DropDown
{
    QString name, text, icon;
    std::vector<ButtonEntry> entries;
};

std::vector<DropDown> dropDowns()
{
    return {
        {u"relatorios"_s,
         u"Relatórios"_s,
         u"view-list-text"_s,
         {{u"retpagar"_s, u"Contas a &pagar..."_s, u"mnuretpagar"_s},
          {u"retreceber"_s, u"Contas a &receber..."_s, u"mnuretreceber"_s},
          {u"retbancario"_s, u"&Movimento bancário..."_s, u"mnuretbancario"_s},
          {u"retclientes"_s, u"De um &cliente..."_s, u"mnuretclientes"_s},
          {u"retfornecedores"_s, u"De um &fornecedor..."_s, u"mnuretfornecedores"_s}}},
        {u"graficos"_s,
         u"Gráficos"_s,
         u"office-chart-bar"_s,
         {{u"grapagar"_s, u"Contas a &pagar..."_s, u"mnugrapagar"_s},
          {u"grareceber"_s, u"Contas a &receber..."_s, u"mnugrareceber"_s},
          {u"grabancario"_s, u"&Movimento bancário..."_s, u"mnugrabancario"_s}}},
        {u"estatisticas"_s,
         u"Estatísticas"_s,
         u"office-chart-line"_s,
         {{u"estpagar"_s, u"Contas a &pagar (ano)"_s, u"mnuestpagarano"_s},
          {u"estreceber"_s, u"Contas a &receber (ano)"_s, u"mnuestreceberano"_s},
          {u"estbancario"_s, u"&Movimento bancário (ano)"_s, u"mnuestbancarioano"_s}}},
    };
}

QToolButton *newButton(QMainWindow &window, const DropDown &drop, QToolBar &bar)
{
    auto *button = new QToolButton(&bar);
    button->setObjectName(drop.name);
    button->setText(drop.text);
    button->setIcon(QIcon::fromTheme(drop.icon));
    button->setToolButtonStyle(bar.toolButtonStyle());
    button->setPopupMode(QToolButton::InstantPopup);
    auto *menu = new QMenu(button);
    for (const ButtonEntry &entry : drop.entries) {
        QAction *action = menu->addAction(entry.text);
        action->setObjectName(entry.key);
        QObject::connect(action, &QAction::triggered, window.findChild<QAction *>(entry.command),
                         &QAction::trigger);
    }
    button->setMenu(menu);
    return button;
}

} // namespace

void completeToolBar(QMainWindow &window)
{
    auto *bar = window.findChild<QToolBar *>(u"tbrbarra"_s);
    auto *before = window.findChild<QAction *>(u"mnuatualizarlistas"_s);
    for (const DropDown &drop : dropDowns())
        bar->insertWidget(before, newButton(window, drop, *bar));
    bar->insertSeparator(before);
    for (const QString &key :
         {u"clientes"_s, u"fornecedores"_s, u"estoque"_s, u"comp"_s, u"manual"_s, u"sobre"_s, u"sair"_s})
        bar->widgetForAction(window.findChild<QAction *>(u"mnu"_s + key))->setObjectName(key);
}
