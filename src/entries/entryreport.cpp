#include "entries/entryreport.h"

using namespace Qt::StringLiterals;

namespace entryreport {

std::vector<ListColumn> columns(const Side &side)
{
    return {
        {u"data"_s, u"Data"_s, CellKind::Date},
        {u"descricao"_s, u"Plano de conta / Descrição"_s},
        {u"documento"_s, u"Documento"_s},
        {side.contactColumn, side.contactTitle},
        {u"vencimento"_s, u"Venc."_s, CellKind::Date},
        {u"valor"_s, u"Valor"_s, CellKind::Amount, 80, {u"valor"_s, u"moeda"_s}, cellformat::withCurrency},
        {u"estatus"_s, u"Estatus"_s},
        {u"origem"_s, u"Conta Origem"_s},
        {u"informacoes"_s, u"Informações"_s},
    };
}

QString totals(const Side &side, const Figures &figures)
{
    return totals(u"Total de "_s + side.plural + u": R$ "_s, u" - Total "_s + side.settledWord + u": R$ "_s,
                  figures);
}

QString totals(const QString &totalWords, const QString &settledWords, const Figures &figures)
{
    return totalWords + figures.total().sum.grouped() + settledWords + figures.settled.sum.grouped() +
           u" - Total pendente: R$ "_s + figures.pending.sum.grouped();
}

} // namespace entryreport
