#pragma once

#include "data/sum.h"
#include "lists/pagedocument.h"
#include "lists/storedtable.h"

#include <QDate>

#include <vector>

/// A service order: what is sold to a client and done for one. Nothing of it is stored.
struct ServiceOrder
{
    struct Product
    {
        QString name, brand, model, serial, description;
        QString value;    ///< "1.234,50"
        QString quantity; ///< "2" or "1,5"
    };
    struct Service
    {
        QString kind, description;
        QString value; ///< "1.234,50"
    };

    QString client, phone;
    std::vector<Product> products;
    std::vector<Service> services;
};

namespace serviceorder {

StoredTable rows(const std::vector<ServiceOrder::Product> &products);
StoredTable rows(const std::vector<ServiceOrder::Service> &services);

/// Value times quantity of each.
Sum total(const std::vector<ServiceOrder::Product> &products);
Sum total(const std::vector<ServiceOrder::Service> &services);

PageDocument document(const ServiceOrder &order, QDate today);

} // namespace serviceorder
