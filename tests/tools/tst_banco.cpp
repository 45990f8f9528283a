#include "data/connection.h"
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

/// Runs "demo FILE --entradas 3", say.
Outcome runTool(const QString &command)
{
    const QStringList arguments = command.split(u' ', Qt::SkipEmptyParts);
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
    void neverOverwrites();
    void refusesBadArguments();

private:
    QString file(const QString &name) const { return m_folder.filePath(name); }
    QTemporaryDir m_folder;
};

void TestBanco::demoIsRepeatable()
{
    const auto make = [&](const QString &name, const QString &seed) {
        const Outcome outcome =
            runTool(u"demo "_s + file(name) + u" --hoje 2026-11-14 --entradas 200 "_s + seed);
        return outcome.errors.isEmpty() ? dump(file(name)) : QStringList{outcome.errors};
    };
    const QStringList first = make(u"a.qorvex"_s, {});
    QVERIFY(first.size() > 200);
    QVERIFY(first == make(u"b.qorvex"_s, u"--semente 1"_s));
    QVERIFY(first != make(u"c.qorvex"_s, u"--semente 2"_s));
}

void TestBanco::demoHasTheRowsAskedFor()
{
    const QString path = file(u"numeros.qorvex"_s);
    const Outcome outcome =
        runTool(u"demo "_s + path + u" --entradas 41 --movimentos 7 --contas 9 --contatos 50000"_s);
    QCOMPARE(outcome.errors, QString());
    const auto connection = openFile(path);
    // Entries name contacts by their name alone, so no name may come twice.
    QCOMPARE(rows(*connection,
                  "select (select count(*) from pagar), (select count(*) from receber), (select "
                  "count(*) from bancario), (select count(distinct banco) from banco), (select "
                  "count(distinct nome) from cliente) + (select count(distinct nome) from fornecedor)"),
             QStringList{u"21|20|7|9|50000"_s});
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
        {u"produto,qtde,custo from produto"_s, {trimmed, u"\\d+"_s, amount}}};
    const QString path = file(u"demo.qorvex"_s);
    QCOMPARE(runTool(u"demo "_s + path + u" --hoje 2026-11-14 --entradas 3000"_s).errors, QString());
    const auto connection = openFile(path);
    for (const auto &[columns, patterns] : forms) {
        const QRegularExpression form(
            QRegularExpression::anchoredPattern(u'(' + patterns.join(u")\\|("_s) + u')'));
        const QStringList lines = rows(*connection, "select " + columns.toUtf8());
        QVERIFY(!lines.isEmpty());
        for (const QString &line : lines)
            QVERIFY2(form.match(line).hasMatch(), qPrintable(columns + u": "_s + line));
    }
}

void TestBanco::neverOverwrites()
{
    const QString path = file(u"criado.qorvex"_s);
    QCOMPARE(runTool(u"criar "_s + path).exitCode, 0);
    QVERIFY(schema::isComplete(*openFile(path)));
    const QStringList before = dump(path);
    for (const QString &command : {u"criar "_s, u"demo "_s}) {
        const Outcome outcome = runTool(command + path);
        QVERIFY2(outcome.exitCode == 1 && outcome.errors.contains(u"já existe"_s),
                 qPrintable(outcome.errors));
        QVERIFY(dump(path) == before);
    }
}

void TestBanco::refusesBadArguments()
{
    const QString path = file(u"x"_s), demo = u"demo "_s + path;
    for (const auto &[command, complaint] : {std::pair(QString(), u"comando"_s),
                                             {u"demo"_s, u"arquivo"_s},
                                             {u"apagar "_s + path, u"apagar"_s},
                                             {demo + u" --cor 3"_s, u"cor"_s},
                                             {demo + u" --entradas muitas"_s, u"--entradas"_s},
                                             {demo + u" --movimentos=-1"_s, u"--movimentos"_s},
                                             {demo + u" --contas 0"_s, u"--contas"_s},
                                             {demo + u" --hoje 14/11/2026"_s, u"--hoje"_s},
                                             {u"criar "_s + file(u"nada/x"_s), u"nada/x"_s}}) {
        const Outcome outcome = runTool(command);
        QVERIFY2(outcome.exitCode == 1 && outcome.errors.contains(complaint), qPrintable(outcome.errors));
        QVERIFY(!QFile::exists(path));
    }
}

QTEST_GUILESS_MAIN(TestBanco)
#include "tst_banco.moc"
