#include "analysis/bankbook.h"
#include "analysis/statement.h"
#include "bank/accounts.h"
#include "settings/database.h"
#include "support/shop.h"

#include <QHeaderView>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace {

QString linesOf(const TableSource &table)
{
    QString lines;
    for (int row = 0; row < table.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < table.columnCount(); ++column)
            cells << table.cell(row, column);
        lines += cells.join(u'|') + u'\n';
    }
    return lines;
}

QString shownLines(const Shop &shop, const QString &list)
{
    return linesOf(*shop.list(list)->tableSource());
}

/// Entries and movements of some accounts, hostile names and odd statuses among them.
void addBusiness(TestProgram &program, quint32 seed)
{
    QRandomGenerator random(seed);
    const auto one = [&random](const QStringList &of) { return of[random.bounded(of.size())]; };
    const QStringList accounts{u"Caixa"_s, u"caixa"_s, u"Caixa 2"_s, u"C%"_s, u"<b>"_s, u"-"_s};
    const QStringList statuses{u"Concluído"_s, u"CONCLUÍDO"_s, u"Pendente"_s, u"Conluído"_s};
    const QStringList dates{u"2026/01/31"_s, u"2026/02/28"_s, u"2026/02/01"_s, u"15/02/2026"_s, u" "_s};
    const auto amount = [&random] { return Money::fromTenThousandths(random.bounded(999) * 100).grouped(); };
    program.run(u"insert into banco (banco, saldo) values ('Caixa', '1.000,50')"_s);
    program.run(u"insert into banco (banco, saldo) values ('Caixa 2', '0,00')"_s);
    program.run(u"insert into banco (banco, saldo) values ('C%', '-5,00')"_s);
    for (int i = 0; i < 60; ++i) {
        for (const QString &table : {u"pagar"_s, u"receber"_s})
            program.run(u"insert into %1 (estatus, origem, data, valor, descricao) values ('%2', '%3', '%4', "
                        "'%5', 'x')"_s.arg(table, one(statuses), one(accounts), one(dates), amount()));
        program.run(u"insert into bancario (estatus, movimento, origem, destino, data, valor) values ('%1', "
                    "'%2', '%3', '%4', '%5', '%6')"_s.arg(
                        one(statuses),
                        one({u"Depósito"_s, u"Retirada"_s, u"Transferência entre contas"_s,
                             u"transferência entre contas"_s}),
                        one(accounts), one(accounts), one(dates), amount()));
    }
}

} // namespace

class tst_statements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void queries();
    void balanceFollowsTheShownOrder();
    void booksAgreeWithBalancesAndStatements();
    void askingForDays();
};

void tst_statements::queries()
{
    const StatementChoice choice{u"Caixa"_s, {2026, 11, 1}, {2026, 11, 30}};
    const auto [payables, receivables, movements] = statement::queries(choice);
    QCOMPARE(payables, u"select código,data,valor,descricao from [pagar] WHERE [data] BETWEEN '2026/11/01' "
                       "AND '2026/11/30' AND [origem] like 'Caixa' AND [estatus] like 'Concluído'"_s);
    QCOMPARE(receivables, u"select código,data,valor,descricao from [receber] where [data] BETWEEN "
                          "('2026/11/01') AND ('2026/11/30') AND (origem like 'Caixa') AND (estatus like "
                          "'Concluído')"_s);
    QCOMPARE(movements, u"select * from [bancario] where [data] BETWEEN ('2026/11/01') AND ('2026/11/30') "
                        "AND (origem like 'Caixa') AND [estatus] like 'Concluído'"_s);
    QCOMPARE(statement::periodText(choice), u"Entre 01/11/2026 e 30/11/2026 - Período de 29 dias"_s);
}

