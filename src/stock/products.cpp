#include "stock/products.h"

#include "data/formtext.h"
#include "data/literal.h"
#include "data/rows.h"
#include "stock/stock.h"

using namespace Qt::StringLiterals;

namespace {

std::optional<Recordset> byName(Connection &connection, const QString &name)
{
    return rows::named(connection, u"from [produto] where (produto like "_s + sql::literal(name) + u")"_s,
                       u"produto", name);
}

void writeColumns(Recordset &row, const ProductForm &form)
{
    row.set(u"produto", form.name.trimmed());
    row.set(u"qtde", formtext::quantity(u"Quantidade"_s, form.quantity).plain());
    row.set(u"custo", formtext::amountOrZero(u"Valor de custo"_s, form.cost).grouped());
    row.set(u"info", form.notes);
}

Quantity quantity(const Recordset &row)
{
    return Quantity::stored(
        QStringView(row.text(u"qtde"))); // a number column: its text has the decimal comma
}

} // namespace

QString ProductList::summary() const
{
    return u"Total de produtos no estoque: "_s + units.plain() + u" - Valor total em estoque: "_s +
           value.inReais();
}

namespace products {

std::vector<ListColumn> columns()
{
    return {{u"produto"_s, u"Produto"_s, CellKind::Text, 280},
            {u"qtde"_s, u"Quantidade"_s, CellKind::Number, 100},
            {u"custo"_s, u"Valor de custo"_s, CellKind::Amount, 130},
            {u"total"_s, u"Valor em estoque"_s, CellKind::Amount, 140},
            {u"info"_s, u"Informações adicionais"_s, CellKind::Text, 540}};
}

ProductList list(Connection &connection)
{
    ProductList list{RowStore(int(columns().size())), {}, {}};
    for (Recordset rows(connection, u"select * from [produto]"_s); rows.next();) {
        const Quantity units = quantity(rows);
        const Money cost = Money::stored(rows.utf8(rows.column(u"custo")));
        const Sum value = Sum(cost).times(units);
        list.units += units;
        list.value += value;
        const std::string unitsText = units.plain().toStdString(), costText = cost.inReais().toStdString(),
                          valueText = value.inReais().toStdString();
        list.rows.append({rows.utf8(rows.column(u"produto")), unitsText, costText, valueText,
                          rows.utf8(rows.column(u"info"))});
    }
    return list;
}

std::optional<QString> problem(const ProductForm &form)
{
    const QString name = form.name.trimmed();
    if (name.isEmpty())
        return u"O nome do produto é de preenchimento obrigatório!"_s;
    if (name.contains(
            u'\'')) // the statements quote the name with it: the product could not be edited, sold or removed
        return u"O nome do produto não pode ter apóstrofo (')!"_s;
    if (name == stock::noProduct)
        return u"O nome \"-\" indica, nos lançamentos, que não há produto: escolha outro nome!"_s;
    return std::nullopt;
}

void add(Connection &connection, const ProductForm &form)
{
    Transaction transaction(connection);
    Recordset row(connection, u"produto"_s);
    row.addNew();
    writeColumns(row, form);
    transaction.note(Subject::Products, row.update());
    transaction.commit();
}

void change(Connection &connection, const QString &name, const ProductForm &form)
{
    Transaction transaction(connection);
    std::optional<Recordset> row = byName(connection, name);
    if (!row)
        throw Error(Error::Kind::Data, u"o produto \"%1\" não existe mais."_s.arg(name));
    writeColumns(*row, form);
    transaction.note(Subject::Products, row->update());
    transaction.commit();
}

void remove(Connection &connection, const QString &name)
{
    Transaction transaction(connection);
    rows::removeNamed(connection, transaction, Subject::Products,
                      u"from produto where [produto] like "_s + sql::literal(name), u"produto", name);
    transaction.commit();
}

std::optional<ProductForm> load(Connection &connection, const QString &name)
{
    const std::optional<Recordset> row = byName(connection, name);
    if (!row)
        return std::nullopt;
    return ProductForm{row->text(u"produto"), quantity(*row).plain(),
                       Money::stored(row->text(u"custo")).grouped(), row->text(u"info")};
}

} // namespace products
