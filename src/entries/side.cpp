#include "entries/side.h"

using namespace Qt::StringLiterals;

const Side &payable()
{
    static const Side side{
        .subject = Subject::Payables,
        .contacts = suppliers(),
        .table = u"pagar"_s,
        .contactColumn = u"fornecedor"_s,
        .contactQuery = u"select * from fornecedor order by nome"_s,
        .centreQuery = u"Select * from pcontapagar order by descricao"_s,
        .centres = costCentres(),
        .hasUnitCost = false,
        .dateChoiceFilters = true,
        .savingAddsToStock = true,
        .warnsOfLowStock = false,
        .caption = u"Adicionar Contas a pagar - Despesa"_s,
        .descriptionLabel = u"Descrição / Centro de custo: "_s,
        .contactLabel = u"Nome do fornecedor(credor):"_s,
        .insertCaption = u"&Inserir despesa"_s,
        .editCaption = u"&Editar despesa"_s,
        .savedMessage = u"Despesa cadastrada com sucesso!"_s,
        .settleQuestion = u"Deseja efetuar uma baixa para está despesa?"_s,
        .settleSeveralQuestion = u"Deseja efetuar uma baixa para as %1 despesas selecionadas?"_s,
        .installmentsCaption = u"Adicionar Contas a pagar / multiplas contas"_s,
        .installmentsDescriptionLabel = u"Descrição / Centro de custo:"_s,
        .contactTitle = u"Fornecedor"_s,
        .contactColumnKey = u"fornecedor"_s,
        .loadingTitle = u"Carregando contas a pagar"_s,
        .allCentres = u"Todos os centros de custos"_s,
        .allContacts = u"Todos os fornecedores"_s,
        .countWords = u" cadastros  -  Total de despesas: "_s,
        .settledWords = u"  -  Total pago: "_s,
        .quantityWords = u" - Quantidade de produtos (entrada): "_s,
        .periodKey = settings::payablePeriod,
        .statusKey = settings::payableStatus,
        .accountKey = settings::payableAccount,
        .centreKey = settings::costCentre,
        .contactKey = settings::supplier,
    };
    return side;
}

const Side &receivable()
{
    static const Side side{
        .subject = Subject::Receivables,
        .contacts = clients(),
        .table = u"receber"_s,
        .contactColumn = u"cliente"_s,
        .contactQuery = u"select * from cliente order by nome"_s,
        .centreQuery = u"Select * from pcontareceber order by descricao"_s,
        .centres = profitCentres(),
        .hasUnitCost = true,
        .dateChoiceFilters = false,
        .savingAddsToStock = false,
        .warnsOfLowStock = true,
        .caption = u"Adicionar Contas a receber - Receita"_s,
        .descriptionLabel = u"Descrição / Centro de lucro: "_s,
        .contactLabel = u"Nome do Cliente(devedor):"_s,
        .insertCaption = u"&Inserir receita"_s,
        .editCaption = u"&Editar receita"_s,
        .savedMessage = u"Receita cadastrada com sucesso!"_s,
        .settleQuestion = u"Deseja efetuar uma baixa para está receita?"_s,
        .settleSeveralQuestion = u"Deseja efetuar uma baixa para as %1 receitas selecionadas?"_s,
        .installmentsCaption = u"Adicionar Contas a receber / multiplas contas"_s,
        .installmentsDescriptionLabel = u"Descrição / Centro de lucro:"_s,
        .contactTitle = u"Cliente"_s,
        .contactColumnKey = u"cliente"_s,
        .loadingTitle = u"Carregando contas a receber"_s,
        .allCentres = u"Todos os centros de lucros"_s,
        .allContacts = u"Todos os clientes"_s,
        .countWords = u" cadastrados  -  Total de lucros: "_s,
        .settledWords = u"  -  Total recebido: "_s,
        .quantityWords = u" - Quantidade de produtos (vendas): "_s,
        .periodKey = settings::receivablePeriod,
        .statusKey = settings::receivableStatus,
        .accountKey = settings::receivableAccount,
        .centreKey = settings::profitCentre,
        .contactKey = settings::client,
    };
    return side;
}
