#include "lists/figures.h"

#include "data/status.h"

using namespace Qt::StringLiterals;

void Figures::add(std::string_view status, Money value, int sign)
{
    Part &part = status == status::pendingUtf8 ? pending : settled;
    part.count += sign;
    addSigned(part.sum, value, sign);
}

QStringList FigureTotals::columns() const
{
    return {u"estatus"_s, u"valor"_s};
}

void FigureTotals::add(std::span<const std::string_view> values, int sign)
{
    figures.add(values[0], Money::stored(values[1]), sign);
}
