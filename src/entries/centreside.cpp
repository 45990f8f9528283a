#include "entries/centreside.h"

using namespace Qt::StringLiterals;

const CentreSide &costCentres()
{
    static const CentreSide side{
        .subject = Subject::CostCentres,
        .entrySubject = Subject::Payables,
        .table = u"pcontapagar"_s,
        .listQuery = u"Select * from pcontapagar order by descricao"_s,
        .entryTable = u"pagar"_s,
        .screenName = u"frmCentroCusto"_s,
        .caption = u"Centro de custo"_s,
        .emptyName = u"O nome do centro de custo não pode estar vazio!"_s,
        .renameTitle = u"Editar centro de custo"_s,
        .renameQuestion = u"Digite o novo nome para este centro de custo"_s,
        .removeQuestion = u"Tem certeza que deseja remover o centro de custo "_s,
        .noCentres =
            u"Não há nenhum centro de custo, cadastrado no banco de dados! para cadastrar um centro de "
            "custo clique no menu principal e depois em centro de custo."_s,
        .summaryTitle = u"Resumo de centro de custo"_s,
        .nameLabel = u"Centro de custo: "_s,
        .totalLabel = u"Total de despesas: "_s,
        .settledLabel = u"Total pago: "_s,
        .pendingLabel = u"Total pendente: "_s,
        .statisticsTitle = u"Estatística de plano de contas (contas a pagar)"_s,
        .statisticsTotalWords = u"Total de despesas: R$ "_s,
        .statisticsSettledWords = u" - Total pago: R$ "_s,
        .noStatistics =
            u"Não há nenhum centro de custo cadastrado no banco de dados! para cadastrar um centro de custo "
            u"clique no menu principal e depois em centro de custo."_s,
    };
    return side;
}

const CentreSide &profitCentres()
{
    static const CentreSide side{
        .subject = Subject::ProfitCentres,
        .entrySubject = Subject::Receivables,
        .table = u"pcontareceber"_s,
        .listQuery = u"Select * from pcontareceber"_s,
        .entryTable = u"receber"_s,
        .screenName = u"frmCentroLucro"_s,
        .caption = u"Centro de lucro"_s,
        .emptyName = u"O nome do centro de lucro não pode estar vazio!"_s,
        .renameTitle = u"Editar centro de lucro"_s,
        .renameQuestion = u"Digite o novo nome para este centro de lucro"_s,
        .removeQuestion = u"Tem certeza que deseja remover o centro de lucro "_s,
        .noCentres =
            u"Não há nenhum centro de lucro, cadastrado no banco de dados! para cadastrar um centro de "
            "lucro clique no menu principal e depois em centro de lucro."_s,
        .summaryTitle = u"Resumo de centro de lucro"_s,
        .nameLabel = u"Centro de lucro: "_s,
        .totalLabel = u"Total de receitas: "_s,
        .settledLabel = u"Total recebido: "_s,
        .pendingLabel = u"Total pendente: "_s,
        .statisticsTitle = u"Estatística de plano de contas (contas a receber)"_s,
        .statisticsTotalWords = u"Total de receita: R$ "_s,
        .statisticsSettledWords = u" - Total recebido: R$ "_s,
        .noStatistics =
            u"Não há nenhum centro de lucro, cadastrado no banco de dados! para cadastrar um centro de lucro "
            u"clique no menu principal e depois em centro de lucro."_s,
    };
    return side;
}
