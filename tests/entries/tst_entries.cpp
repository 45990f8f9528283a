#include "bank/accounts.h"
#include "bank/movement.h"
#include "entries/centres.h"
#include "entries/contact.h"
#include "entries/entrylist.h"
#include "stock/products.h"
#include "stock/stock.h"
#include "support/answers.h"
#include "support/readlist.h"
#include "support/samples.h"
#include "support/testprogram.h"

#include <QTest>

#include <functional>
#include <map>

using namespace Qt::StringLiterals;

namespace {

const QDate today(2026, 11, 14);

/// An account, a product and a centre of each name.
void addNames(TestProgram &program, const QStringList &names)
{
    for (const QString &name : names) {
        accounts::add(program.database(), {name, u"1"_s, {}});
        products::add(program.database(), {name, u"1"_s, {}, {}});
        centres::add(program.database(), costCentres(), name);
    }
}

QString contents(TestProgram &program)
{
    QString text;
    for (const QString &query : {u"select banco, saldo from banco"_s, u"select produto, qtde from produto"_s,
                                 u"select descricao from pcontapagar"_s, u"select código from pagar"_s,
                                 u"select código from receber"_s})
        text += program.rows(query) + (query.contains(u"código"_s) ? QString() : u"\n"_s);
    return text;
}

ContactForm person(const QString &name)
{
    ContactForm form;
    form.name = name;
    return form;
}

/// The text of the Error that the work throws; empty when it throws none.
QString refusal(const std::function<void()> &work)
{
    try {
        work();
    } catch (const Error &error) {
        return error.text();
    }
    return {};
}

/// What the work announces: subject, key, and the column before and after.
QString announced(const QString &column, const std::function<void()> &work)
{
    static const std::map<Subject, QString> names{
        {Subject::Payables, u"Payables"_s}, {Subject::Movements, u"Movements"_s},
        {Subject::Accounts, u"Accounts"_s}, {Subject::Suppliers, u"Suppliers"_s},
        {Subject::Products, u"Products"_s}, {Subject::CostCentres, u"CostCentres"_s}};
    QStringList told;
    QObject listener;
    QObject::connect(&Changes::instance(), &Changes::changed, &listener, [&](const Change &change) {
        QString line = names.at(change.subject);
        for (const RowChange &row : change.rows)
            line += u" %1 %2>%3"_s.arg(row.key).arg(row.before.text(column), row.after.text(column));
        told << line;
    });
    work();
    return told.join(u", "_s);
}

} // namespace

class tst_entries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stockFollowsEverySave();
    void aQuoteInANameChangesNothing();
    void aPatternInANameReachesNoOtherRow();
    void writesTellTheRowsTheyChanged();
    void unreadableValuesAreRefused();
    void settlingWritesTheDayFirst();
    void listAndTotals();
};

void tst_entries::stockFollowsEverySave()
{
    TestProgram program;
    program.run(u"insert into produto (produto, qtde, custo) values ('Café', 3, '2,50')"_s);
    Connection &connection = program.database();
    EntryForm form = sampleEntry();
    // The quantity sold, and bought -> is there less of it
    checkAnswers(u"5 -> 1 0 ; 3 -> 0 0"_s, [&](const QString &quantity) {
        form.quantity = quantity;
        return u"%1 %2"_s.arg(entry::exceedsStock(connection, receivable(), form))
            .arg(entry::exceedsStock(connection, payable(), form));
    });
    entry::save(connection, receivable(), form, {});
    entry::save(connection, receivable(), form, u"1"_s);
    form.quantity = u"0,1"_s;
    for (int i = 0; i < 3; ++i)
        entry::save(connection, payable(), form, {});
    form.product = u"-"_s;
    entry::save(connection, payable(), form, {});
    QCOMPARE(program.rows(u"select qtde from produto"_s), u"-2,7\n"_s);
}

void tst_entries::aQuoteInANameChangesNothing()
{
    TestProgram program;
    Connection &connection = program.database();
    addNames(program, {u"Abc"_s, u"x"_s});
    const QString before = contents(program);
    const QString evil = u"x' or 'a' like 'a"_s;
    EntryForm form = sampleEntry();
    form.product = evil;
    const std::vector<EntryRemoval> removal{{evil, u"x"_s, Quantity::fromInteger(1)}};
    const AccountForm account{u"y"_s, u"1"_s, {}};
    const ProductForm product{u"y"_s, {}, {}, {}};
    const ContactFilter filter{u"cidade"_s, evil, {}, {}};
    const std::function<void()> commands[] = {
        [&] { entry::save(connection, payable(), form, {}); },
        [&] { entry::remove(connection, payable(), removal); },
        [&] { entry::settle(connection, payable(), {evil}, today); },
        [&] { contact::remove(connection, clients(), evil); },
        [&] { contact::query(clients(), filter); },
        [&] { centres::rename(connection, costCentres(), evil, u"y"_s); },
        [&] { centres::remove(connection, costCentres(), evil); },
        [&] { accounts::change(connection, evil, account); },
        [&] { accounts::remove(connection, evil); },
        [&] { products::change(connection, evil, product); },
        [&] { products::remove(connection, evil); },
        [&] { stock::unitCost(connection, evil); },
    };
    for (const auto &command : commands)
        QCOMPARE(refusal(command),
                 u"o texto \"%1\" tem apóstrofo ('), e o banco de dados não aceita um comando com ele."_s.arg(
                     evil));
    QCOMPARE(contents(program), before);
}

