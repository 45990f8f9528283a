#include "data/connection.h"
#include "data/dialect.h"
#include "data/recordset.h"
#include "data/schema.h"
#include "settings/database.h"
#include "settings/settings.h"
#include "support/answers.h"
#include "support/testprogram.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

#include <functional>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

QString password()
{
    return schema::password.toString();
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

/// Five entries, the second and fourth settled.
void addEntries(TestProgram &program)
{
    program.database().executeNative(
        "INSERT INTO pagar (estatus, origem, fornecedor, data, valor) VALUES('Pendente', 'Itaú', 'Zé', "
        "'2026/01/01', '1.000,00'), ('CONCLUÍDO', 'ITAÚ', 'ZÉ', '2026/01/02', '1.000,00'),('Pendente', "
        "'Caixa_1', 'bento', '2026/01/03', '2,00'), ('Concluído', 'Caixa 1', 'Ágil', '2026/01/04', "
        "'-3,00'),('Pendente', '[x]', 'BENTO', '2026/01/05', '20,00'); INSERT INTO produto VALUES ('Pão', "
        "1.5, '', '')");
}

void addAccounts(TestProgram &program, const QStringList &names)
{
    Recordset table(program.database(), u"banco"_s);
    for (const QString &name : names) {
        table.addNew();
        table.set(u"BANCO", name);
        table.set(u"saldo", u"1,00"_s);
        table.update();
    }
}

QString accounts(TestProgram &program)
{
    return program.rows(u"select banco, saldo from banco"_s);
}

/// The error that the work ends in; "ok" when it ends well.
QString failure(const std::function<void()> &work, Error::Kind kind)
{
    try {
        work();
        return u"ok"_s;
    } catch (const Error &error) {
        return error.kind() == kind ? error.text() : u"wrong kind: "_s + error.text();
    }
}

} // namespace

class TestConnection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void queries();
    void aDateIsFoundInBothStoredForms();
    void planUsesIndexes();
    void anOlderFileGainsTheIndexes();
    void changes();
    void refusedStatementsChangeNothing();
    void unusableFiles();
    void placesWithoutPermission();
    void damagedPage();
    void secondWriterWaitsAndSaysSo();
    void transactionIsAllOrNothing();
    void commitsReachTheDisk();
    void pathComesFromTheSetting();
    void editsEveryRowItWalks();
    void editWaitsWithoutLocking();
    void opensInTheStoresOwnShell();
};

void TestConnection::queries()
{
    TestProgram program;
    addEntries(program);
    const auto answer = [&](const QString &sql) { return program.rows(sql).trimmed().replace(u'\n', u','); };
    checkAnswers(
        u"(estatus like 'concluído') -> 2,4 ; (origem like 'itaú') -> 1,2 ; (origem like '%itaú') -> 1,2\n"
        "origem like 'itau' ->  ; origem like('caixa_1') -> 3,4 ; [origem]like ( '[X]' ) -> 5\n"
        "origem not like 'ITAú' and origem not like '%1' -> 5\n"
        "(estatus like '%%') and origem like ('%') -> 1,2,3,4,5\n"
        "(CÓDIGO like '3') -> 3 ; (código like '03') or código like 'x' or código like '' -> \n"
        "código like '%'  and código not like '2' -> 1,3,4,5\n"
        "[data] BETWEEN ('2026/01/02') AND ('2026/01/04') -> 2,3,4\n"
        "1 order by valor -> 4,3,5,1,2 ; 1 order by origem desc -> 1,2,3,4,5"_s,
        [&](const QString &where) { return answer(u"select código from pagar where "_s + where); });
    checkAnswers(u"SELECT DISTINCT fornecedor FROM pagar order by fornecedor ASC -> Ágil,bento,Zé\n"
                 "SELECT DISTINCT fornecedor FROM pagar -> Zé,bento,Ágil\n"
                 "SELECT DISTINCT [fornecedor],[estatus] FROM pagar where código like '_' -> Zé | "
                 "Pendente,ZÉ | CONCLUÍDO,bento | Pendente,Ágil | Concluído\n"
                 "SELECT qtde from produto -> 1,5"_s,
                 answer);
}

