#pragma once

#include "democontacts.h"

#include <QStringView>

#include <optional>
#include <span>
#include <vector>

/// What the demo shop deals in. Amounts are in cents.
namespace demoshop {

/// Cents as the tables hold them: "1.234,56".
QString amount(qint64 cents);

/// A cost or profit centre with the usual amounts of its entries.
struct Centre
{
    QStringView name;
    qint64 low, high;
    int weight;
    bool movesGoods = false;
    std::optional<House> supplier = std::nullopt; ///< who is always paid under this centre
};

std::span<const Centre> costCentres();
std::span<const Centre> profitCentres();

struct Product
{
    QStringView name;
    qint64 cost;
    int weight;
    QStringView info;
};

std::span<const Product> products();

/// Account number `index`: name, notes, opening balance.
struct Account
{
    QString name, notes;
    qint64 opening;
};

Account account(qint64 index);

struct Appointment
{
    QStringView title, time, place, description;
};

std::span<const Appointment> appointments();

/// Remarks on entries and movements.
std::span<const QStringView> remarks();

} // namespace demoshop
