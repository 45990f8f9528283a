#pragma once

#include "data/sum.h"
#include "lists/listcolumn.h"
#include "lists/rowstore.h"

#include <QString>

#include <optional>
#include <vector>

class Connection;

/// A product as its screen shows and takes it: every field as its text.
struct ProductForm
{
    QString name;
    QString quantity; ///< Brazilian number; empty counts as zero
    QString cost;     ///< of one unit; Brazilian amount; empty counts as zero
    QString notes;
};

/// The product list with its sums.
struct ProductList
{
    RowStore rows;
    Sum units; ///< quantities of all products
    Sum value; ///< cost times quantity, summed

    QString summary() const;
};

namespace products {

std::vector<ListColumn> columns();
/// Every product in table order. Throws Error.
ProductList list(Connection &connection);

/// The message about a name that is missing or cannot be; nothing when the form can be saved.
std::optional<QString> problem(const ProductForm &form);
void add(Connection &connection, const ProductForm &form);
/// Rewrites the product `name`, which may get another name; entries that name it keep the old one.
void change(Connection &connection, const QString &name, const ProductForm &form);
/// Entries that name the product are left as they are. Throws Error when it is no longer there, or when its
/// name is a pattern that reaches other products; then nothing has changed.
void remove(Connection &connection, const QString &name);
std::optional<ProductForm> load(Connection &connection, const QString &name);

} // namespace products
