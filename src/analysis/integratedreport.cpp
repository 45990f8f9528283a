#include "analysis/integratedreport.h"

#include "data/dates.h"
#include "data/like.h"
#include "data/literal.h"
#include "lists/readrows.h"
#include "reports/html.h"

using namespace Qt::StringLiterals;

namespace integratedreport {

namespace {

const QString lineBreak = u"\r\n"_s;
const QString savedSubtitle = u"Despesas, Receitas e Movimento Bancário"_s;

template <std::size_t size>
void constant(const char (&text)[size], std::string &out)
{
    out.append(text, size - 1);
}
void dash(std::span<const std::string_view>, std::string &out)
{
    out = '-';
}
void debit(std::span<const std::string_view>, std::string &out)
{
    constant("DÉBITO", out);
}
void credit(std::span<const std::string_view>, std::string &out)
{
    constant("CRÉDITO", out);
}
void movement(std::span<const std::string_view>, std::string &out)
{
    constant("Movimento Bancário", out);
}

/// The accounts of a movement: a transfer has two. The values are `origem`, `destino`, `movimento`.
void accounts(std::span<const std::string_view> values, std::string &out)
{
    constexpr std::string_view transfer = "Transferência entre contas";
    out = values[0];
    const std::string_view kind = values[2];
    if (kind == transfer || (kind.size() == transfer.size() &&
                             textorder::equalFolded(QString::fromUtf8(kind.data(), qsizetype(kind.size())),
                                                    u"transferência entre contas"))) {
        out += " / ";
        out += values[1];
    }
}

/// The nine columns; what feeds the ones in which the sections differ is given.
std::vector<ListColumn> columns(const QStringList &description, const QString &party, CellFormat value,
                                bool movements, CellFormat kind)
{
    const QString any = u"estatus"_s;
    const CellFormat none = movements ? dash : nullptr;
    const auto key = [&](const QString &name) { return movements ? any : name; };
    return {
        {u"data"_s, u"Data"_s, CellKind::Date},
        {u"descricao"_s, u"Descrição"_s, CellKind::Text, 80, description},
        {u"documento"_s, u"Documento"_s, CellKind::Text, 80, {key(u"documento"_s)}, none},
        {u"nome"_s, u"Fornecedor / Cliente"_s, CellKind::Text, 80, {key(party)}, none},
        {u"valor"_s, u"Valor"_s, CellKind::Amount, 80,
         movements ? QStringList{u"valor"_s} : QStringList{u"valor"_s, u"moeda"_s}, value},
        {u"vencimento"_s, u"Vencimento"_s, CellKind::Date, 80, {key(u"vencimento"_s)}, none},
        {u"estatus"_s, u"Estatus"_s},
        {u"origem"_s, u"Conta"_s, CellKind::Text, 80,
         movements ? QStringList{u"origem"_s, u"destino"_s, u"movimento"_s} : QStringList{u"origem"_s},
         movements ? accounts : nullptr},
        {u"tipo"_s, u"Tipo"_s, CellKind::Text, 80, {any}, kind},
    };
}

NameList originList(const QString &suffix, const QString &clear)
{
    return {.column = u"origem"_s,
            .open = u"("_s,
            .close = u")"_s,
            .allWords = u"Conta origem incluídas: Todas, não filtrada."_s,
            .chosenWords = u"Conta origem incluídas: "_s,
            .boxDecides = true,
            .caption = u"Contas de origem"_s,
            .all = u"Todas as contas"_s,
            .list = u"lstorigem"_s + suffix,
            .box = u"chkorigem"_s + suffix,
            .add = u"cmdorigem"_s + suffix,
            .clear = clear,
            .namesQuery = u"select * from banco"_s,
            .namesColumn = u"banco"_s};
}

NameList bareOriginList()
{
    NameList list = originList(u"b"_s, u"cmdlimparorigemb"_s);
    list.open.clear();
    list.close.clear();
    return list;
}

Section payables()
{
    return {.subject = Subject::Payables,
            .table = u"pagar"_s,
            .suffix = u"p"_s,
            .textName = u"txtpagar"_s,
            .caption = u"Contas a pagar - débitos"_s,
            .hasDueDate = true,
            .dateOpen = u"('"_s,
            .dateClose = u"')"_s,
            .afterDate = u"') AND "_s,
            .statusOpen = u"('"_s,
            .statusClose = u"')"_s,
            .settledWord = u"Concluído"_s,
            .totalWords = u"Total de despesa: R$ "_s,
            .names = {{u"fornecedor"_s, u"("_s, u")"_s, u"Fornecedores Incluídos: Todos, não filtrado."_s,
                       u"Fornecedores Incluídos: "_s, true, u"Fornecedores"_s, u"Todos os fornecedores"_s,
                       u"lstfornecedor"_s, u"chkfornecedor"_s, u"cmdfornecedor"_s, u"lstlimparforn"_s,
                       u"select * from fornecedor"_s, u"nome"_s},
                      originList(u"p"_s, u"cmdlimpaorigemp"_s),
                      {u"descricao"_s, u"("_s, u")"_s, u"Centro de custos incluídos: Todos, não filtrado."_s,
                       u"Centro de custos incluídos: "_s, false, u"Centros de custo"_s,
                       u"Todos os centros de custo"_s, u"lstcusto"_s, u"chkcusto"_s, u"cmdcusto"_s,
                       u"cmdlimpacusto"_s, u"Select * from pcontapagar"_s, u"descricao"_s}},
            .columns = columns({u"descricao"_s}, u"fornecedor"_s, cellformat::withCurrency, false, debit)};
}

Section receivables()
{
    Section section = payables();
    section.subject = Subject::Receivables;
    section.table = u"receber"_s;
    section.suffix = u"r"_s;
    section.textName = u"txtreceber"_s;
    section.caption = u"Contas a receber - créditos"_s;
    section.settledWord = u"Conluído"_s;
    section.totalWords = u"Total de receitas: R$ "_s;
    section.names = {{u"cliente"_s, u"("_s, u")"_s, u"clientes Incluídos: Todos, não filtrado."_s,
                      u"Clientes Incluídos: "_s, true, u"Clientes"_s, u"Todos os clientes"_s, u"lstcliente"_s,
                      u"chkcliente"_s, u"cmdcliente"_s, u"cmdlimpacliente"_s, u"select * from cliente"_s,
                      u"nome"_s},
                     originList(u"r"_s, u"cmdlimparorigemr"_s),
                     {u"descricao"_s, u"("_s, u")"_s, u"Centro de lucros incluídos: Todos, não filtrado."_s,
                      u"Centro de lucros incluídos: "_s, false, u"Centros de lucro"_s,
                      u"Todos os centros de lucro"_s, u"lstlucros"_s, u"chklucros"_s, u"cmdlucros"_s,
                      u"cmdlimparlucros"_s, u"Select * from pcontareceber"_s, u"descricao"_s}};
    section.columns = columns({u"descricao"_s}, u"cliente"_s, cellformat::withCurrency, false, credit);
    return section;
}

Section movements()
{
    Section section = payables();
    section.subject = Subject::Movements;
    section.table = u"bancario"_s;
    section.suffix = u"b"_s;
    section.textName = u"txtbancario"_s;
    section.caption = u"Movimento bancário"_s;
    section.hasDueDate = false;
    section.dateOpen = u"'"_s;
    section.dateClose = u"'"_s;
    section.afterDate = u"'  AND "_s;
    section.statusOpen = u"'"_s;
    section.statusClose = u"'"_s;
    section.settledWord = u"Conluído"_s;
    section.totalWords = u"Total bancário: R$ "_s;
    section.names = {bareOriginList(),
                     {u"destino"_s, u"("_s, u")"_s, u"Conta destino incluídas: Todas, não filtrado."_s,
                      u"Contas destino incluídas: "_s, true, u"Contas de destino"_s, u"Todas as contas"_s,
                      u"lstdestino"_s, u"chkdestinob"_s, u"cmddestino"_s, u"cmdlimpardestino"_s,
                      u"select * from banco"_s, u"banco"_s}};
    section.columns = columns({u"movimento"_s}, {}, cellformat::amount, true, movement);
    return section;
}

QString dateFilter(const Section &section, const SectionChoices &choices, QString &header)
{
    if (choices.allDates) {
        header += u"Datas incluídas: Todas, não filtrada."_s + lineBreak;
        return u"like "_s + section.dateOpen + u"%%"_s;
    }
    header += u"Datas incluídas: "_s + dates::shown(choices.first) + u" à "_s + dates::shown(choices.last) +
              lineBreak;
    return u"BETWEEN "_s + section.dateOpen + dates::stored(choices.first) + section.dateClose + u" AND "_s +
           section.dateOpen + dates::stored(choices.last);
}

QString nameFilter(const NameList &list, const Names &chosen, QString &header)
{
    if (chosen.names.isEmpty() || (list.boxDecides && chosen.all)) {
        header += list.allWords + lineBreak;
        return list.open + u"'%%'"_s + list.close;
    }
    QStringList patterns;
    for (const QString &name : chosen.names)
        patterns << list.open + sql::literal(name) + list.close;
    header += list.chosenWords + chosen.names.join(u", "_s) + lineBreak;
    return patterns.join(u" OR ["_s + list.column + u"] like "_s);
}

QString statusPattern(const Section &section, Status status, QString &header)
{
    const auto told = [&](const QString &words, const QString &pattern) {
        header += u"Estatus: "_s + words + lineBreak;
        return pattern;
    };
    switch (status) {
    case Status::All:
        return told(u"Pendentes e Conluídos"_s, u"%%"_s);
    case Status::Pending:
        return told(u"Apenas pendentes"_s, u"Pendente"_s);
    case Status::Settled:
        break;
    }
    return told(u"Apenas conluídos"_s, section.settledWord);
}

/// What the included sections come to, from the sums of each.
QString finances(const Choices &choices, const std::array<Sum, sectionCount> &sums)
{
    QStringList lines;
    if (choices[1].included)
        lines << u"Total de receitas: "_s + sums[1].inReais();
    if (choices[0].included)
        lines << u"Total de despesas: "_s + sums[0].inReais();
    if (choices[0].included && choices[1].included)
        lines << u"Saldo (receitas - despesas): "_s + (sums[1] - sums[0]).inReais();
    if (choices[2].included)
        lines << u"Total do movimento bancário: "_s + sums[2].inReais();
    return lines.isEmpty() ? u"Nenhuma seção incluída no relatório."_s : lines.join(lineBreak);
}

using Headings = std::array<QString, 4>;

/// Heading and text of each section and of the finances.
QString blocks(const Result &result, const Headings &headings, const QString &afterHeading,
               const QString &afterText, QString (*escaped)(QStringView))
{
    QString text;
    for (std::size_t i = 0; i < headings.size(); ++i)
        text += headings[i] + afterHeading + escaped(i < sectionCount ? result.texts[i] : result.finances) +
                afterText;
    return text;
}

QString plain(QStringView text)
{
    return text.toString().replace(lineBreak, u"\n"_s);
}

} // namespace

const Section &section(int index)
{
    static const std::array<Section, sectionCount> sections{payables(), receivables(), movements()};
    return sections[std::size_t(index)];
}

Query query(const Section &section, const SectionChoices &choices)
{
    Query query;
    const QString date = section.hasDueDate && choices.byDueDate ? u"vencimento"_s : u"data"_s;
    query.sql = u"SELECT * FROM ["_s + section.table + u"] WHERE ["_s + date + u"] "_s +
                dateFilter(section, choices, query.header) + section.afterDate;
    for (std::size_t i = 0; i < section.names.size(); ++i)
        query.sql += u"(["_s + section.names[i].column + u"] like "_s +
                     nameFilter(section.names[i], choices.names[i], query.header) + u") AND "_s;
    query.sql += u"[estatus] like "_s + section.statusOpen +
                 statusPattern(section, choices.status, query.header) + section.statusClose;
    return query;
}

Result read(Connection &connection, const Choices &choices, Progress *progress)
{
    Result result{std::make_shared<StoredTable>(section(0).columns), {}, {}};
    std::array<Sum, sectionCount> sums;
    for (int i = 0; i < sectionCount; ++i) {
        const std::size_t at = std::size_t(i);
        const Section &read = section(i);
        if (!choices[at].included) {
            result.texts[at] = read.caption + u", não incluído no relatório!"_s;
            continue;
        }
        const Query asked = query(read, choices[at]);
        FigureTotals totals;
        readrows::into(*result.table, connection, asked.sql, read.columns, read.subject, totals, progress);
        sums[at] = totals.figures.total().sum;
        result.texts[at] = asked.header + read.totalWords + sums[at].grouped();
    }
    result.finances = finances(choices, sums);
    return result;
}

Report saved(const Result &result, std::shared_ptr<const TableSource> list)
{
    const Headings text{u"Contas a pagar:"_s, u"Contas a receber:"_s, u"Movimento bancário:"_s,
                        u"Dados financeiros:"_s};
    const Headings page{u"<b>CONTAS A PAGAR - DESPESAS</b><BR>"_s,
                        u"<b>CONTAS A RECEBER - RECEITAS</b><BR>"_s, u"<b>MOVIMENTO BANCÁRIO</b><BR>"_s,
                        u"<b>DADOS FINANCEIROS</b><BR>"_s};
    Report report;
    report.title = u"RELATÓRIO INTEGRADO"_s;
    report.subtitle = savedSubtitle;
    report.textTitle = report.title + u"  - "_s + savedSubtitle;
    report.tables = {std::move(list)};
    report.textStatistics = blocks(result, text, u"\n"_s, u"\n\n"_s, plain);
    report.textStatistics.chop(1); // the line that is written ends by itself
    report.htmlStatistics = blocks(result, page, {}, u"<br><br>"_s, html::lines);
    return report;
}

Report printed(const Result &result, std::shared_ptr<const TableSource> list)
{
    const Headings headings{u"CONTAS A PAGAR - DESPESA"_s, u"CONTAS A RECEBER - RECEITAS"_s,
                            u"MOVIMENTO BANCÁRIO"_s, u"DADOS FINANCEIROS"_s};
    Report report;
    report.title = u"RELATÓRIO INTEGRADO"_s;
    report.subtitle = u"Contas a pagar, receber e movimento bancário"_s;
    report.tables = {std::move(list)};
    report.statistics = u'\n' + blocks(result, headings, u"\n"_s, u"\n\n"_s, plain);
    report.statistics.chop(2);
    return report;
}

modimpressao::PageSetup pages()
{
    return {.fontSize = 11,
            .rows = {.cells = {0, 1, 2, 3},
                     .showHeadings = false,
                     .labels = {{u"Valor: "_s, 4}, {u"Estatus: "_s, 6}, {u"Conta: "_s, 7}, {u"Tipo: "_s, 8}}},
            .ruleLength = 87};
}

} // namespace integratedreport