/// Settling stores the due date day first.
void TestConnection::aDateIsFoundInBothStoredForms()
{
    TestProgram program;
    const QStringList dates{u"2026/11/02"_s, u"01/12/2026"_s, u" "_s,          u"2025/12/31"_s,
                            u"03/11/2026"_s, u"2026/11/30"_s, u"20/11/2025"_s, u"2026-11-05"_s,
                            u"11/2026"_s,    u"02/11/2026"_s};
    for (const QString &date : dates)
        program.run(u"insert into pagar (data, vencimento) values ('2026/01/01', '%1')"_s.arg(date));
    program.run(u"insert into pagar (data) values ('2026/01/01')"_s);
    const auto answer = [&](const QString &clause) {
        return program.rows(u"select código from pagar "_s + clause).trimmed().replace(u'\n', u',');
    };
    checkAnswers(
        u"order by vencimento -> 3,8,9,11,7,4,1,10,5,6,2\n"
        "order by [Vencimento] desc -> 2,6,5,1,10,4,7,3,8,9,11\n"
        "where vencimento like '2026/11/02' -> 1,10 ; where ([vencimento]) like('02/11/2026') -> 1,10\n"
        "where(vencimento like '%2026/%') -> 1,2,5,6,10 ; where(vencimento like '%2025%') -> 4,7\n"
        "where(vencimento like '%/11/%' AND data like '%2026/%') -> 1,5,6,7,10\n"
        "where (vencimento like '%2026/11/%') -> 1,5,6,10 ; where vencimento like '2026/12%' -> 2\n"
        "where vencimento like '%202_/1%/3%' -> 4,6 ; where vencimento not like '%2026/1%' -> 4,7\n"
        "where vencimento BETWEEN '2026/11/02' AND '2026/11/30' -> 1,5,6,10\n"
        "where vencimento NOT between ('03/11/2026') and ('2026/11/30') -> 1,2,4,7,10\n"
        "where vencimento > '2026/11/30' -> 2 ; where vencimento<='2025/12' -> 7\n"
        "where vencimento = '01/12/2026' -> 2 ; where vencimento <> '2026/11/02' and código < 5 -> 2,4\n"
        "where (vencimento like '%%') -> 1,2,3,4,5,6,7,8,9,10 ; where vencimento like ' ' -> 3\n"
        "where vencimento like '%-%' -> 8"_s,
        answer);
    // What is assigned stays as it is written; what is sought is a date.
    program.run(u"UPDATE pagar SET documento='x', vencimento='02/11/2026' WHERE vencimento = '2026/11/02'"_s);
    QCOMPARE(program.rows(u"select vencimento from pagar where documento like 'x'"_s),
             u"02/11/2026\n02/11/2026\n"_s);
    QCOMPARE(program.database().execute(u"Delete FROM pagar where vencimento like '%2026/11/02%'"_s), 2);
}

