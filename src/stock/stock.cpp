#include "stock/stock.h"

#include "data/like.h"
#include "data/literal.h"
#include "data/rows.h"

using namespace Qt::StringLiterals;

namespace {

std::optional<Money> firstValue(Connection &connection, const QString &sql)
{
    Recordset rows(connection, sql);
    if (!rows.next())
        return std::nullopt;
    return Money::stored(rows.text(0));
}

QString isProduct(const QString &product)
{
    return u"[produto] like "_s + sql::literal(product);
}

} // namespace

namespace stock {

bool move(Connection &connection, Direction direction, Quantity quantity, const QString &product)
{
    const QString condition = isProduct(product);
    if (LikePattern(product).hasWildcards())
        rows::refuseOthers(connection, u"FROM produto WHERE "_s + condition, u"produto", product);
    return connection.execute(u"UPDATE [produto] SET qtde=qtde "_s +
                              (direction == Direction::In ? u"+ "_s : u"- "_s) + quantity.sqlNumber() +
                              u" WHERE "_s + condition) > 0;
}

std::optional<Quantity> onHand(Connection &connection, const QString &product)
{
    return firstValue(connection, u"select [qtde] from produto WHERE "_s + isProduct(product));
}

std::optional<Money> unitCost(Connection &connection, const QString &product)
{
    return firstValue(connection, u"SELECT [custo] from [produto] where "_s + isProduct(product));
}

} // namespace stock
