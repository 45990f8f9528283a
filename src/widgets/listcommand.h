#pragma once

#include <QString>

class ListView;
class QAction;
class QBoxLayout;

/// Commands on a list of the main window.
namespace listcommand {

struct Look
{
    QString text, icon, statusTip;
};

/// A new command: a button at the end of the bar over the list. Action and button bear `name`.
QAction *addButton(QBoxLayout *bar, ListView &list, const QString &name, const Look &look);
/// The same, and an entry of the list's pop-up menu.
QAction *add(QBoxLayout *bar, ListView &list, const QString &name, const Look &look);

inline Look addLook(const QString &statusTip)
{
    return {QStringLiteral("Adicionar"), QStringLiteral("list-add"), statusTip};
}
inline Look editLook(const QString &statusTip)
{
    return {QStringLiteral("Alterar"), QStringLiteral("document-edit"), statusTip};
}
inline Look removeLook(const QString &statusTip)
{
    return {QStringLiteral("Remover"), QStringLiteral("edit-delete"), statusTip};
}

} // namespace listcommand
