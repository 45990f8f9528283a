#include "analysis/firststeps.h"

#include "data/connection.h"
#include "data/decimal.h"

FirstSteps FirstSteps::read(Connection &connection)
{
    const auto holds = [&connection](const QByteArray &condition) {
        Statement found = connection.prepareNative("SELECT " + condition);
        return found.step() && found.integer(0) != 0;
    };
    FirstSteps steps;
    steps.hasAccount = holds("EXISTS (SELECT 1 FROM banco)");
    steps.hasEntry = holds("EXISTS (SELECT 1 FROM pagar) OR EXISTS (SELECT 1 FROM receber)");
    steps.hasBalance = steps.hasEntry || holds("EXISTS (SELECT 1 FROM bancario)"); // somebody works with it
    Statement balances = connection.prepareNative("SELECT saldo FROM banco");
    while (!steps.hasBalance && balances.step())
        steps.hasBalance = !Money::stored(balances.utf8(0)).isZero();
    return steps;
}