void tst_entries::aPatternInANameReachesNoOtherRow()
{
    TestProgram program;
    Connection &connection = program.database();
    addNames(program, {u"Abc"_s, u"A%"_s, u"a%"_s, u"100%"_s});
    const QString before = contents(program);
    EntryForm form = sampleEntry();
    form.product = u"A%"_s;
    const std::function<void()> refused[] = {[&] { entry::save(connection, receivable(), form, {}); },
                                             [&] { centres::remove(connection, costCentres(), u"A%"_s); },
                                             [&] { accounts::remove(connection, u"A%"_s); },
                                             [&] { products::remove(connection, u"A%"_s); }};
    for (const auto &command : refused)
        QCOMPARE(refusal(command), u"o nome \"A%\" tem um curinga (% ou _) e o comando alcançaria também "
                                   "\"Abc\". Nada foi alterado."_s);
    QCOMPARE(contents(program), before);

    // Those that reach one row only do so, and rather the one that is written alike.
    accounts::change(connection, u"a%"_s, {{}, u"5"_s, {}});
    products::change(connection, u"a%"_s, {u"Chá"_s, u"5"_s, {}, {}});
    centres::rename(connection, costCentres(), u"a%"_s, u" ABC "_s);
    centres::remove(connection, costCentres(), u"ABC"_s);
    for (const QString &name : {u"100%"_s, u"abc"_s}) {
        accounts::remove(connection, name);
        products::remove(connection, name);
        centres::remove(connection, costCentres(), name);
    }
    QCOMPARE(contents(program), u"A% | 1,00\na% | 5,00\n\nA% | 1\nChá | 5\n\nA%\n\n"_s);
    QCOMPARE(refusal([&] { products::remove(connection, u"abc"_s); }), u"\"abc\" não existe mais."_s);
}

void tst_entries::writesTellTheRowsTheyChanged()
{
    TestProgram program;
    Connection &connection = program.database();
    const EntryForm form = sampleEntry();
    const std::vector<EntryRemoval> removal{{u"1"_s, u"x"_s, {}}};
    const MovementForm seven{u"14/11/2026"_s, u"7"_s, {}, {}, {}, {}, {}};
    const AccountForm account{u"Caixa"_s, u"1"_s, {}}, richer{{}, u"2"_s, {}};
    const ProductForm product{u"Café"_s, u"9"_s, u"1"_s, {}}, dearer{u"Café"_s, {}, u"2"_s, {}};
    const std::tuple<QString, std::function<void()>, QString> steps[] = {
        {u"saldo"_s, [&] { accounts::add(connection, account); }, u"Accounts 1 >1,00"_s},
        {u"saldo"_s, [&] { accounts::change(connection, u"Caixa"_s, richer); }, u"Accounts 1 1,00>2,00"_s},
        {u"saldo"_s, [&] { accounts::remove(connection, u"Caixa"_s); }, u"Accounts 1 2,00>"_s},
        {u"custo"_s, [&] { products::add(connection, product); }, u"Products 1 >1,00"_s},
        {u"custo"_s, [&] { products::change(connection, u"Café"_s, dearer); }, u"Products 1 1,00>2,00"_s},
        {u"valor"_s, [&] { entry::save(connection, payable(), form, {}); },
         u"Payables 1 >1.234,50, Products"_s},
        {u"estatus"_s, [&] { entry::settle(connection, payable(), {u"1"_s}, today); },
         u"Payables 1 Pendente>Concluído"_s},
        {u"valor"_s, [&] { entry::remove(connection, payable(), removal); }, u"Payables 1 1.234,50>"_s},
        {u"custo"_s, [&] { products::remove(connection, u"Café"_s); }, u"Products 1 2,00>"_s},
        {u"nome"_s, [&] { contact::save(connection, suppliers(), person(u"Ana"_s), {}); },
         u"Suppliers 1 >Ana"_s},
        {u"nome"_s, [&] { contact::save(connection, suppliers(), person(u"Bia"_s), u"1"_s); },
         u"Suppliers 1 Ana>Bia"_s},
        {u"nome"_s, [&] { contact::remove(connection, suppliers(), u"1"_s); }, u"Suppliers 1 Bia>"_s},
        {u"descricao"_s, [&] { centres::add(connection, costCentres(), u"Luz"_s); }, u"CostCentres 1 >Luz"_s},
        {u"descricao"_s, [&] { centres::rename(connection, costCentres(), u"luz"_s, u"Gás"_s); },
         u"CostCentres 1 Luz>Gás"_s},
        {u"descricao"_s, [&] { centres::remove(connection, costCentres(), u"Gás"_s); },
         u"CostCentres 1 Gás>"_s},
        {u"valor"_s, [&] { movement::add(connection, seven); }, u"Movements 1 >7,00"_s},
        {u"valor"_s, [&] { movement::change(connection, 1, seven); }, u"Movements 1 7,00>7,00"_s},
        {u"valor"_s, [&] { movement::remove(connection, {1}); }, u"Movements 1 7,00>"_s},
        {u"valor"_s, [&] { refusal([&] { movement::remove(connection, {1}); }); }, QString()},
    };
    for (const auto &[column, write, told] : steps)
        QCOMPARE(announced(column, write), told);
}