/// Totals, periods and balances never read whole rows, and an order that an index has is not made again.
void TestConnection::planUsesIndexes()
{
    TestProgram program;
    using Order = dialect::RowOrder;
    const QString figures = u"SELECT rowid, estatus, valor, qtde FROM "_s;
    struct Case
    {
        QString sql, expected;
        bool sorts = true;
        Order order = Order::Insertion;
    };
    const Case cases[] = {
        {u"SELECT valor FROM pagar WHERE estatus like ('Concluído') AND origem like ('Itaú')"_s,
         u"COVERING INDEX pagar_por_origem (origem=? AND estatus=?)"_s, false, Order::Any},
        {u"SELECT DISTINCT origem FROM receber order by origem"_s, u"INDEX receber_por_origem (origem>?)"_s},
        {figures + u"pagar where (estatus like '%%') order by vencimento"_s,
         u"SCAN TABLE pagar USING COVERING INDEX pagar_por_vencimento"_s, false},
        {figures + u"pagar where(vencimento like '%2026/%') order by vencimento"_s,
         u"COVERING INDEX pagar_por_vencimento (<expr>>? AND <expr><?)"_s, false},
        {figures + u"pagar where(vencimento like '%/11/%' AND data like '%2026/%') order by vencimento"_s,
         u"INDEX pagar_por_data (<expr>>? AND <expr><?)"_s},
        {figures + u"receber WHERE data BETWEEN '2026/11/01' AND '2026/12/01'"_s,
         u"COVERING INDEX receber_por_data (<expr>>? AND <expr><?)"_s},
        {figures +
             u"pagar WHERE data BETWEEN '2026/11/01' AND '2026/12/01' and (origem like 'Caixa') order by data"_s,
         u"COVERING INDEX pagar_"_s},
        {figures + u"receber where (estatus like '%%') and (cliente like 'Ana')"_s,
         u"COVERING INDEX receber_por_cliente (cliente=?)"_s},
        {figures + u"receber where (estatus like '%%')"_s,
         u"SCAN TABLE receber USING COVERING INDEX receber_por_codigo"_s, false},
        {u"SELECT rowid, movimento, estatus, valor FROM bancario order by data"_s,
         u"SCAN TABLE bancario USING COVERING INDEX bancario_por_data"_s, false},
        {u"Select * from pagar WHERE vencimento BETWEEN '2026/11/01' AND '2026/11/30' AND estatus like ('%%') AND fornecedor like('%%') AND origem like('%Caixa%') AND descricao like('%%')"_s,
         u"INDEX pagar_por_vencimento (<expr>>? AND <expr><?)"_s},
        {u"UPDATE pagar SET documento='x' WHERE vencimento >= '2026/11/01'"_s,
         u"INDEX pagar_por_vencimento (<expr>>?)"_s, false}};
    for (const auto &[sql, expected, sorts, order] : cases) {
        // "explain query plan" yields the plan's words in its last column.
        const QString translated = dialect::translate(sql, dialect::RowKey::Omitted, order).sql;
        Statement plan = program.database().prepareNative("EXPLAIN QUERY PLAN " + translated.toUtf8());
        QString words;
        while (plan.step())
            words += plan.text(3) + u'\n';
        QVERIFY2(words.contains(expected) && (sorts || !words.contains(u"TEMP B-TREE")),
                 qPrintable(sql + u'\n' + words));
    }
}

void TestConnection::anOlderFileGainsTheIndexes()
{
    TestProgram program;
    const QString path = program.databaseFile();
    const auto definitions = [&] {
        const auto file = Connection::open(path, password());
        QStringList found;
        for (Statement index = file->prepareNative(
                 "SELECT sql FROM sqlite_master WHERE type = 'index' AND sql <> '' ORDER BY name");
             index.step();)
            found << index.text(0);
        return found;
    };
    const QStringList wanted = definitions();
    QVERIFY(wanted.size() > 10);
    {
        const auto file = Connection::open(path, password());
        for (const QString &definition : wanted)
            file->executeNative("DROP INDEX " + definition.section(u' ', 2, 2).toUtf8());
        file->executeNative("CREATE INDEX pagar_saldo ON pagar (origem, estatus, valor);CREATE INDEX "
                            "produto_produto ON produto (produto)");
    }
    {
        const auto other = Connection::open(path, password());
        const Transaction writing(*other);
        QCOMPARE(program.rows(u"select count(*) from pagar"_s), u"0\n"_s); // opens, and quickly
        closeDatabase();
    }
    QCOMPARE(definitions().size(), 2);
    program.database();
    QCOMPARE(definitions(), wanted);
    // A file that has them all is opened without a write.
    const QByteArray before = contents(path);
    closeDatabase();
    program.database();
    QVERIFY(contents(path) == before);
}

