#include "analysis/management.h"

#include "data/dates.h"
#include "data/literal.h"
#include "lists/readrows.h"

using namespace Qt::StringLiterals;

namespace {

using By = ManagementFilter::By;

QString from(const Side &side)
{
    return u"select * from "_s + side.table;
}

} // namespace

const ManagementKind &payableManagement()
{
    static const ManagementKind kind{
        .side = payable(),
        .none = u"Não há nenhuma conta cadastrada em contas a pagar!"_s,
        .noneOfContact = u"Não há nenhum despesa cadastrada com o fornecedor "_s,
        .noneOfStatus = u"Não há nenhuma despesa cadastrada com o estatus "_s,
        .suffix = u"desp"_s,
        .ascendingName = u"optascr"_s,
        .descendingName = u"optdescr"_s,
    };
    return kind;
}

const ManagementKind &receivableManagement()
{
    static const ManagementKind kind{
        .side = receivable(),
        .none = u"Não há nenhuma receita cadastrada em contas a receber!"_s,
        .noneOfContact = u"Não há nenhuma receita cadastrada com o cliente "_s,
        .noneOfStatus = u"Não há nenhuma receita cadastrada com o estatus "_s,
        .suffix = u"lucros"_s,
        .ascendingName = u"optasclucros"_s,
        .descendingName = u"optdesclucros"_s,
    };
    return kind;
}

namespace management {

std::vector<ListColumn> columns()
{
    return {
        {u"data"_s, u"Data"_s, CellKind::Date},
        {u"descricao"_s, u"Plano de conta / Descrição"_s},
        {u"valor"_s, u"Valor"_s, CellKind::Amount, 80, {u"valor"_s, u"moeda"_s}, cellformat::withCurrency}};
}

std::optional<QString> problem(const ManagementFilter &filter)
{
    if (filter.by == By::Dates && (!filter.first.isValid() || !filter.last.isValid()))
        return u"As datas devem ser preenchidas!"_s;
    return std::nullopt;
}

QString query(const Side &side, const ManagementFilter &filter)
{
    const auto like = [](const QString &column, const QString &pattern) {
        return u" where "_s + column + u" like ("_s + pattern + u") "_s;
    };
    switch (filter.by) {
    case By::Everything:
        break;
    case By::Contact:
        return from(side) + like(side.contactColumn, sql::literal(filter.name));
    case By::Status:
        return from(side) + like(u"estatus"_s, sql::containing(filter.name));
    case By::Dates:
        return from(side) + u" WHERE Data BETWEEN '"_s + dates::stored(filter.first) + u"' AND '"_s +
               dates::stored(filter.last) + u'\'';
    case By::Account:
        return from(side) + like(u"origem"_s, sql::literal(filter.name));
    }
    return from(side) + u" order by data "_s + (filter.descending ? u"DESC"_s : u"ASC"_s);
}

QString filterText(const ManagementKind &kind, const ManagementFilter &filter)
{
    switch (filter.by) {
    case By::Everything:
        break;
    case By::Contact:
        return kind.side.contactTitle + u": "_s + filter.name;
    case By::Status:
        return u"Estatus: "_s + filter.name;
    case By::Dates:
        return u"Período: "_s + dates::shown(filter.first) + u" a "_s + dates::shown(filter.last);
    case By::Account:
        return u"Conta: "_s + filter.name;
    }
    return u"Todos os cadastros"_s;
}

QString noneFound(const ManagementKind &kind, const ManagementFilter &filter)
{
    switch (filter.by) {
    case By::Everything:
        break;
    case By::Contact:
        return kind.noneOfContact + filter.name;
    case By::Status:
        return kind.noneOfStatus + filter.name;
    case By::Dates:
        return u"Não há nenhum despesa cadastrada entre a data "_s + dates::shown(filter.first) + u" e "_s +
               dates::shown(filter.last);
    case By::Account:
        return u"Não há nenhum despesa cadastrada na conta "_s + filter.name;
    }
    return kind.none;
}

Result read(Connection &connection, const ManagementKind &kind, const ManagementFilter &filter,
            Progress *progress)
{
    Result result{std::make_shared<StoredTable>(columns()), {}};
    FigureTotals totals;
    readrows::into(*result.table, connection, query(kind.side, filter), columns(), kind.side.subject, totals,
                   progress);
    result.total = totals.figures.total().sum;
    return result;
}

QString totalText(const Result &result)
{
    return u"Valor total R$ "_s + result.total.grouped();
}

} // namespace management