void tst_entries::unreadableValuesAreRefused()
{
    TestProgram program;
    const auto refused = [&](auto change) {
        EntryForm form = sampleEntry();
        change(form);
        return refusal([&] { entry::save(program.database(), receivable(), form, {}); });
    };
    QCOMPARE(refused([](EntryForm &form) { form.date = u"31/02/2026"_s; }),
             u"a data \"31/02/2026\" do campo Data não existe."_s);
    QCOMPARE(refused([](EntryForm &form) { form.value = u"-1.000.000.000.000,00"_s; }),
             u"o texto \"-1.000.000.000.000,00\" do campo Valor é um valor grande demais; o maior é "
             "999.999.999.999,99."_s);
    for (const QString &quantity : {u"dois"_s, u"1.5"_s, u"1.0000"_s, u"1,5.000"_s, u"1000000000000"_s})
        QVERIFY(
            refused([&](EntryForm &form) { form.quantity = quantity; }).contains(u"do campo Quantidade"_s));
    QCOMPARE(program.rows(u"select * from receber"_s), QString());
    EntryForm gone = sampleEntry();
    QVERIFY_THROWS_EXCEPTION(Error, entry::save(program.database(), payable(), gone, u"99"_s));
}

void tst_entries::settlingWritesTheDayFirst()
{
    TestProgram program;
    entry::save(program.database(), payable(), sampleEntry(), {});
    QVERIFY(entry::settle(program.database(), payable(), {u"1"_s}, today));
    QVERIFY(!entry::settle(program.database(), payable(), {u"1"_s, u"2"_s}, today.addDays(1)));
    QCOMPARE(program.rows(u"select estatus, data, vencimento from pagar"_s),
             u"Concluído | 2026/11/14 | 14/11/2026\n"_s);
}

void tst_entries::listAndTotals()
{
    TestProgram program;
    const auto read = [] {
        return readList(entrylist::columns(receivable()), EntryTotals(),
                        u"SELECT * FROM receber where (estatus like '%%')"_s);
    };
    const auto totals = [&] { return static_cast<const EntryTotals &>(read().totals()).text(receivable()); };
    QCOMPARE(totals(),
             u"0 cadastrados  -  Total de lucros: 0,00  -  Total recebido: 0,00  -  Total pendente: "
             "0,00 - Quantidade de produtos (vendas): 0"_s);
    EntryForm form = sampleEntry();
    entry::save(program.database(), receivable(), form, {});
    form.status = u"Concluído"_s;
    form.contact = u"D'Ávila"_s;
    form.value = u"R$ -2.000,999"_s;
    form.currency = u"€"_s;
    form.quantity = u"2,5"_s;
    entry::save(program.database(), receivable(), form, {});
    QCOMPARE(totals(),
             u"2 cadastrados  -  Total de lucros: R$ -766,50  -  Total recebido: R$ -2.001,00  -  Total "
             "pendente: R$ 1.234,50 - Quantidade de produtos (vendas): 7,5"_s);
    QCOMPARE(linesOf(read(), u"|"_s).section(u'\n', 1, 1),
             u"2|14/11/2026|Aluguel|NF 7 |D'Ávila|10/12/2026|€ -2.001,00|3,00|Café|2,5|Concluído|Caixa| "_s);
}

QTEST_GUILESS_MAIN(tst_entries)
#include "tst_entries.moc"
