#include "stock/stock.h"

#include "data/recordset.h"

using namespace Qt::StringLiterals;

namespace {

std::optional<Money> firstValue(Connection &connection, const QString &sql)
{
    Recordset rows(connection, sql);
    if (!rows.next())
        return std::nullopt;
    return Money::stored(rows.text(0));
}

} // namespace

namespace stock {

void move(Connection &connection, Direction direction, Quantity quantity, const QString &product)
{
    connection.execute(u"UPDATE [produto] SET qtde=qtde "_s +
                       (direction == Direction::In ? u"+ "_s : u"- "_s) + quantity.sqlNumber() +
                       u" WHERE [produto] like '"_s + product + u"'"_s);
}

std::optional<Quantity> onHand(Connection &connection, const QString &product)
{
    return firstValue(connection, u"select [qtde] from produto WHERE [produto] like '"_s + product + u"'"_s);
}

std::optional<Money> unitCost(Connection &connection, const QString &product)
{
    return firstValue(connection,
                      u"SELECT [custo] from [produto] where [produto] like '"_s + product + u"'"_s);
}

} // namespace stock
