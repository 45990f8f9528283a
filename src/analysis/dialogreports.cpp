#include "analysis/dialogreports.h"

#include "data/dates.h"
#include "data/literal.h"
#include "entries/entryreport.h"
#include "lists/readrows.h"

using namespace Qt::StringLiterals;

namespace dialogreports {

namespace {

/// The figures of the rows, and how many units they move when they have a quantity.
class DialogTotals : public FigureTotals
{
public:
    explicit DialogTotals(bool quantities) : m_quantities(quantities) {}

    QStringList columns() const override
    {
        return m_quantities ? FigureTotals::columns() << u"qtde"_s : FigureTotals::columns();
    }
    void add(std::span<const std::string_view> values, int sign) override
    {
        FigureTotals::add(values, sign);
        if (m_quantities)
            addSigned(quantity, Quantity::stored(values[2]), sign);
    }
    std::unique_ptr<RowTotals> clone() const override { return std::make_unique<DialogTotals>(*this); }

    Sum quantity;

private:
    bool m_quantities;
};

std::vector<Ordering> orderings(const QString &byDate, const QStringList &columns)
{
    std::vector<Ordering> all{{u"Data"_s, u"order by "_s + byDate}};
    for (const QString &column : columns) {
        QString caption = column == u"descricao"_s ? u"descrição"_s : column;
        caption[0] = caption[0].toUpper();
        all.push_back({caption, u"order by "_s + column});
    }
    return all;
}

const NameFilter &accountBox()
{
    static const NameFilter box{u"AND origem like("_s,    u") "_s,   u"cboorigem"_s, u"Con&ta:"_s,
                                u"select * from banco"_s, u"banco"_s};
    return box;
}

Page payables()
{
    NameFilter account = accountBox();
    account.close = u") "_s;
    return {u"Contas a &pagar"_s,
            u"p"_s,
            Subject::Payables,
            Rows::Entries,
            u"pagar"_s,
            true,
            u"estatus like ("_s,
            {{u"AND fornecedor like("_s, u") "_s, u"cbofornecedor"_s, u"&Fornecedor:"_s,
              u"select * from fornecedor"_s, u"nome"_s},
             account,
             {u"AND descricao like("_s, u") "_s, u"cbocusto"_s, u"Centro de c&usto:"_s,
              u"Select * from pcontapagar"_s, u"descricao"_s}},
            orderings(u"Data"_s, {u"descricao"_s, u"documento"_s, u"vencimento"_s, u"fornecedor"_s,
                                  u"origem"_s, u"estatus"_s, u"valor"_s}),
            u"CONTAS A PAGAR"_s,
            u"Total de despesas: R$ "_s,
            u" - Total pago: R$ "_s};
}

Page receivables()
{
    NameFilter account = accountBox();
    account.open = u"AND (origem like "_s;
    return {u"Contas a &receber"_s,
            u"r"_s,
            Subject::Receivables,
            Rows::Entries,
            u"receber"_s,
            true,
            u"(estatus like "_s,
            {{u"AND (cliente like "_s, u") "_s, u"cbocliente"_s, u"C&liente:"_s, u"select * from cliente"_s,
              u"nome"_s},
             account,
             {u"AND (descricao like "_s, u") "_s, u"cbolucro"_s, u"Centro de l&ucro:"_s,
              u"Select * from pcontareceber"_s, u"descricao"_s}},
            orderings(u"data"_s, {u"descricao"_s, u"documento"_s, u"vencimento"_s, u"cliente"_s, u"origem"_s,
                                  u"estatus"_s, u"valor"_s}),
            u"CONTAS A RECEBER"_s,
            u"Total de receitas: R$ "_s,
            u" - Total recebido: R$ "_s};
}

Page movements()
{
    NameFilter target = accountBox();
    target.open = u"AND destino like("_s;
    target.control = u"cbodestino"_s;
    target.label = u"Conta d&estino:"_s;
    return {u"Movimento &bancário"_s,
            u"b"_s,
            Subject::Movements,
            Rows::Movements,
            u"bancario"_s,
            false,
            u"estatus like ("_s,
            {accountBox(), target},
            orderings(u"Data"_s, {u"movimento"_s, u"destino"_s, u"origem"_s, u"estatus"_s, u"valor"_s}),
            u"MOVIMENTO BANCÁRIO"_s,
            u"Valor total: R$ "_s,
            u" - Total concluído: R$ "_s};
}

Page stock(Page side)
{
    const QString contact = side.subject == Subject::Payables ? u"fornecedor"_s : u"cliente"_s;
    side.caption = u"&Estoque"_s;
    side.suffix = u"e"_s;
    side.rows = Rows::Stock;
    side.statusOpen = u"estatus like ("_s;
    side.names.erase(side.names.begin() + 1, side.names.end());
    side.names[0].open = u"AND "_s + contact + u" like("_s;
    side.names.push_back({u"AND produto like("_s, u") AND [produto] <> '-' "_s, u"cboproduto"_s,
                          u"Pro&duto:"_s, u"select * from produto"_s, u"produto"_s});
    side.orderings = orderings(u"Data"_s, {u"produto"_s, u"documento"_s, u"vencimento"_s, contact,
                                           u"origem"_s, u"estatus"_s, u"qtde"_s});
    side.title = u"ESTOQUE"_s;
    side.totalWords = u"Total: R$ "_s;
    side.settledWords = u" - Total concluído: R$ "_s;
    return side;
}

const Side &sideOf(Subject subject)
{
    return subject == Subject::Payables ? payable() : receivable();
}

void nothing(std::span<const std::string_view>, std::string &)
{
}

std::vector<ListColumn> columns(Subject subject, Rows rows)
{
    if (rows == Rows::Movements)
        return {{u"data"_s, u"Data"_s, CellKind::Date},
                {u"movimento"_s, u"Movimento"_s},
                {u"origem"_s, u"Conta Origem"_s},
                {u"destino"_s, u"Conta Destino"_s},
                {u"valor"_s, u"Valor"_s, CellKind::Amount, 80, {}, cellformat::reais},
                {u"estatus"_s, u"Estatus"_s},
                {u"informacoes"_s, u"Informações"_s}};
    std::vector<ListColumn> all = entryreport::columns(sideOf(subject));
    if (rows == Rows::Stock) {
        all.push_back({u"produto"_s, u"Produto"_s});
        all.push_back({u"qtde"_s, u"Qtde"_s, CellKind::Number});
        ListColumn cost{u"custo"_s, u"Custo"_s, CellKind::Amount};
        if (!sideOf(subject).hasUnitCost) {
            cost.sources = {u"qtde"_s};
            cost.format = nothing;
        }
        all.push_back(cost);
    }
    return all;
}

/// What is to be read and how it is told.
struct Wanted
{
    QString sql;
    Subject subject;
    Rows rows;
    QString title, totalWords, settledWords;
};

std::optional<Report> readWanted(Connection &connection, const Wanted &wanted, const Choices &choices,
                                 Progress *progress)
{
    const auto shown = columns(wanted.subject, wanted.rows);
    const auto table = std::make_shared<StoredTable>(shown);
    DialogTotals totals(wanted.rows == Rows::Stock);
    const qint64 count =
        readrows::into(*table, connection, wanted.sql, shown, wanted.subject, totals, progress);
    if (count == 0)
        return std::nullopt;
    Report report{.title = wanted.title, .filterText = filterText(choices), .tables = {table}};
    report.statistics = u"Total de cadastros no período: "_s + QString::number(count) + u" (entre "_s +
                        dates::shown(choices.first) + u" e "_s + dates::shown(choices.last) + u")\r\n"_s +
                        entryreport::totals(wanted.totalWords, wanted.settledWords, totals.figures);
    if (wanted.rows == Rows::Stock)
        report.statistics += u" - Quantidade de produtos: "_s + totals.quantity.plain();
    return report;
}

QString pattern(const QString &chosen)
{
    return chosen.isEmpty() ? u"'%%'"_s : sql::literal(chosen);
}

bool hasDates(const Choices &choices)
{
    return choices.first.isValid() && choices.last.isValid();
}

QString between(const Choices &choices)
{
    return u" BETWEEN '"_s + dates::stored(choices.first) + u"' AND '"_s + dates::stored(choices.last) +
           u"'"_s;
}

Command payment(Kind kind)
{
    return {kind,
            kind == Kind::Payables ? u"select * from pagar"_s : u"select * from receber"_s,
            u"pagamento"_s,
            u"FORMAS DE PAGAMENTO"_s,
            u"Valor total: R$ "_s,
            u"A forma de pagamento deve ser selecionada!"_s,
            u"pagamento"_s,
            u"Forma de &pagamento:"_s,
            u"Select * from fpagamento"_s,
            u"pagamento"_s};
}

} // namespace

const Page &page(Kind kind)
{
    static const Page pages[] = {payables(), receivables(), movements(), stock(payables()),
                                 stock(receivables())};
    return pages[std::size_t(kind)];
}

QString problem(const Choices &choices)
{
    return choices.datesWanted && !hasDates(choices)
               ? u"Selecione as que deseja filtrar(data de inicio e data final)."_s
               : QString();
}

QString query(const Page &page, const Choices &choices)
{
    QString sql = u"Select * from "_s + page.table + u' ';
    if (choices.datesWanted)
        sql += u"WHERE "_s + (page.hasDueDate && choices.byDueDate ? u"Vencimento"_s : u"Data"_s) +
               between(choices);
    sql += choices.datesWanted ? u" AND "_s : u" WHERE "_s;
    sql += page.statusOpen + pattern(choices.status) + u") "_s;
    for (std::size_t i = 0; i < page.names.size(); ++i)
        sql += page.names[i].open + pattern(choices.names.value(qsizetype(i))) + page.names[i].close;
    return sql + page.orderings[std::size_t(choices.ordering)].sql +
           (choices.descending ? u" DESC"_s : u" ASC"_s);
}

QString filterText(const Choices &choices)
{
    if (!choices.datesWanted)
        return u"                      Obs. Este relatório não foi filtrado por data."_s;
    return (choices.byDueDate ? u"Relatório gerado entre os vencimentos de "_s
                              : u"Relatório gerado entre as datas de "_s) +
           dates::shown(choices.first) + u" e "_s + dates::shown(choices.last) + u" - Período de "_s +
           QString::number(choices.first.daysTo(choices.last)) + u" dias."_s;
}

const Command &command(Choice choice)
{
    static const Command commands[] = {
        {Kind::Receivables, u"Select * from receber"_s, u"cliente"_s, u"CLIENTE - RECEITAS"_s,
         u"Total de receitas: R$ "_s, u"O cliente deve ser selecionado!"_s, u"cliente"_s, u"&Cliente:"_s,
         u"select * from cliente"_s, u"nome"_s},
        {Kind::Payables, u"Select * from pagar"_s, u"fornecedor"_s, u"FORNECEDOR - DESPESAS"_s,
         u"Total de despesas: R$ "_s, u"O fornecedor deve ser selecionado!"_s, u"fornecedor"_s,
         u"&Fornecedor:"_s, u"select * from fornecedor"_s, u"nome"_s},
        {Kind::Payables, u"Select * from pagar"_s, u"descricao"_s, u"CENTRO DE CUSTO"_s,
         u"Total de despesas: R$ "_s, u"O centro de custo deve ser selecionado!"_s, u"centrocusto"_s,
         u"Centro de c&usto:"_s, u"Select * from pcontapagar"_s, u"descricao"_s},
        {Kind::Receivables, u"Select * from receber"_s, u"descricao"_s, u"CENTRO DE LUCRO"_s,
         u"Total de receitas: R$ "_s, u"O centro de lucro deve ser selecionado!"_s, u"centrolucro"_s,
         u"Centro de &lucro:"_s, u"Select * from pcontareceber"_s, u"descricao"_s},
        payment(Kind::Payables),
        payment(Kind::Receivables)};
    return commands[std::size_t(choice)];
}

QString problem(const Command &command, const Choices &choices)
{
    if (!hasDates(choices))
        return u"As datas que deseja filtrar devem ser definidas!"_s;
    return choices.names.value(0).isEmpty() ? command.missing : QString();
}

QString query(const Command &command, const Choices &choices)
{
    return command.table + u" WHERE "_s + (choices.byDueDate ? u"vencimento"_s : u"data"_s) +
           between(choices) + u" AND "_s + command.filter + u" like "_s +
           sql::literal(choices.names.value(0));
}

std::optional<Report> read(Connection &connection, const Page &page, const Choices &choices,
                           Progress *progress)
{
    return readWanted(
        connection,
        {query(page, choices), page.subject, page.rows, page.title, page.totalWords, page.settledWords},
        choices, progress);
}

std::optional<Report> read(Connection &connection, const Command &command, const Choices &choices,
                           Progress *progress)
{
    return readWanted(connection,
                      {query(command, choices), page(command.kind).subject, Rows::Entries, command.title,
                       command.totalWords, u" - Total pago: R$ "_s},
                      choices, progress);
}

} // namespace dialogreports
