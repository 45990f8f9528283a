#include "entries/contactside.h"

using namespace Qt::StringLiterals;

const ContactSide &clients()
{
    static const ContactSide side{
        .subject = Subject::Clients,
        .table = u"cliente"_s,
        .listName = u"frmCliente"_s,
        .listCaption = u"Clientes"_s,
        .nameTitle = u"Nome do cliente"_s,
        .nameChoice = u"nome do cliente"_s,
        .allHeading = u"Exibindo todos os clientes"_s,
        .selectMessage = u"Selecione um cliente na lista."_s,
        .reportTitle = u"LISTA DE CLIENTES"_s,
        .totalWords = u"Total de clientes: "_s,
        .saveTextTitle = u"Salvar lista de clientes em txt"_s,
        .saveHtmlTitle = u"Salvar lista de clientes em html"_s,
        .recordName = u"frmCadCli"_s,
        .newCaption = u"Cadastrar novo cliente"_s,
        .quickAddCaption = u"Adicionar cliente"_s,
        .editCaption = u"Editar cliente"_s,
        .nameMissing = u"O nome do cliente é de preenchimento obrigatório!"_s,
        .goneMessage = u"Este cliente não existe mais."_s,
    };
    return side;
}

const ContactSide &suppliers()
{
    static const ContactSide side{
        .subject = Subject::Suppliers,
        .table = u"fornecedor"_s,
        .listName = u"frmFornecedor"_s,
        .listCaption = u"Fornecedores"_s,
        .nameTitle = u"Nome do fornecedor"_s,
        .nameChoice = u"nome do fornecedor"_s,
        .allHeading =
            u"Exibindo todos os clientes"_s, // this list and its documents share the words of the client list
        .selectMessage = u"Selecione um fornecedor na lista."_s,
        .reportTitle = u"LISTA DE CLIENTES"_s,
        .totalWords = u"Total de fornecedores: "_s,
        .saveTextTitle = u"Salvar lista de clientes em txt"_s,
        .saveHtmlTitle = u"Salvar lista de clientes em html"_s,
        .recordName = u"frmCadForn"_s,
        .newCaption = u"Cadastrar novo fornecedor"_s,
        .quickAddCaption = u"Adicionar fornecedor"_s,
        .editCaption = u"Editar fornecedor"_s,
        .nameMissing = u"O nome do fornecedor é de preenchimento obrigatório!"_s,
        .goneMessage = u"Este fornecedor não existe mais."_s,
    };
    return side;
}
