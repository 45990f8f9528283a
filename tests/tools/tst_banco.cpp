#include "data/connection.h"
#include "data/dates.h"
#include "data/schema.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

struct Outcome
{
    int exitCode;
    QString output, errors;
};

Outcome runTool(const QStringList &arguments)
{
    QProcess tool;
    tool.start(QStringLiteral(TAVARO_BANCO), arguments);
    if (!tool.waitForFinished(120'000) || tool.exitStatus() != QProcess::NormalExit)
        return {-1, {}, tool.errorString()};
    return {tool.exitCode(), QString::fromUtf8(tool.readAllStandardOutput()),
            QString::fromUtf8(tool.readAllStandardError())};
}

std::unique_ptr<Connection> openFile(const QString &path)
{
    return Connection::open(path, schema::password.toString());
}

/// The rows of a query of the store's own dialect, one line each, columns between bars.
QStringList rows(Connection &connection, const QByteArray &sql)
{
    QStringList lines;
    for (Statement statement = connection.prepareNative(sql); statement.step();) {
        QStringList cells;
        for (int column = 0; column < statement.columnCount(); ++column)
            cells << statement.text(column);
        lines << cells.join(u'|');
    }
    return lines;
}

qint64 number(Connection &connection, const QByteArray &sql)
{
    return rows(connection, sql).value(0).toLongLong();
}

/// Everything in the file as text.
QStringList dump(const QString &path)
{
    const auto connection = openFile(path);
    QStringList lines;
    const QStringList tables =
        rows(*connection, "select name from sqlite_master where type = 'table' order by name");
    for (const QString &table : tables)
        lines << table << rows(*connection, "select * from [" + table.toUtf8() + "]");
    return lines;
}

} // namespace

class TestBanco : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void createsTheDeliveredFile();
    void demoIsRepeatable();
    void demoHasTheRowsAskedFor();
    void demoHoldsWhatTheProgramStores_data();
    void demoHoldsWhatTheProgramStores();
    void demoNamesWhatItsTablesHold_data();
    void demoNamesWhatItsTablesHold();
    void demoLooksLikeAShop();
    void settledDatesArePlausible();
    void neverOverwrites();
    void refusesBadArguments_data();
    void refusesBadArguments();

private:
    QString file(const QString &name) const { return m_folder.filePath(name); }
    /// A demo file around a fixed day, made on first use.
    QString demoFile();

    QTemporaryDir m_folder;
};

QString TestBanco::demoFile()
{
    QString path = file(u"demo.qorvex"_s);
    if (!QFile::exists(path)) {
        const Outcome outcome =
            runTool({u"demo"_s, path, u"--hoje"_s, u"2026-11-14"_s, u"--entradas"_s, u"3000"_s});
        if (outcome.exitCode != 0)
            qFatal("%s", qUtf8Printable(outcome.errors));
    }
    return path;
}

void TestBanco::createsTheDeliveredFile()
{
    const QString path = file(u"criado.qorvex"_s);
    const Outcome outcome = runTool({u"criar"_s, path});
    QCOMPARE(outcome.errors, QString());
    QCOMPARE(outcome.exitCode, 0);
    const auto connection = openFile(path);
    QVERIFY(schema::isComplete(*connection));
    QCOMPARE(number(*connection, "select count(*) from pagar"), 0);
    QCOMPARE(rows(*connection, "select * from login_inicia"), QStringList{u"0"_s});
}

void TestBanco::demoIsRepeatable()
{
    const QStringList options{u"--hoje"_s, u"2026-11-14"_s, u"--entradas"_s, u"200"_s};
    const auto make = [&](const QString &name, const QStringList &further) {
        const Outcome outcome = runTool(QStringList{u"demo"_s, file(name)} + options + further);
        if (outcome.exitCode != 0)
            qFatal("%s", qUtf8Printable(outcome.errors));
        return dump(file(name));
    };
    const QStringList first = make(u"a.qorvex"_s, {});
    QVERIFY(first == make(u"b.qorvex"_s, {u"--semente"_s, u"1"_s}));
    QVERIFY(first != make(u"c.qorvex"_s, {u"--semente"_s, u"2"_s}));
}

