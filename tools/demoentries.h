#pragma once

#include "democontacts.h"
#include "demodata.h"
#include "demodays.h"

#include "data/connection.h"

#include <QStringList>

#include <vector>

struct DemoRow;

/// Writes the payables, receivables and movements of the demo shop, and keeps count of the goods they move.
class DemoEntries
{
public:
    DemoEntries(Connection &connection, Random &random, const DemoOptions &options);

    void writePayables(const DemoContacts &suppliers);
    void writeReceivables(const DemoContacts &clients);
    void writeMovements();
    /// How many units of each product were bought, less those sold.
    const std::vector<qint64> &stockChange() const { return m_stockChange; }

private:
    DemoRow row(qint64 index, qint64 count);
    void settle(DemoRow &row, QDate day);
    void buyGoods(DemoRow &row);
    void sellGoods(DemoRow &row);
    QString anyAccount() { return m_accounts[m_random.mostlySmall(0, m_accounts.size() - 1)]; }
    QString anyDocument();
    QString anyRemark(int chance);

    Connection &m_connection;
    Random &m_random;
    const DemoOptions &m_options;
    DemoDays m_days;
    QStringList m_accounts;
    QStringList m_paymentMethods;
    std::vector<qint64> m_stockChange;
    qint64 m_documents = 0;
};