void TestConnection::changes()
{
    TestProgram program;
    addEntries(program);
    Connection &database = program.database();
    QCOMPARE(database.execute(u"UPDATE pagar SET estatus='Concluído' where origem like 'itaú'"_s), 2);
    QCOMPARE(database.execute(u"Delete * from produto"_s), 1);
    QCOMPARE(database.execute(u"select * from pagar"_s), 0);
    // A key is never given out again.
    QCOMPARE(database.execute(u"delete from pagar where código = 5"_s), 1);
    database.execute(u"insert into pagar (origem) values ('x')"_s);
    QCOMPARE(database.lastInsertedRow(), 6);
}

void TestConnection::refusedStatementsChangeNothing()
{
    TestProgram program;
    addEntries(program);
    for (const QString &sql :
         {u"delete from pagar; delete from pagar"_s, u"delete from pagar where(origem like 'D'Água')"_s,
          u"delete from pagar where(origem like ''D'Água'')"_s, u"delete from [pagar"_s, u" ; "_s,
          u"delete from pagar"_s + QChar(QChar::Null) + u" where código = 1"_s,
          u"delete from pagar /* where código = 1"_s, u"delete from pagar where origem like '%' --')"_s,
          u"delete from pagar where origen like '%'"_s, u"delete from pagarr"_s, u"delete pagar"_s}) {
        const QString text = failure([&] { program.run(sql); }, Error::Kind::Query);
        QVERIFY2(text != "ok"_L1 && !text.startsWith(u"wrong"), qPrintable(sql + u": "_s + text));
    }
    QCOMPARE(program.rows(u"select count(*) from pagar"_s), u"5\n"_s);
}

