#include "entries/contacthistory.h"

#include "data/dates.h"
#include "data/literal.h"
#include "data/recordset.h"

using namespace Qt::StringLiterals;

const HistorySide &clientHistory()
{
    static const HistorySide side{
        .entries = receivable(),
        .screenName = u"frmFinCli"_s,
        .caption = u"Histórico financeiro de clientes"_s,
        .namesQuery = u"SELECT DISTINCT [nome],[código] FROM [cliente]"_s,
        .noContact = u"Nenhum cliente foi selecionado!"_s,
        .waitTitle = u"Carregando financeiro do cliente"_s,
        .reportTitle = u"HISTÓRICO FINANCEIRO DE CLIENTE"_s,
        .textTitle = u"Salvar financeiro de cliente em txt"_s,
        .htmlTitle = u"Salvar financeiro de cliente em html"_s,
        .heading = u"Cliente: "_s,
        .htmlHeading = u"Cliente: "_s,
    };
    return side;
}

const HistorySide &supplierHistory()
{
    static const HistorySide side{
        .entries = payable(),
        .screenName = u"frmFinForn"_s,
        .caption = u"Histórico financeiro de fornecedores"_s,
        .namesQuery = u"SELECT DISTINCT [nome],[código] from [fornecedor]"_s,
        .noContact = u"Nenhum fornecedor foi selecionado!"_s,
        .waitTitle = u"Carregando financeiro do fornecedor"_s,
        .reportTitle = u"HISTÓRICO FINANCEIRO DE FORNECEDOR"_s,
        .textTitle = u"Salvar financeiro de fornecedor em txt"_s,
        .htmlTitle = u"Salvar financeiro de fornecedor em html"_s,
        .heading = u"Fornecedor: "_s,
        .htmlHeading = u"fornecedor: "_s,
    };
    return side;
}

const HistorySide &historyOf(const ContactSide &contacts)
{
    return &contacts == &clientHistory().entries.contacts ? clientHistory() : supplierHistory();
}

namespace contacthistory {

std::vector<Contact> contacts(Connection &connection, const HistorySide &side)
{
    std::vector<Contact> contacts;
    for (Recordset rows(connection, side.namesQuery); rows.next();)
        contacts.push_back({rows.text(0), rows.text(1)});
    return contacts;
}

QString picture(Connection &connection, const HistorySide &side, const QString &name)
{
    Recordset rows(connection, u"select * from "_s + side.entries.contacts.table + u" where (nome like "_s +
                                   sql::literal(name) + u")"_s);
    return rows.next() ? rows.text(u"local").trimmed() : QString();
}

QString query(const HistorySide &side, const QString &name, Shown shown)
{
    const QString status[] = {{}, u" AND (estatus like 'Pendente')"_s, u" AND (estatus like 'Concluído')"_s};
    return u"SELECT * FROM "_s + side.entries.table + u" where ("_s + side.entries.contactColumn +
           u" like "_s + sql::literal(name) + u")"_s + status[std::size_t(shown)] + u" order by data"_s;
}

std::vector<ListColumn> columns()
{
    const auto text = [](const QString &key, const QString &title, int width,
                         CellKind kind = CellKind::Text) {
        return ListColumn{key, title, kind, width, {}, cellformat::textAndBlank};
    };
    return {
        {u"data"_s, u"Data"_s, CellKind::Date, 90},
        text(u"documento"_s, u"Documento"_s, 120),
        text(u"descricao"_s, u"Descrição"_s, 200),
        text(u"produto"_s, u"Produto"_s, 170),
        text(u"qtde"_s, u"Qtde"_s, 60, CellKind::Number),
        text(u"origem"_s, u"Caixa/Banco"_s, 150),
        {u"valor"_s, u"Valor"_s, CellKind::Amount, 110, {u"valor"_s, u"moeda"_s}, cellformat::withCurrency},
        {u"estatus"_s, u"Estatus"_s, CellKind::Text, 90},
        text(u"informacoes"_s, u"Informações"_s, 180),
    };
}

QString totals(const HistorySide &side, const Figures &figures)
{
    const auto [count, total] = figures.total();
    return QString::number(count) + side.entries.countWords + total.inReais() + side.entries.settledWords +
           figures.settled.sum.inReais() + u"  -  Total pendente: "_s + figures.pending.sum.inReais();
}

QString statusLine(Shown shown)
{
    const QString words[] = {u"todos os dados"_s, u"apenas dados pendentes"_s, u"apenas dados concluídos"_s};
    return u" Estatus: Exibindo "_s + words[std::size_t(shown)];
}

QStringList details(Connection &connection, const HistorySide &side, const QString &code)
{
    Recordset rows(connection, u"SELECT cpf,tipo,tel2,cel,nascimento,insc FROM ["_s +
                                   side.entries.contacts.table + u"] WHERE código like "_s +
                                   sql::literal(code));
    if (!rows.next())
        return {};
    const bool isPerson = rows.text(u"tipo").compare(u"f"_s, Qt::CaseInsensitive) == 0;
    return {isPerson ? u"Pessoa Física"_s : u"Pessoa Jurídica"_s,
            (isPerson ? u"CPF: "_s : u"CNPJ: "_s) + rows.text(u"cpf"),
            u"Telefone: "_s + rows.text(u"tel2"),
            u"Celular: "_s + rows.text(u"cel"),
            u"Nascimento: "_s + dates::shownFromStored(rows.text(u"nascimento")),
            u"Inscrição: "_s + rows.text(u"insc")};
}

} // namespace contacthistory
