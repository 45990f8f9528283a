#include "data/connection.h"
#include "data/dialect.h"
#include "data/schema.h"
#include "data/sharedconnection.h"
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
    program.database().executeNative("INSERT INTO pagar (estatus, origem, fornecedor, data, valor) VALUES"
                                     "('Pendente', 'Itaú', 'Zé', '2026/01/01', '1.000,00'), ('CONCLUÍDO', "
                                     "'ITAÚ', 'ZÉ', '2026/01/02', '1.000,00'),"
                                     "('Pendente', 'Caixa_1', 'bento', '2026/01/03', '2,00'), "
                                     "('Concluído', 'Caixa 1', 'Ágil', '2026/01/04', '-3,00'),"
                                     "('Pendente', '[x]', 'BENTO', '2026/01/05', '20,00'); INSERT INTO "
                                     "produto VALUES ('Pão', 1.5, '', '')");
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

/// Tests may run as root, whom no permission stops.
class AsOrdinaryUser
{
public:
    AsOrdinaryUser() : m_done(geteuid() == 0 && seteuid(65534) == 0) {}
    ~AsOrdinaryUser()
    {
        if (m_done && seteuid(0) != 0)
            qFatal("cannot become root again");
    }
    Q_DISABLE_COPY_MOVE(AsOrdinaryUser)

private:
    bool m_done;
};

} // namespace

class TestConnection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void queries();
    void planUsesIndexes();
    void changes();
    void stockKeepsExactDecimals();
    void refusedStatementsChangeNothing();
    void unusableFiles();
    void placesWithoutPermission();
    void damagedPage();
    void createdOnlyOnce();
    void secondWriterWaitsAndSaysSo();
    void transactionIsAllOrNothing();
    void commitsReachTheDisk();
    void fullDisk();
    void sharedConnectionFollowsTheFile();
    void pathComesFromTheSetting();
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
                 "SELECT DISTINCT [fornecedor],[estatus] FROM pagar where código like '_' -> Zé | Pendente,"
                 "ZÉ | CONCLUÍDO,bento | Pendente,Ágil | Concluído\n"
                 "SELECT qtde from produto -> 1,5"_s,
                 answer);
}

void TestConnection::planUsesIndexes()
{
    TestProgram program;
    const QString sums = u"SELECT rowid, estatus, valor, qtde FROM "_s;
    for (const auto &[sql, expected] :
         {std::pair(u"SELECT valor FROM pagar WHERE estatus like ('Concluído') AND origem like ('Itaú')"_s,
                    u"COVERING INDEX pagar_por_origem (origem=? AND estatus=?)"_s),
          {u"SELECT movimento, valor FROM bancario WHERE estatus like 'x' AND destino like 'y'"_s,
           u"COVERING INDEX bancario_por_destino (destino=? AND estatus=?)"_s},
          {u"SELECT * FROM bancario where(código like '5')"_s, u"PRIMARY KEY (rowid=?)"_s},
          {u"SELECT DISTINCT origem FROM receber order by origem"_s,
           u"INDEX receber_por_origem (origem>?)"_s},
          {sums + u"pagar where (estatus like '%%') order by vencimento"_s,
           u"SCAN TABLE pagar USING COVERING INDEX pagar_por_vencimento\n"_s},
          {sums + u"pagar where(data like '%2026/%') order by data"_s,
           u"COVERING INDEX pagar_por_data (<expr>>? AND <expr><?)\n"_s},
          {sums + u"receber WHERE data BETWEEN '2026/01/01' AND '2026/01/31'"_s,
           u"COVERING INDEX receber_por_data (<expr>>? AND <expr><?)"_s},
          {sums + u"pagar where (fornecedor like 'x') order by vencimento"_s,
           u"COVERING INDEX pagar_por_fornecedor (fornecedor=?)"_s},
          {sums + u"receber where (estatus like '%%')"_s, u"COVERING INDEX receber_por_codigo\n"_s},
          {u"SELECT rowid, movimento, valor FROM bancario order by data"_s,
           u"COVERING INDEX bancario_por_data\n"_s}}) {
        // "explain query plan" yields the plan's words in its last column.
        Statement plan =
            program.database().prepareNative("EXPLAIN QUERY PLAN " + dialect::translate(sql).sql.toUtf8());
        QString words;
        while (plan.step())
            words += plan.text(3) + u'\n';
        QVERIFY2(words.contains(expected), qPrintable(words));
    }
}

void TestConnection::changes()
{
    TestProgram program;
    addEntries(program);
    Connection &database = program.database();
    QCOMPARE(database.execute(u"Delete FROM pagar where(código like '3')"_s), 1);
    QCOMPARE(database.execute(u"UPDATE pagar SET estatus='Concluído' where origem like 'itaú'"_s), 2);
    QCOMPARE(database.execute(u"Delete * from produto"_s), 1);
    QCOMPARE(database.execute(u"select * from pagar"_s), 0);
    QCOMPARE(program.rows(u"select código, estatus from pagar"_s),
             u"1 | Concluído\n2 | Concluído\n4 | Concluído\n5 | Pendente\n"_s);
    // A key is never given out again.
    database.execute(u"delete from pagar where código = 5"_s);
    database.execute(u"insert into pagar (origem) values ('x')"_s);
    QCOMPARE(database.lastInsertedRow(), 6);
}