void TestBanco::demoHasTheRowsAskedFor()
{
    const QString path = file(u"numeros.qorvex"_s);
    const Outcome outcome = runTool({u"demo"_s, path, u"--entradas"_s, u"41"_s, u"--movimentos"_s, u"7"_s,
                                     u"--contas"_s, u"9"_s, u"--contatos"_s, u"50000"_s});
    QCOMPARE(outcome.errors, QString());
    const auto connection = openFile(path);
    QCOMPARE(number(*connection, "select count(*) from pagar"), 21);
    QCOMPARE(number(*connection, "select count(*) from receber"), 20);
    QCOMPARE(number(*connection, "select count(*) from bancario"), 7);
    QCOMPARE(number(*connection, "select count(distinct banco) from banco"), 9);
    // Entries name contacts by their name alone, so no name may come twice.
    QCOMPARE(number(*connection, "select count(distinct nome) from cliente") +
                 number(*connection, "select count(distinct nome) from fornecedor"),
             50000);
}

void TestBanco::demoHoldsWhatTheProgramStores_data()
{
    const QString date = u"\\d{4}/\\d\\d/\\d\\d"_s;
    const QString dueDate = date + u"|\\d\\d/\\d\\d/\\d{4}"_s;
    const QString amount = u"\\d{1,3}(\\.\\d{3})*,\\d\\d"_s;
    const QString signedAmount = u"-?"_s + amount;
    const QString freeText = u" |\\S.*\\S "_s; // never empty, ends in one blank
    const QString trimmed = u"\\S(.*\\S)?"_s;
    const QString state = u"Pendente|Concluído"_s;
    const QString count = u"\\d+"_s;

    QTest::addColumn<QByteArray>("table");
    QTest::addColumn<QList<std::pair<QByteArray, QString>>>("columns");
    const QList<std::pair<QByteArray, QString>> entry{
        {"estatus", state},        {"origem", trimmed},         {"data", date},
        {"vencimento", dueDate},   {"descricao", trimmed},      {"documento", freeText},
        {"informacoes", freeText}, {"valor", amount},           {"moeda", u"R\\$|\\$|€|£|¥"_s},
        {"produto", trimmed},      {"qtde", u"([1-9]\\d*)?"_s}, {"pagamento", trimmed}};
    QTest::newRow("payables") << "pagar"_ba << entry;
    QTest::newRow("receivables") << "receber"_ba
                                 << entry + QList<std::pair<QByteArray, QString>>{{"custo", amount}};
    QTest::newRow("movements") << "bancario"_ba
                               << QList<std::pair<QByteArray, QString>>{
                                      {"estatus", state},
                                      {"movimento", u"Depósito|Retirada|Transferência entre contas"_s},
                                      {"origem", trimmed},
                                      {"destino", u" - |"_s + trimmed},
                                      {"data", date},
                                      {"valor", amount},
                                      {"informacoes", freeText}};
    QTest::newRow("accounts") << "banco"_ba
                              << QList<std::pair<QByteArray, QString>>{
                                     {"banco", trimmed}, {"saldo", signedAmount}, {"informacoes", freeText}};
    const QList<std::pair<QByteArray, QString>> contact{
        {"nome", trimmed},
        {"tipo", u"f|j"_s},
        {"cpf", u"\\d{3}\\.\\d{3}\\.\\d{3}-\\d\\d|\\d\\d\\.\\d{3}\\.\\d{3}/0001-\\d\\d"_s},
        {"estado", u"[A-Z]{2}"_s},
        {"tel", u"\\(\\d\\d\\) \\d{4}-\\d{4}"_s},
        {"email", u"([a-z0-9.&]+@[a-z]+\\.example)?"_s},
        {"nascimento", date},
        {"data", date}};
    QTest::newRow("clients") << "cliente"_ba << contact;
    QTest::newRow("suppliers") << "fornecedor"_ba << contact;
    QTest::newRow("products") << "produto"_ba
                              << QList<std::pair<QByteArray, QString>>{
                                     {"produto", trimmed}, {"qtde", count}, {"custo", amount}};
    QTest::newRow("appointments") << "compromisso"_ba
                                  << QList<std::pair<QByteArray, QString>>{
                                         {"Titulo", trimmed}, {"data", date}, {"hora", u"\\d\\d:\\d\\d"_s}};
}

