#pragma once

#include <QObject>

/// What a committed write may have changed.
enum class Subject {
    Payables,
    Receivables,
    Movements,
    Accounts,
    Clients,
    Suppliers,
    CostCentres,
    ProfitCentres,
    Products,
    Settings
};

/// Announces committed changes to whoever shows the data. Nobody calls another screen to refresh it.
class Changes : public QObject
{
    Q_OBJECT

public:
    static Changes &instance();
    static void announce(Subject subject) { Q_EMIT instance().changed(subject); }

Q_SIGNALS:
    void changed(Subject subject);
};