void tst_statements::balanceFollowsTheShownOrder()
{
    Shop shop;
    shop.program.database().executeNative(
        "INSERT INTO banco VALUES ('Caixa', '0,00', ' '), ('Cofre', '0,00', ' ');"
        "INSERT INTO pagar (estatus, origem, data, valor, descricao) VALUES "
        "('Concluído', 'Caixa', '2026/11/20', '1.200,50', 'Aluguel'), "
        "('Pendente', 'Caixa', '2026/11/20', '9,00', 'Não conta');"
        "INSERT INTO receber (estatus, origem, data, valor, descricao) VALUES "
        "('Concluído', 'CAIXA', '2026/11/10', '2.000,00', 'Venda');"
        "INSERT INTO bancario (estatus, origem, destino, data, movimento, valor) VALUES "
        "('Concluído', 'Caixa', ' - ', '2026/11/05', 'Retirada', '100,00'), "
        "('Concluído', 'Caixa', 'Cofre', '2026/11/06', 'Transferência entre contas', '40,00'), "
        "('Concluído', 'Cofre', 'Caixa', '2026/11/06', 'Transferência entre contas', '7,00')");
    shop.open();
    shop.command(u"mnuextrato"_s);
    shop.press(u"cmdvisualizar"_s);
    QCOMPARE(shop.told(), u"exclamation | Extrato | Preencha todos os dados!"_s);
    shop.fill(u"cboorigem=Caixa, cbodata1=01/11/2026, cbodata2=30/11/2026"_s);
    shop.press(u"cmdvisualizar"_s);
    QCOMPARE(shop.screen(u"frmextrato"_s)->windowTitle(), u"Extrato bancário: Caixa"_s);
    QCOMPARE(shownLines(shop, u"lstdados"_s), u"20/11/2026|Aluguel|-1.200,50|-1200,5\n"
                                              "10/11/2026|Venda|+2.000,00|799,5\n"
                                              "05/11/2026|Retirada|-100,00|699,5\n"
                                              "06/11/2026|Transferência entre contas||\n"_s);
    QCOMPARE(shop.label(u"lbltotalbancario"_s), u"R$ 140,00"_s);
    shop.list(u"lstdados"_s)->sortByColumn(1, Qt::AscendingOrder);
    QCOMPARE(shownLines(shop, u"lstdados"_s), u"05/11/2026|Retirada|-100,00|-100\n"
                                              "06/11/2026|Transferência entre contas||\n"
                                              "10/11/2026|Venda|+2.000,00|1900\n"
                                              "20/11/2026|Aluguel|-1.200,50|699,5\n"_s);
    Q_EMIT shop.list(u"lstdados"_s)->rowActivated(2);
    QCOMPARE(shop.screen(u"frmAdicionar"_s)->windowTitle(), u"Adicionar Contas a receber - Receita"_s);
    shop.screen(u"frmAdicionar"_s)->close();
    shop.program.run(u"delete from pagar"_s);
    Changes::announce(Subject::Payables); // read again, in the order that was chosen
    QVERIFY(shownLines(shop, u"lstdados"_s).endsWith(u"10/11/2026|Venda|+2.000,00|1900\n"_s));
}

void tst_statements::booksAgreeWithBalancesAndStatements()
{
    for (quint32 seed = 1; seed <= 5; ++seed) {
        TestProgram program;
        addBusiness(program, seed);
        Connection &connection = program.database();
        const auto books = bankbook::read(connection, {{}, {2099, 12, 31}});
        const auto months = bankbook::read(connection, {QDate(2026, 2, 1), {2099, 12, 31}});
        const auto balances = accounts::balances(openDatabase());
        QCOMPARE(books.size(), balances.size());
        for (std::size_t i = 0; i < books.size(); ++i) {
            QCOMPARE(books[i].balance().inReais(), balances[i].current().inReais());
            QCOMPARE(months[i].balance().inReais(), balances[i].current().inReais());
            // A statement over all time has the same payables and receivables, but for those without a date.
            const auto whole =
                statement::read(connection, {books[i].name, QDate(1900, 1, 1), QDate(2099, 12, 31)});
            QCOMPARE(whole.payables.inReais(), books[i].paid.inReais());
            QCOMPARE(whole.receivables.inReais(), books[i].received.inReais());
        }
        // The days of a range lead from its first balance to its last.
        const auto days = bankbook::dayTable(months, u"Caixa"_s, {QDate(2026, 2, 1), {2026, 3, 2}});
        QCOMPARE(days->rowCount(), 30);
        QCOMPARE(days->cell(29, 3), balances[0].current().inReais());
    }
}

void tst_statements::askingForDays()
{
    Shop shop;
    shop.open();
    shop.command(u"mnuestsaldodia"_s);
    shop.find<QLineEdit>(u"cbodata2"_s)->clear();
    shop.press(u"cmdok"_s);
    QCOMPARE(shop.told(), u"exclamation | Data | Selecione a data final!"_s);
    shop.screen(u"frmsaldodia"_s)->close();
    accounts::add(shop.program.database(), {u"Caixa"_s, u"10"_s, u""_s});
    shop.command(u"mnuestbancos"_s);
    shop.find<QLineEdit>(u"cbodata1"_s)->clear();
    shop.press(u"cmdok"_s);
    QCOMPARE(shop.told(), u"exclamation | Data | Selecione a data inicial e a data final!"_s);
    shop.fill(u"cbodata1=01/11/2026, cbodata2=02/11/2026"_s);
    shop.press(u"cmdok"_s);
    QCOMPARE(shownLines(shop, u"lstdados"_s),
             u"Caixa|R$ 10,00|R$ 0,00|R$ 0,00|R$ 0,00|R$ 0,00|R$ 0,00|R$ 0,00|R$ 10,00\n"
             "Total|R$ 10,00|R$ 0,00|R$ 0,00|R$ 0,00|R$ 0,00|R$ 0,00|R$ 0,00|R$ 10,00\n"_s);
    shop.program.run(u"insert into receber (estatus, origem, data, valor) values ('Concluído', 'Caixa', "
                     "'2026/11/02', '5,00')"_s);
    Changes::announce(Subject::Receivables);
    QCOMPARE(shownLines(shop, u"lstdias"_s), u"01/11/2026|R$ 0,00|R$ 0,00|R$ 10,00\n"
                                             "02/11/2026|R$ 5,00|R$ 0,00|R$ 15,00\n"_s);
}

QTEST_MAIN(tst_statements)
#include "tst_statements.moc"
