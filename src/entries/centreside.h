#pragma once

#include "data/changes.h"

#include <QString>

/// Everything in which cost centres (of payables) and profit centres (of receivables) differ.
struct CentreSide
{
    Subject subject;      ///< announced when the centres change
    Subject entrySubject; ///< announced by others when the entries that the summary sums change
    QString table;        ///< names: "pcontapagar", column `descricao`
    QString listQuery;    ///< the names as the screen lists them
    QString entryTable;   ///< entries whose `descricao` names the centre: "pagar"

    QString screenName; ///< "frmCentroCusto"
    QString caption;    ///< "Centro de custo"
    QString emptyName;  ///< "O nome do centro de custo não pode estar vazio!"
    QString renameTitle;
    QString renameQuestion;
    QString removeQuestion; ///< the name and " do banco de dados?" follow
    QString noCentres;      ///< said instead of a summary without lines

    QString summaryTitle; ///< "Resumo de centro de custo"
    QString nameLabel;    ///< "Centro de custo: "
    QString totalLabel;   ///< "Total de despesas: "
    QString settledLabel; ///< "Total pago: "
    QString pendingLabel; ///< "Total pendente: "

    QString statisticsTitle;        ///< "Estatística de plano de contas (contas a pagar)"
    QString statisticsTotalWords;   ///< "Total de despesas: R$ "
    QString statisticsSettledWords; ///< " - Total pago: R$ "
    QString noStatistics;           ///< said instead of statistics without lines
};

const CentreSide &costCentres();
const CentreSide &profitCentres();
