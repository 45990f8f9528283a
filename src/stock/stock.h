#pragma once

#include "data/decimal.h"

#include <QString>

#include <optional>

class Connection;

/// The stock of products, which entries move.
namespace stock {

/// The product name of an entry that carries no product.
inline constexpr QStringView noProduct = u"-";

enum class Direction { In, Out };

/// Moves `quantity` units of a product; false when no product bears the name. Throws Error when the name has
/// an apostrophe, or is a pattern that reaches other products. The caller holds the transaction.
bool move(Connection &connection, Direction direction, Quantity quantity, const QString &product);
/// Units on hand; nothing when there is no such product.
std::optional<Quantity> onHand(Connection &connection, const QString &product);
/// The product's unit cost; nothing when there is no such product.
std::optional<Money> unitCost(Connection &connection, const QString &product);

} // namespace stock
