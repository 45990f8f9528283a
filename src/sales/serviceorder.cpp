#include "sales/serviceorder.h"

#include "data/dates.h"
#include "reports/modimpressao.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int headSize = 13, bodySize = 11; ///< points
constexpr int titleColumn = 40, productColumn = 30, serviceColumn = 25;
constexpr int headRule = 100, bodyRule = 118; ///< characters that fit on the usual paper

using Lines = std::vector<PageBlock>;

void add(Lines &lines, const QString &text, int size = bodySize)
{
    lines.emplace_back(PageText{.text = text, .size = size});
}

void addAt(Lines &lines, int column, const QString &label, const QString &value)
{
    lines.emplace_back(PageText{.text = label, .size = bodySize, .tab = column, .tabbed = value});
}

void addHead(Lines &lines, const ServiceOrder &order, QDate today)
{
    add(lines, modimpressao::companyName(), headSize);
    add(lines, modimpressao::slogan(), headSize);
    add(lines, u"Telefone de contato: "_s + order.phone, headSize);
    add(lines, QString(headRule, u'-'), headSize);
    addAt(lines, titleColumn, {}, u"ORDEM DE SERVIÇO"_s);
    add(lines, u"Nome do cliente: "_s + order.client);
    add(lines, u"Data de emissão: "_s + dates::longDate(today));
    add(lines, {});
}

void addSection(Lines &lines, const QString &name)
{
    add(lines, name + u' ' + QString(bodyRule - 2 * name.size(), u'-'));
}

} // namespace

namespace serviceorder {

StoredTable rows(const std::vector<ServiceOrder::Product> &products)
{
    StoredTable table({{u"produto"_s, u"Produto"_s},
                       {u"marca"_s, u"Marca"_s},
                       {u"modelo"_s, u"Modelo"_s},
                       {u"serie"_s, u"Nº de série"_s},
                       {u"descricao"_s, u"Descrição"_s},
                       {u"valor"_s, u"Valor"_s, CellKind::Amount},
                       {u"qtde"_s, u"Quantidade"_s, CellKind::Number}});
    for (const ServiceOrder::Product &product : products)
        table.append(QStringList{product.name, product.brand, product.model, product.serial,
                                 product.description, product.value, product.quantity});
    return table;
}

StoredTable rows(const std::vector<ServiceOrder::Service> &services)
{
    StoredTable table({{u"tipo"_s, u"Tipo de serviço"_s},
                       {u"descricao"_s, u"Descrição"_s},
                       {u"valor"_s, u"Valor"_s, CellKind::Amount}});
    for (const ServiceOrder::Service &service : services)
        table.append(QStringList{service.kind, service.description, service.value});
    return table;
}

Sum total(const std::vector<ServiceOrder::Product> &products)
{
    Sum sum;
    for (const ServiceOrder::Product &product : products)
        sum += Sum(Money::stored(QStringView(product.value)))
                   .times(Quantity::stored(QStringView(product.quantity)));
    return sum;
}

Sum total(const std::vector<ServiceOrder::Service> &services)
{
    Sum sum;
    for (const ServiceOrder::Service &service : services)
        sum += Money::stored(QStringView(service.value));
    return sum;
}

PageDocument document(const ServiceOrder &order, QDate today)
{
    PageDocument pages{.name = u"Ordem de serviço"_s, .fontSize = bodySize};
    Lines &lines = pages.blocks;
    addHead(lines, order, today);
    addSection(lines, u"PRODUTOS"_s);
    for (const ServiceOrder::Product &product : order.products) {
        const std::pair<QString, QString> labelled[] = {
            {u"Nome do produto: "_s, product.name},  {u"Marca: "_s, product.brand},
            {u"Modelo: "_s, product.model},          {u"Nº de serie: "_s, product.serial},
            {u"Descrição: "_s, product.description}, {u"Valor: "_s, product.value},
            {u"Quantidade: "_s, product.quantity}};
        for (const auto &[label, value] : labelled)
            addAt(lines, productColumn, label, value);
        add(lines, {});
    }
    addSection(lines, u"SERVIÇOS"_s);
    for (const ServiceOrder::Service &service : order.services) {
        addAt(lines, serviceColumn, u"Tipo de serviço: "_s, service.kind);
        addAt(lines, serviceColumn, u"Descrição: "_s, service.description);
        addAt(lines, serviceColumn, u"Valor: "_s, service.value);
        add(lines, {});
    }
    const Sum products = total(order.products), services = total(order.services);
    add(lines, QString(bodyRule, u'-'));
    add(lines, {});
    add(lines, u"RESUMO"_s);
    addAt(lines, serviceColumn, u"Total de produtos:"_s, products.inReais());
    addAt(lines, serviceColumn, u"Total de serviços:"_s, services.inReais());
    addAt(lines, serviceColumn, u"Total a pagar:"_s, (products + services).inReais());
    add(lines, QString(bodyRule, u'-'));
    add(lines, {});
    add(lines, modimpressao::generatedLine());
    return pages;
}

} // namespace serviceorder
