#pragma once

#include "data/changes.h"

#include <QString>

/// Everything in which clients and suppliers differ. Code that works on contacts takes a ContactSide and has
/// no other knowledge of which of the two it serves.
struct ContactSide
{
    Subject subject; ///< announced when contacts of this side change
    QString table;   ///< "cliente"

    // List screen.
    QString listName;      ///< object name: "frmCliente"
    QString listCaption;   ///< "Clientes"
    QString nameTitle;     ///< column heading: "Nome do cliente"
    QString nameChoice;    ///< sort and filter choice: "nome do cliente"
    QString allHeading;    ///< heading of the whole list
    QString selectMessage; ///< when a command finds no selected line
    QString reportTitle;   ///< "LISTA DE CLIENTES"
    QString totalWords;    ///< "Total de clientes: "
    QString saveTextTitle; ///< "Salvar lista de clientes em txt"
    QString saveHtmlTitle;

    // Record dialog.
    QString recordName;      ///< object name: "frmCadCli"
    QString newCaption;      ///< adding from the list: "Cadastrar novo cliente"
    QString quickAddCaption; ///< adding from an entry screen: "Adicionar cliente"
    QString editCaption;     ///< "Editar cliente"
    QString nameMissing;     ///< "O nome do cliente é de preenchimento obrigatório!"
    QString goneMessage;     ///< the contact was removed meanwhile
};

const ContactSide &clients();
const ContactSide &suppliers();