/// What is done to a good file, and the words that opening it then ends in.
void TestConnection::unusableFiles()
{
    const std::pair<QString, QString> cases[] = {{u"remove"_s, u"não foi encontrado"_s},
                                                 {u"folder"_s, u"é uma pasta"_s},
                                                 {u"keep 0"_s, u"está vazio"_s},
                                                 {u"keep 1000"_s, u"não é um banco de dados do Tavaro"_s},
                                                 {u"keep 10000"_s, u"está incompleto ou danificado"_s},
                                                 {u"text"_s, u"não é um banco de dados do Tavaro"_s},
                                                 {u"password"_s, u"com outra senha"_s},
                                                 {u"tables"_s, u"não tem as tabelas do Tavaro"_s}};
    for (const auto &[change, expected] : cases) {
        TestProgram program;
        const QString path = program.databaseFile();
        const QByteArray good = contents(path);
        QFile::remove(path);
        if (change == "folder"_L1)
            QVERIFY(QDir().mkdir(path));
        else if (change.startsWith("keep"_L1))
            write(path, good.first(change.section(u' ', 1).toInt()));
        else if (change == "text"_L1)
            write(path, QByteArray("SQLite format 3\0", 16) + QByteArray(20'000, 'x'));
        else if (change == "password"_L1)
            Connection::create(path, u"outra"_s)->executeNative("CREATE TABLE t (a)");
        else if (change == "tables"_L1)
            Connection::create(path, password())->executeNative("CREATE TABLE pagar (a)");
        const QByteArray before = contents(path);
        const QStringList listing = QDir(program.file(QString())).entryList();

        const QString text = failure([&] { program.database(); }, Error::Kind::Open);
        QVERIFY2(text.contains(expected), qPrintable(change + u": "_s + text));
        QCOMPARE(contents(path), before);
        QCOMPARE(QDir(program.file(QString())).entryList(), listing);

        // A good file in its place is opened without further ado.
        QVERIFY(QFile::remove(path) || QDir().rmdir(path) || change == "remove"_L1);
        write(path, good);
        QCOMPARE(program.rows(u"select * from login_inicia"_s), u"0\n"_s);
    }
}

void TestConnection::placesWithoutPermission()
{
    using Permissions = QFile::Permissions;
    const Permissions all = Permissions(0x7777);
    TestProgram program;
    const QString inner = program.file(u"rede"_s);
    const QString path = inner + u"/dados"_s;
    QVERIFY(QDir().mkdir(inner));
    schema::createFile(path);
    QVERIFY(QFile::setPermissions(program.file(QString()), all));
    const auto check = [&](Permissions file, Permissions folder, const QString &expected) {
        QVERIFY(QFile::setPermissions(path, file) && QFile::setPermissions(inner, folder));
        const bool isRoot = geteuid() == 0 && seteuid(65534) == 0; // whom no permission stops
        const QString text = failure([&] { Connection::open(path, password()); }, Error::Kind::Open);
        QVERIFY(!isRoot || seteuid(0) == 0);
        QVERIFY(QFile::setPermissions(inner, all));
        QVERIFY2(text.contains(expected), qPrintable(text));
        QCOMPARE(QDir(inner).entryList(QDir::Files), QStringList{u"dados"_s});
    };
    check(all, all, u"ok"_s);
    check(Permissions(), all, u"permissão para ler"_s);
    check(Permissions(0x4444), all, u"somente leitura"_s);
    check(all, Permissions(0x5555), u"gravar na pasta"_s);
    check(all, Permissions(), u"abrir a pasta"_s);
}

void TestConnection::damagedPage()
{
    TestProgram program;
    addEntries(program);
    closeDatabase();
    QByteArray bytes = contents(program.databaseFile());
    for (qsizetype page = 1; page < bytes.size() / 4096; ++page)
        bytes[page * 4096 + 100] = char(~bytes[page * 4096 + 100]);
    write(program.databaseFile(), bytes);
    const auto read = [&] {
        Connection::open(program.databaseFile(), password())->execute(u"select * from pagar"_s);
    };
    QVERIFY(failure(read, Error::Kind::Storage).contains(u"danificado"));
}

void TestConnection::secondWriterWaitsAndSaysSo()
{
    TestProgram program;
    Connection &first = program.database();
    const auto second = Connection::open(program.databaseFile(), password());
    second->setBusyTimeout(1000);
    const auto write = [&] { second->execute(u"insert into banco values ('B', '0,00', ' ')"_s); };
    {
        Transaction transaction(first);
        first.execute(u"insert into banco values ('A', '0,00', ' ')"_s);
        const QString text = failure(write, Error::Kind::Busy);
        QVERIFY2(text.contains(u"Outro computador ou programa está gravando") && text.contains(u"1 segundo"),
                 qPrintable(text));
        transaction.commit();
    }
    write();
    QCOMPARE(program.rows(u"select banco from banco"_s), u"A\nB\n"_s);
}

void TestConnection::transactionIsAllOrNothing()
{
    TestProgram program;
    Connection &database = program.database();
    for (const bool commits : {false, true}) {
        Transaction transaction(database);
        program.run(u"insert into banco values ('%1', '0,00', ' ')"_s.arg(int(commits)));
        if (commits)
            transaction.commit();
    }
    {
        // A commit that must wait for a reader in vain takes everything back.
        const auto reader = Connection::open(program.databaseFile(), password());
        Statement open = reader->prepare(u"select * from fpagamento"_s);
        QVERIFY(open.step());
        database.setBusyTimeout(10);
        const auto commit = [&] {
            Transaction transaction(database);
            program.run(u"insert into banco values ('C', '0,00', ' ')"_s);
            transaction.commit();
        };
        QVERIFY(failure(commit, Error::Kind::Busy).startsWith(u"Outro computador"));
        QVERIFY(!database.inTransaction());
    }
    QCOMPARE(program.rows(u"select banco from banco"_s), u"1\n"_s);
}

/// A rollback journal, for network folders, and a flush before a commit counts as done.
void TestConnection::commitsReachTheDisk()
{
    TestProgram program;
    program.run(u"insert into banco values ('A', '0,00', ' ')"_s);
    for (const auto &[pragma, expected] :
         {std::pair("PRAGMA journal_mode", u"delete"_s), {"PRAGMA synchronous", u"2"_s}}) {
        Statement value = program.database().prepareNative(pragma);
        QVERIFY(value.step());
        QCOMPARE(value.text(0), expected);
    }
}

void TestConnection::pathComesFromTheSetting()
{
    TestProgram program;
    const QString network = program.file(u"rede.qorvex"_s);
    schema::createFile(network);
    settings::setValue(settings::databasePath, network);
    chooseDatabase();
    program.run(u"insert into banco values ('na rede', '0,00', ' ')"_s);
    settings::setValue(settings::databasePath, u"semrede"_s); // another spelling is a path like any other
    QCOMPARE(databasePath(), network);                        // for the whole run
    chooseDatabase();
    QCOMPARE(databasePath(), u"semrede"_s);
}

void TestConnection::editsEveryRowItWalks()
{
    TestProgram program;
    addAccounts(program, {u"á"_s, u"Joana d'Arc \"x\"; -- %"_s, u"Á"_s, u"á"_s});
    // The index serves this query and the change moves the rows within it.
    Recordset rows(program.database(), u"select * from banco where banco like 'Á'"_s);
    QCOMPARE(rows.count(), 3);
    QString seen;
    while (rows.next()) {
        seen += rows.text(u"banco") + u'|';
        rows.set(u"banco", u"Á"_s);
        rows.set(u"saldo", u"2,00"_s);
        rows.update();
    }
    QCOMPARE(seen, u"á|Á|á|"_s);
    QCOMPARE(accounts(program), u"Á | 2,00\nJoana d'Arc \"x\"; -- % | 1,00\nÁ | 2,00\nÁ | 2,00\n"_s);
}

/// A recordset that stands on a row would make the other writer and itself wait for each other.
void TestConnection::editWaitsWithoutLocking()
{
    TestProgram program;
    addAccounts(program, {u"a"_s, u"b"_s});
    const auto other = Connection::open(program.databaseFile(), password());
    Recordset rows(program.database(), u"select * from banco"_s);
    QVERIFY(rows.next());
    rows.set(u"saldo", u"9,00"_s);
    {
        Transaction transaction(*other);
        other->execute(u"update banco set saldo='5,00' where banco like 'b'"_s);
        program.database().setBusyTimeout(10);
        QVERIFY(failure([&] { rows.update(); }, Error::Kind::Busy).startsWith(u"Outro computador"));
        other->setBusyTimeout(0);
        transaction.commit();
    }
    rows.set(u"saldo", u"9,00"_s);
    rows.update();
    QCOMPARE(accounts(program), u"a | 9,00\nb | 5,00\n"_s);
}

void TestConnection::opensInTheStoresOwnShell()
{
    TestProgram program;
    addEntries(program);
    closeDatabase();
    QProcess shell;
    shell.start(u"sqlcipher"_s, {program.databaseFile()});
    QVERIFY(shell.waitForStarted());
    shell.write(u"PRAGMA key = '%1';"_s.arg(password()).toUtf8());
    shell.write("PRAGMA cipher_page_size = 4096; PRAGMA kdf_iter = 64000;PRAGMA cipher_hmac_algorithm = "
                "HMAC_SHA1; PRAGMA cipher_kdf_algorithm = PBKDF2_HMAC_SHA1;UPDATE pagar SET origem = 'Casa', "
                "vencimento = '14/11/2026' WHERE código < 3;PRAGMA integrity_check;SELECT código, valor FROM "
                "pagar WHERE origem = 'casa' ORDER BY código;");
    shell.closeWriteChannel();
    QVERIFY(shell.waitForFinished());
    QCOMPARE(QString::fromUtf8(shell.readAllStandardError()), QString());
    QCOMPARE(QString::fromUtf8(shell.readAllStandardOutput()), u"ok\n1|1.000,00\n2|1.000,00\n"_s);
    for (const QString &condition : {u"origem like 'CASA'"_s, u"vencimento like '%2026/11/%'"_s})
        QCOMPARE(program.rows(u"select código from pagar where "_s + condition), u"1\n2\n"_s);
}

QTEST_GUILESS_MAIN(TestConnection)
#include "tst_connection.moc"
