#include "history/steptexts.h"

#include "data/dates.h"
#include "data/status.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// How a table's rows are called, and which columns say which row it is.
struct TableWords
{
    QStringView table;
    QString name;
    QStringList columns;
};

const TableWords &wordsOf(const QString &table)
{
    static const TableWords other{u"", u"registro"_s, {}};
    static const TableWords all[] = {
        {u"pagar", u"conta a pagar"_s, {u"descricao"_s, u"fornecedor"_s, u"valor"_s}},
        {u"receber", u"conta a receber"_s, {u"descricao"_s, u"cliente"_s, u"valor"_s}},
        {u"bancario", u"movimento bancário"_s, {u"movimento"_s, u"origem"_s, u"valor"_s}},
        {u"banco", u"caixa ou banco"_s, {u"banco"_s}},
        {u"cliente", u"cliente"_s, {u"nome"_s}},
        {u"fornecedor", u"fornecedor"_s, {u"nome"_s}},
        {u"pcontapagar", u"centro de custo"_s, {u"descricao"_s}},
        {u"pcontareceber", u"centro de lucro"_s, {u"descricao"_s}},
        {u"produto", u"produto"_s, {u"produto"_s}},
        {u"compromisso", u"compromisso"_s, {u"Titulo"_s, u"data"_s}},
        {u"fpagamento", u"forma de pagamento"_s, {u"pagamento"_s}},
        {u"recorrencia", u"conta regular"_s, {u"descricao"_s, u"contato"_s, u"valor"_s}},
        {u"CamposEtiqueta", u"campo de etiqueta"_s, {u"Campo"_s}},
    };
    const auto found = std::ranges::find(all, QStringView(table), &TableWords::table);
    return found == std::end(all) ? other : *found;
}

const QHash<QString, QString> &fieldNames()
{
    static const QHash<QString, QString> names{{u"código"_s, u"Código"_s},
                                               {u"estatus"_s, u"Estatus"_s},
                                               {u"origem"_s, u"Caixa ou banco"_s},
                                               {u"destino"_s, u"Destino"_s},
                                               {u"fornecedor"_s, u"Fornecedor"_s},
                                               {u"cliente"_s, u"Cliente"_s},
                                               {u"data"_s, u"Data"_s},
                                               {u"vencimento"_s, u"Vencimento"_s},
                                               {u"descricao"_s, u"Descrição"_s},
                                               {u"documento"_s, u"Documento"_s},
                                               {u"informacoes"_s, u"Informações"_s},
                                               {u"valor"_s, u"Valor"_s},
                                               {u"moeda"_s, u"Moeda"_s},
                                               {u"produto"_s, u"Produto"_s},
                                               {u"qtde"_s, u"Quantidade"_s},
                                               {u"pagamento"_s, u"Pagamento"_s},
                                               {u"custo"_s, u"Custo"_s},
                                               {u"movimento"_s, u"Movimento"_s},
                                               {u"banco"_s, u"Nome"_s},
                                               {u"saldo"_s, u"Saldo inicial"_s},
                                               {u"info"_s, u"Informações"_s},
                                               {u"Titulo"_s, u"Título"_s},
                                               {u"hora"_s, u"Hora"_s},
                                               {u"local"_s, u"Local"_s},
                                               {u"nome"_s, u"Nome"_s},
                                               {u"tipo"_s, u"Tipo"_s},
                                               {u"cpf"_s, u"CPF ou CNPJ"_s},
                                               {u"insc"_s, u"Inscrição estadual"_s},
                                               {u"endereco"_s, u"Endereço"_s},
                                               {u"bairro"_s, u"Bairro"_s},
                                               {u"cidade"_s, u"Cidade"_s},
                                               {u"estado"_s, u"Estado"_s},
                                               {u"pais"_s, u"País"_s},
                                               {u"tel"_s, u"Telefone"_s},
                                               {u"tel2"_s, u"Telefone 2"_s},
                                               {u"cel"_s, u"Celular"_s},
                                               {u"email"_s, u"E-mail"_s},
                                               {u"site"_s, u"Site"_s},
                                               {u"nascimento"_s, u"Nascimento"_s},
                                               {u"adicionais"_s, u"Informações"_s},
                                               {u"contato"_s, u"Fornecedor ou cliente"_s},
                                               {u"ritmo"_s, u"Quando"_s},
                                               {u"fim"_s, u"Termina"_s},
                                               {u"adiante"_s, u"Dias de antecedência"_s},
                                               {u"tabela"_s, u"Tabela"_s}};
    return names;
}

