#pragma once

#include "data/changes.h"
#include "entries/centreside.h"
#include "entries/contactside.h"
#include "settings/settings.h"

#include <QString>

/// Everything in which payables and receivables differ. Code that works on entries takes a Side and has no
/// other knowledge of which of the two it serves.
struct Side
{
    Subject subject;             ///< announced when entries of this side change
    const ContactSide &contacts; ///< the counterparts of this side's entries
    QString table;               ///< entries: "pagar"
    QString contactColumn;       ///< column of `table`: "fornecedor"
    QString contactQuery;        ///< names for the contact box, column `nome`
    QString centreQuery;         ///< names for the description box, column `descricao`
    const CentreSide &centres;   ///< the side's chart of accounts
    bool hasUnitCost;            ///< entries carry the unit cost of the product sold
    bool dateChoiceFilters; ///< the list's "based on" choice decides which date a period tests, and the order
    bool savingAddsToStock; ///< a saved entry raises the stock; a deleted one lowers it
    bool warnsOfLowStock;   ///< a new entry of more units than there are is warned about

    // Entry screen.
    QString caption;               ///< "Adicionar Contas a pagar - Despesa"
    QString descriptionLabel;      ///< "Descrição / Centro de custo: "
    QString contactLabel;          ///< "Nome do fornecedor(credor):"
    QString insertCaption;         ///< "&Inserir despesa"
    QString editCaption;           ///< "&Editar despesa"
    QString savedMessage;          ///< "Despesa cadastrada com sucesso!"
    QString settleQuestion;        ///< "Deseja efetuar uma baixa para está despesa?"
    QString settleSeveralQuestion; ///< the same of %1 entries

    // Installments screen.
    QString installmentsCaption;          ///< "Adicionar Contas a pagar / multiplas contas"
    QString installmentsDescriptionLabel; ///< "Descrição / Centro de custo:"

    // Main list.
    QString contactTitle;     ///< column heading: "Fornecedor"
    QString contactColumnKey; ///< key of the contact column in the layout file
    QString loadingTitle;     ///< "Carregando contas a pagar"
    QString allCentres;       ///< "Todos os centros de custos"
    QString allContacts;      ///< "Todos os fornecedores"
    QString countWords;       ///< " cadastros  -  Total de despesas: "
    QString settledWords;     ///< "  -  Total pago: "
    QString quantityWords;    ///< " - Quantidade de produtos (entrada): "

    // Reports.
    QString plural;           ///< "despesas"
    QString movementPlural;   ///< in the reports of a day, a month or a year: "despesas", "lucros"
    QString settledWord;      ///< "pago"
    QString settledTitle;     ///< column heading: "Pago"
    QString reportHeading;    ///< "CONTAS A PAGAR"
    QString projectionSuffix; ///< of the controls of the goals: "desp"
    QString comparisonName;   ///< object name of the comparison screen: "frmComparaDesp"

    settings::Key periodKey, statusKey, accountKey, centreKey, contactKey;
};

const Side &payable();
const Side &receivable();