void TestBanco::demoHoldsWhatTheProgramStores()
{
    using Columns = QList<std::pair<QByteArray, QString>>;
    QFETCH(const QByteArray, table);
    QFETCH(const Columns, columns);
    const auto connection = openFile(demoFile());
    for (const auto &[column, pattern] : columns) {
        const QRegularExpression form(QRegularExpression::anchoredPattern(pattern));
        const QStringList values = rows(*connection, "select [" + column + "] from [" + table + "]");
        QVERIFY(!values.isEmpty());
        for (const QString &value : values)
            QVERIFY2(form.match(value).hasMatch(), qPrintable(QString::fromLatin1(column) + u": "_s + value));
    }
}

void TestBanco::demoNamesWhatItsTablesHold_data()
{
    QTest::addColumn<QByteArray>("strangers");
    const auto check = [](const char *name, const char *table, const char *column, const char *owner,
                          const char *key, const char *unless) {
        QTest::newRow(name) << QByteArray("select ") + column + " from " + table + " where " + column +
                                   " <> '" + unless + "' and " + column + " not in (select " + key +
                                   " from " + owner + ")";
    };
    check("supplier", "pagar", "fornecedor", "fornecedor", "nome", "");
    check("client", "receber", "cliente", "cliente", "nome", "");
    check("account of a payable", "pagar", "origem", "banco", "banco", "");
    check("account of a receivable", "receber", "origem", "banco", "banco", "");
    check("account of a movement", "bancario", "origem", "banco", "banco", "");
    check("destination", "bancario", "destino", "banco", "banco", " - ");
    check("cost centre", "pagar", "descricao", "pcontapagar", "descricao", "");
    check("profit centre", "receber", "descricao", "pcontareceber", "descricao", "");
    check("product bought", "pagar", "produto", "produto", "produto", "-");
    check("product sold", "receber", "produto", "produto", "produto", "-");
    check("payment method", "receber", "pagamento", "fpagamento", "pagamento", "");
}

void TestBanco::demoNamesWhatItsTablesHold()
{
    QFETCH(const QByteArray, strangers);
    const auto connection = openFile(demoFile());
    QCOMPARE(rows(*connection, strangers), QStringList());
}

void TestBanco::demoLooksLikeAShop()
{
    const auto connection = openFile(demoFile());
    const auto count = [&](const QByteArray &condition) {
        const QByteArray columns = "select estatus, data, vencimento, documento, moeda, produto, qtde from ";
        return number(*connection, "select count(*) from (" + columns + "pagar union all " + columns +
                                       "receber) where " + condition);
    };
    QVERIFY(count("moeda <> 'R$'") > 0);
    QVERIFY(count("documento = ' '") > 0);
    QVERIFY(count("vencimento like '%/2027' or vencimento like '2027/%'") > 0);
    QVERIFY(count("data > '2026/11/14'") > 0);
    QVERIFY(count("estatus = 'Pendente' and vencimento = '2026/11/14'") > 0);
    QVERIFY(count("estatus = 'Pendente' and vencimento < '2026/11/14'") > 0);
    QVERIFY(count("estatus = 'Concluído'") > count("estatus = 'Pendente'"));
    QVERIFY(count("data like '%/12/%'") > count("data like '%/02/%'"));
    QVERIFY(count("(produto = '-') <> (qtde = '')") == 0);
}