void TestConnection::stockKeepsExactDecimals()
{
    TestProgram program;
    program.run(u"insert into produto values ('Pão', 0, '1,00', ' ')"_s);
    for (const QString &move : {u"+ 0.1"_s, u"+ 0.2"_s, u"- 0.3"_s, u"+ 0.1"_s, u"- 3"_s})
        program.run(u"UPDATE [produto] SET qtde=qtde %1 WHERE [produto] like 'PÃO'"_s.arg(move));
    QCOMPARE(program.rows(u"select qtde, qtde = -2.9 from produto"_s), u"-2,9 | 1\n"_s);
    program.run(u"UPDATE [produto] SET qtde=qtde + 2.9 WHERE [produto] like 'pão'"_s);
    QCOMPARE(program.rows(u"select qtde from produto"_s), u"0\n"_s);
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
        QString text;
        {
            const AsOrdinaryUser user;
            text = failure([&] { Connection::open(path, password()); }, Error::Kind::Open);
        }
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
    const QString text = failure(
        [&] { Connection::open(program.databaseFile(), password())->execute(u"select * from pagar"_s); },
        Error::Kind::Storage);
    QVERIFY2(text.contains(u"danificado"), qPrintable(text));
}

void TestConnection::createdOnlyOnce()
{
    TestProgram program;
    program.run(u"insert into banco values ('Caixa', '0,00', ' ')"_s);
    const QString text = failure([&] { schema::createFile(program.databaseFile()); }, Error::Kind::Open);
    QVERIFY2(text.contains(u"Já existe"), qPrintable(text));
    QCOMPARE(program.rows(u"select banco from banco"_s), u"Caixa\n"_s);
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
    const auto insert = [&](const QString &name) {
        program.run(u"insert into banco values ('%1', '0,00', ' ')"_s.arg(name));
    };
    {
        Transaction transaction(database);
        insert(u"A"_s);
        QVERIFY(database.inTransaction());
    }
    QVERIFY(!database.inTransaction());
    {
        Transaction transaction(database);
        insert(u"B"_s);
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
            insert(u"C"_s);
            transaction.commit();
        };
        QVERIFY(failure(commit, Error::Kind::Busy).startsWith(u"Outro computador"));
        QVERIFY(!database.inTransaction());
    }
    QCOMPARE(program.rows(u"select banco from banco"_s), u"B\n"_s);
}

/// Neither a power cut nor another machine finds half a commit.
void TestConnection::commitsReachTheDisk()
{
    TestProgram program;
    for (const auto &[pragma, expected] : {std::pair("synchronous", u"2"_s), {"journal_mode", u"delete"_s}}) {
        Statement setting = program.database().prepareNative(QByteArray("PRAGMA ") + pragma);
        QVERIFY(setting.step());
        QCOMPARE(setting.text(0), expected);
    }
}

void TestConnection::fullDisk()
{
    TestProgram program;
    Connection &database = program.database();
    database.executeNative("PRAGMA max_page_count=1");
    const auto fill = [&] {
        Transaction transaction(database);
        for (int i = 0; i < 100; ++i)
            program.run(u"insert into banco values ('%1', '0,00', ' ')"_s.arg(QString(1000, u'x')));
        transaction.commit();
    };
    QVERIFY(failure(fill, Error::Kind::Storage).contains(u"disco está cheio"));
    QCOMPARE(program.rows(u"select count(*) from banco"_s), u"0\n"_s);
}

void TestConnection::sharedConnectionFollowsTheFile()
{
    TestProgram program;
    const QString path = program.databaseFile();
    SharedConnection shared;
    const std::shared_ptr<Connection> first = shared.open(path);
    first->execute(u"insert into banco values ('antes', '0,00', ' ')"_s);
    QCOMPARE(shared.open(path), first);

    const QString restored = program.file(u"copia.qorvex"_s);
    schema::createFile(restored);
    QVERIFY(QFile::remove(path) && QFile::rename(restored, path));
    Statement left = shared.open(path)->prepare(u"select count(*) from banco"_s);
    QVERIFY(left.step());
    QCOMPARE(left.integer(0), 0);

    QVERIFY(QFile::remove(path));
    QVERIFY(failure([&] { shared.open(path); }, Error::Kind::Open).contains(u"não foi encontrado"));
    QVERIFY(!shared.isOpen());
}

void TestConnection::pathComesFromTheSetting()
{
    TestProgram program;
    const QString network = program.file(u"rede.qorvex"_s);
    schema::createFile(network);
    settings::setValue(settings::databasePath, network);
    chooseDatabase();
    program.run(u"insert into banco values ('na rede', '0,00', ' ')"_s);
    settings::setValue(settings::databasePath,
                       u"semrede"_s);  // another spelling is a path like any other
    QCOMPARE(databasePath(), network); // for the whole run
    chooseDatabase();
    QCOMPARE(databasePath(), u"semrede"_s);
    settings::setValue(settings::databasePath, u"SemRede"_s);
    chooseDatabase();
    QCOMPARE(program.rows(u"select banco from banco"_s), QString());
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
    shell.write("PRAGMA cipher_page_size = 4096; PRAGMA kdf_iter = 64000;"
                "PRAGMA cipher_hmac_algorithm = HMAC_SHA1; PRAGMA cipher_kdf_algorithm = PBKDF2_HMAC_SHA1;"
                "PRAGMA integrity_check; UPDATE pagar SET origem = 'Casa' WHERE código < 3;"
                "SELECT código, valor FROM pagar WHERE origem = 'casa' ORDER BY código;");
    shell.closeWriteChannel();
    QVERIFY(shell.waitForFinished());
    QCOMPARE(QString::fromUtf8(shell.readAllStandardError()), QString());
    QCOMPARE(QString::fromUtf8(shell.readAllStandardOutput()), u"ok\n1|1.000,00\n2|1.000,00\n"_s);
    QCOMPARE(program.rows(u"select código from pagar where origem like 'CASA'"_s), u"1\n2\n"_s);
}

QTEST_GUILESS_MAIN(TestConnection)
#include "tst_connection.moc"
