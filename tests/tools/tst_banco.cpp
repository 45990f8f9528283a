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
    void demoIsRepeatable();
    void demoHasTheRowsAskedFor();
    void demoHoldsWhatTheProgramStores();
    void demoNamesWhatItsTablesHold();
    void settledDatesArePlausible();
    void neverOverwrites();
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

/// Every cell of a column has the form in which the program's screens write it.
void TestBanco::demoHoldsWhatTheProgramStores()
{
    const QString date = u"\\d{4}/\\d\\d/\\d\\d"_s;
    const QString dueDate = date + u"|\\d\\d/\\d\\d/\\d{4}"_s;
    const QString amount = u"-?\\d{1,3}(\\.\\d{3})*,\\d\\d"_s;
    const QString freeText = u" |\\S.*\\S "_s; // never empty, ends in one blank
    const QString trimmed = u"\\S(.*\\S)?"_s;
    const QString state = u"Pendente|Concluído"_s;
    const QString entries = u"estatus,origem,data,vencimento,descricao,documento,valor,produto,qtde from "_s;
    const QStringList entry{state,    trimmed, date,    dueDate,          trimmed,
                            freeText, amount,  trimmed, u"([1-9]\\d*)?"_s};
    const QString contacts = u"nome,tipo,cpf,nascimento from "_s;
    const QStringList contact{
        trimmed, u"f|j"_s, u"\\d{3}\\.\\d{3}\\.\\d{3}-\\d\\d|\\d\\d\\.\\d{3}\\.\\d{3}/0001-\\d\\d"_s, date};
    const QList<std::pair<QString, QStringList>> forms{
        {entries + u"pagar"_s, entry},
        {entries + u"receber"_s, entry},
        {u"estatus,movimento,destino,data,valor,informacoes from bancario"_s,
         {state, u"Depósito|Retirada|Transferência entre contas"_s, u" - |"_s + trimmed, date, amount,
          freeText}},
        {u"banco,saldo,informacoes from banco"_s, {trimmed, amount, freeText}},
        {contacts + u"cliente"_s, contact},
        {contacts + u"fornecedor"_s, contact},
        {u"produto,qtde,custo from produto"_s, {trimmed, u"\\d+"_s, amount}},
        {u"Titulo,data,hora from compromisso"_s, {trimmed, date, u"\\d\\d:\\d\\d"_s}}};
    const auto connection = openFile(demoFile());
    for (const auto &[columns, patterns] : forms) {
        const QRegularExpression form(
            QRegularExpression::anchoredPattern(u'(' + patterns.join(u")\\|("_s) + u')'));
        const QStringList lines = rows(*connection, "select " + columns.toUtf8());
        QVERIFY(!lines.isEmpty());
        for (const QString &line : lines)
            QVERIFY2(form.match(line).hasMatch(), qPrintable(columns + u": "_s + line));
    }
}

void TestBanco::demoNamesWhatItsTablesHold()
{
    const auto connection = openFile(demoFile());
    // table, column, the table that must hold its values, that one's column, a value that names nothing
    const QByteArray owned =
        "pagar fornecedor fornecedor nome ;receber cliente cliente nome ;"
        "pagar origem banco banco ;receber origem banco banco ;"
        "bancario origem banco banco ;bancario destino banco banco  - ;"
        "pagar descricao pcontapagar descricao ;receber descricao pcontareceber descricao ;"
        "pagar produto produto produto -;receber produto produto produto -;"
        "receber pagamento fpagamento pagamento ";
    for (const QByteArray &line : owned.split(';')) {
        const QList<QByteArray> words = line.split(' ');
        const QByteArray nothing = line.endsWith("- ") ? " - " : words[4];
        QCOMPARE(rows(*connection, "select " + words[1] + " from " + words[0] + " where " + words[1] +
                                       " <> '" + nothing + "' and " + words[1] + " not in (select " +
                                       words[3] + " from " + words[2] + ")"),
                 QStringList());
    }
}

void TestBanco::settledDatesArePlausible()
{
    const auto connection = openFile(demoFile());
    const QDate today(2026, 11, 14);
    int dayFirst = 0;
    const QStringList lines = rows(*connection, "select data, vencimento, estatus from pagar union all "
                                                "select data, vencimento, estatus from receber");
    for (const QString &line : lines) {
        const QStringList cells = line.split(u'|');
        const QDate day = dates::read(cells[0]);
        const QDate due = dates::read(cells[1]);
        const bool isDayFirst = cells[1][2] == u'/';
        const bool isSettled = cells[2] == u"Concluído";
        QVERIFY2(day.isValid() && due >= day && (isSettled ? due <= today : !isDayFirst), qPrintable(line));
        dayFirst += isDayFirst;
    }
    QVERIFY(dayFirst > 0 && dayFirst < lines.size());
}

void TestBanco::neverOverwrites()
{
    const QString path = file(u"criado.qorvex"_s);
    QCOMPARE(runTool({u"criar"_s, path}).exitCode, 0);
    QVERIFY(schema::isComplete(*openFile(path)));
    const QStringList before = dump(path);
    for (const QString &command : {u"criar"_s, u"demo"_s}) {
        const Outcome outcome = runTool({command, path});
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.errors.contains(u"já existe"_s), qPrintable(outcome.errors));
        QVERIFY(dump(path) == before);
    }
}

void TestBanco::refusesBadArguments()
{
    const QString path = file(u"x"_s);
    const QList<std::pair<QStringList, QString>> complaints{
        {{}, u"comando"_s},
        {{u"demo"_s}, u"arquivo"_s},
        {{u"apagar"_s, path}, u"apagar"_s},
        {{u"demo"_s, path, u"--cor"_s, u"3"_s}, u"cor"_s},
        {{u"demo"_s, path, u"--entradas"_s, u"muitas"_s}, u"--entradas"_s},
        {{u"demo"_s, path, u"--movimentos=-1"_s}, u"--movimentos"_s},
        {{u"demo"_s, path, u"--contas"_s, u"0"_s}, u"--contas"_s},
        {{u"demo"_s, path, u"--hoje"_s, u"14/11/2026"_s}, u"--hoje"_s},
        {{u"criar"_s, file(u"nenhures/x"_s)}, u"nenhures/x"_s}};
    for (const auto &[arguments, complaint] : complaints) {
        const Outcome outcome = runTool(arguments);
        QCOMPARE(outcome.exitCode, 1);
        QVERIFY2(outcome.errors.contains(complaint), qPrintable(outcome.errors));
        QVERIFY(!QFile::exists(path));
    }
}

QTEST_GUILESS_MAIN(TestBanco)
#include "tst_banco.moc"