void TestBanco::settledDatesArePlausible()
{
    const auto connection = openFile(demoFile());
    const QDate today(2026, 11, 14);
    int dayFirst = 0;
    int yearFirst = 0;
    for (const QByteArray table : {"pagar", "receber"}) {
        const QStringList lines = rows(*connection, "select data, vencimento, estatus from " + table);
        for (const QString &line : lines) {
            const QStringList cells = line.split(u'|');
            const QDate day = dates::read(cells[0]);
            const QDate due = dates::read(cells[1]);
            QVERIFY2(day.isValid() && due >= day, qPrintable(line));
            const bool isDayFirst = cells[1][2] == u'/';
            if (cells[2] == u"Pendente") {
                QVERIFY2(!isDayFirst, qPrintable(line));
                continue;
            }
            QVERIFY2(due <= today, qPrintable(line));
            ++(isDayFirst ? dayFirst : yearFirst);
        }
    }
    QVERIFY(dayFirst > 0);
    QVERIFY(yearFirst > 0);
}

void TestBanco::neverOverwrites()
{
    const QString path = file(u"alheio.qorvex"_s);
    QFile existing(path);
    QVERIFY(existing.open(QIODevice::WriteOnly));
    existing.write("meu");
    existing.close();
    for (const QString &command : {u"criar"_s, u"demo"_s}) {
        const Outcome outcome = runTool({command, path});
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.errors.contains(u"já existe"_s), qPrintable(outcome.errors));
        QVERIFY(existing.open(QIODevice::ReadOnly));
        QCOMPARE(existing.readAll(), "meu"_ba);
        existing.close();
    }
}

void TestBanco::refusesBadArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("complaint");
    QTest::newRow("nothing") << QStringList{} << u"comando"_s;
    QTest::newRow("no file") << QStringList{u"demo"_s} << u"arquivo"_s;
    QTest::newRow("unknown command") << QStringList{u"apagar"_s, u"x"_s} << u"apagar"_s;
    QTest::newRow("unknown option") << QStringList{u"demo"_s, u"x"_s, u"--cor"_s, u"3"_s} << u"cor"_s;
    QTest::newRow("no number") << QStringList{u"demo"_s, u"x"_s, u"--entradas"_s, u"muitas"_s}
                               << u"--entradas"_s;
    QTest::newRow("negative") << QStringList{u"demo"_s, u"x"_s, u"--movimentos=-1"_s} << u"--movimentos"_s;
    QTest::newRow("no account") << QStringList{u"demo"_s, u"x"_s, u"--contas"_s, u"0"_s} << u"--contas"_s;
    QTest::newRow("no date") << QStringList{u"demo"_s, u"x"_s, u"--hoje"_s, u"14/11/2026"_s} << u"--hoje"_s;
    QTest::newRow("no such folder") << QStringList{u"demo"_s, u"nenhures/x"_s} << u"nenhures/x"_s;
    QTest::newRow("no such folder, empty") << QStringList{u"criar"_s, u"nenhures/x"_s} << u"nenhures/x"_s;
}

void TestBanco::refusesBadArguments()
{
    QFETCH(QStringList, arguments);
    QFETCH(const QString, complaint);
    if (arguments.size() > 1)
        arguments[1] = file(arguments[1]);
    const Outcome outcome = runTool(arguments);
    QCOMPARE(outcome.exitCode, 1);
    QCOMPARE(outcome.output, QString());
    QVERIFY2(outcome.errors.contains(complaint), qPrintable(outcome.errors));
    QVERIFY(arguments.size() < 2 || !QFile::exists(arguments[1]));
}

QTEST_GUILESS_MAIN(TestBanco)
#include "tst_banco.moc"
