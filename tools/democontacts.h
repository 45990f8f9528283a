#pragma once

#include "random.h"

#include <QDate>
#include <QString>

#include <algorithm>

class Connection;

/// The suppliers of what every shop pays each month; they come first in the list of suppliers.
enum class House { Landlord, Power, Water, Telephone, Staff, Treasury, Accountant, Owner, Bank, Carrier };

/// The clients or the suppliers of the demo shop. Names are worked out from their number, so that any number
/// of contacts takes no memory; no two contacts of one kind have the same name.
class DemoContacts
{
public:
    enum class Kind { Clients, Suppliers };

    DemoContacts(Kind kind, qint64 count) : m_kind(kind), m_count(count) {}

    qint64 count() const { return m_count; }
    QString name(qint64 index) const { return at(index).name; }
    /// One of the contacts that the shop trades with; those with low numbers are regular ones.
    QString anyName(Random &random) const { return name(random.mostlySmall(firstTrader(), m_count - 1)); }
    /// The supplier of a monthly expense.
    QString house(House house) const { return name(std::min(qint64(house), m_count - 1)); }

    /// Adds all of them to their table.
    void write(Connection &connection, Random &random, QDate today) const;

private:
    struct Contact
    {
        QString name;
        bool isPerson;
    };
    Contact at(qint64 index) const;
    qint64 firstTrader() const;

    Kind m_kind;
    qint64 m_count;
};