struct Images
{
    explicit Images(const RecordedRow &row)
        : before(QJsonDocument::fromJson(row.before).object()),
          after(QJsonDocument::fromJson(row.after).object())
    {
    }
    const QJsonObject &either() const { return after.isEmpty() ? before : after; }

    QJsonObject before, after;
};

QString shown(const QJsonObject &row, const QString &column)
{
    const QJsonValue value = row[column];
    if (value.isDouble())
        return QString::number(value.toDouble(), 'g', 15).replace(u'.', u',');
    const QString text = value.toString().simplified();
    return column == u"data"_s || column == u"vencimento"_s ? dates::shownFromStored(text) : text;
}

/// "Aluguel - R$ 1.200,00"
QString nameOf(const RecordedRow &row)
{
    const QJsonObject image = Images(row).either();
    QStringList parts;
    for (const QString &column : wordsOf(row.table).columns)
        if (const QString text = shown(image, column); !text.isEmpty() && text != u"-"_s)
            parts << (column == u"valor"_s ? u"R$ "_s + text : text);
    return parts.join(u" - "_s);
}

QString action(const RecordedRow &row)
{
    const Images images(row);
    if (images.before.isEmpty())
        return u"Inclusão"_s;
    if (images.after.isEmpty())
        return u"Exclusão"_s;
    const auto status = [](const QJsonObject &image) { return image[u"estatus"_s].toString(); };
    return status(images.before) == status::pending && status(images.after) == status::settled
               ? u"Baixa"_s
               : u"Alteração"_s;
}

QString withWords(const RecordedRow &row)
{
    const QString name = nameOf(row);
    return wordsOf(row.table).name + (name.isEmpty() ? QString() : u": "_s + name);
}

} // namespace

namespace steptexts {

QString deed(const std::vector<RecordedRow> &rows)
{
    if (rows.empty())
        return u"Nada mudou"_s;
    // What moved the goods says more than the goods.
    auto main = std::ranges::find_if(rows, [](const RecordedRow &row) { return row.table != u"produto"_s; });
    if (main == rows.end())
        main = rows.begin();
    const auto alike = std::ranges::count(rows, main->table, &RecordedRow::table);
    return action(*main) + u" de "_s + withWords(*main) +
           (alike > 1 ? u" (e mais %1)"_s.arg(alike - 1) : QString());
}

QString title(Connection &connection, const journal::Step &step)
{
    if (step.kind == journal::Kind::Done)
        return deed(journal::rows(connection, step.number));
    return (step.kind == journal::Kind::Undone ? u"Desfez: "_s : u"Refez: "_s) +
           deed(journal::rows(connection, step.of));
}

QString refusals(const std::vector<undo::Refusal> &refused)
{
    constexpr std::size_t most = 10;
    QStringList lines;
    for (const undo::Refusal &refusal : refused) {
        if (lines.size() == most) {
            lines << u"e mais %1"_s.arg(refused.size() - most);
            break;
        }
        const QString why[] = {u"mudou depois"_s, u"não existe mais"_s,
                               u"outro registro ocupa o seu lugar ou tem o seu nome"_s};
        lines << withWords(refusal.row) + u" ("_s + why[int(refusal.reason)] + u')';
    }
    return lines.join(u'\n');
}

std::shared_ptr<StoredTable> details(const std::vector<RecordedRow> &rows)
{
    auto table = std::make_shared<StoredTable>(
        std::vector<ListColumn>{{u"registro"_s, u"Registro"_s, CellKind::Text, 260},
                                {u"campo"_s, u"Campo"_s, CellKind::Text, 120},
                                {u"antes"_s, u"Antes"_s, CellKind::Text, 200},
                                {u"depois"_s, u"Depois"_s, CellKind::Text, 200}});
    for (const RecordedRow &row : rows) {
        const Images images(row);
        const QString name = withWords(row);
        for (const QString &column : images.either().keys())
            if (images.before[column] != images.after[column])
                table->append(QStringList{name, fieldNames().value(column, column),
                                          shown(images.before, column), shown(images.after, column)});
    }
    return table;
}

} // namespace steptexts
