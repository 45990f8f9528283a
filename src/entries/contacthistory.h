#pragma once

#include "entries/side.h"
#include "lists/figures.h"
#include "lists/listcolumn.h"

#include <QStringList>

#include <vector>

class Connection;

/// Everything in which the financial histories of clients and of suppliers differ.
struct HistorySide
{
    const Side &entries;          ///< of the contact
    QString screenName, caption;  ///< object name and title: "frmFinCli"
    QString namesQuery;           ///< columns `nome`, `código`
    QString noContact;            ///< "Nenhum cliente foi selecionado!"
    QString waitTitle;            ///< "Carregando financeiro do cliente"
    QString reportTitle;          ///< "HISTÓRICO FINANCEIRO DE CLIENTE"
    QString textTitle, htmlTitle; ///< of the save choosers
    QString heading, htmlHeading; ///< before the contact's name: "Cliente: "
};

const HistorySide &clientHistory();
const HistorySide &supplierHistory();
const HistorySide &historyOf(const ContactSide &contacts);

/// The entries of one contact, who is known by the name.
namespace contacthistory {

enum class Shown { All, Pending, Settled };

struct Contact
{
    QString name, code;
};
std::vector<Contact> contacts(Connection &connection, const HistorySide &side);
/// The picture file of the contact with the name; empty when there is none. Throws Error.
QString picture(Connection &connection, const HistorySide &side, const QString &name);

/// Throws Error::Kind::Query when the name has an apostrophe.
QString query(const HistorySide &side, const QString &name, Shown shown);
std::vector<ListColumn> columns();
QString totals(const HistorySide &side, const Figures &figures);
/// " Estatus: Exibindo todos os dados".
QString statusLine(Shown shown);
/// What is printed about the contact with the code, a line each; nothing when it is not stored.
QStringList details(Connection &connection, const HistorySide &side, const QString &code);

} // namespace contacthistory
