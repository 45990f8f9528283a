#include "analysis/reportcatalog.h"
#include "support/ledger.h"
#include "support/paper.h"
#include "support/testprogram.h"

#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A word for each argument; "_" stands for a blank.
QStringList arguments(const QString &command)
{
    QStringList words = command.split(u' ', Qt::SkipEmptyParts);
    return words.replaceInStrings(u"_"_s, u" "_s);
}

void fill(TestProgram &program)
{
    addRow(program, u"banco"_s, u"banco=Caixa, saldo=100,00"_s);
    addRow(program, u"cliente"_s, u"nome=Ana"_s);
    addRow(program, u"fornecedor"_s, u"nome=Luz do Vale"_s);
    addRow(program, u"pcontapagar"_s, u"descricao=Luz"_s);
    addRow(program, u"pcontareceber"_s, u"descricao=Venda"_s);
    addRow(program, u"produto"_s, u"produto=Café, qtde=3, custo=2,00"_s);
    addRow(program, u"compromisso"_s, u"Titulo=Entrega, data=2026/11/20"_s);
    addRow(program, u"bancario"_s,
           u"movimento=Depósito, origem=Caixa, destino=-, data=2026/11/14, valor=10,00, estatus=Concluído"_s);
    addRow(program, u"pagar"_s,
           u"estatus=Concluído, origem=Caixa, fornecedor=Luz do Vale, descricao=Luz, valor=30,00, moeda=R$, "
           "data=2026/11/14, vencimento=14/11/2026, produto=Café, qtde=1, pagamento=Pix"_s);
    addRow(program, u"receber"_s,
           u"estatus=Pendente, origem=Caixa, cliente=Ana, descricao=Venda, valor=50,00, moeda=R$, "
           u"data=2026/11/14, "
           "vencimento=2026/11/20, produto=Café, qtde=1, pagamento=Pix"_s);
}

} // namespace

class tst_relatorio : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { fill(m_program); }
    void everyReportHasSomethingToTell();
    void wrongUseIsTold_data();
    void wrongUseIsTold();
    void endingDecidesTheForm();
    void failureLeavesTheOldFile();

private:
    /// "exit code | what it said".
    QString run(const QString &command, const QString &database = {})
    {
        QProcess tool;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString &name :
             {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s, u"XDG_RUNTIME_DIR"_s})
            environment.remove(name);
        tool.setProcessEnvironment(environment);
        tool.setWorkingDirectory(m_program.file(u"."_s));
        tool.start(QStringLiteral(TAVARO_RELATORIO),
                   arguments(command) +
                       QStringList{u"--hoje"_s, u"2026-11-14"_s, u"--banco"_s,
                                   database.isEmpty() ? m_program.databaseFile() : database});
        if (!tool.waitForFinished(60'000))
            return tool.errorString();
        return QString::number(tool.exitCode()) + u" | "_s +
               QString::fromUtf8(tool.readAllStandardOutput() + tool.readAllStandardError()).trimmed();
    }
    QString file(const QString &name) { return m_program.file(name); }

    TestProgram m_program;
};

void tst_relatorio::everyReportHasSomethingToTell()
{
    using reportcatalog::Needs;
    const QHash<QString, QString> names{{u"extrato"_s, u"Caixa"_s},
                                        {u"fornecedor"_s, u"Luz do Vale"_s},
                                        {u"historico-fornecedor"_s, u"Luz do Vale"_s},
                                        {u"centro-de-custo"_s, u"Luz"_s},
                                        {u"centro-de-lucro"_s, u"Venda"_s},
                                        {u"pagamento-despesas"_s, u"Pix"_s},
                                        {u"pagamento-receitas"_s, u"Pix"_s}};
    for (const reportcatalog::Entry &entry : reportcatalog::all()) {
        QVERIFY(reportcatalog::find(entry.name) == &entry);
        reportcatalog::Request request{.today = QDate(2026, 11, 14)};
        if (entry.needs == Needs::Name || entry.needs == Needs::NameAndDates)
            request.name = names.value(entry.name, u"Ana"_s);
        if (entry.needs == Needs::Dates || entry.needs == Needs::NameAndDates)
            std::tie(request.first, request.last) = std::pair(QDate(2026, 11, 1), QDate(2026, 11, 30));
        QVERIFY2(!reportcatalog::problem(entry, request), qPrintable(entry.name));
        const auto report = entry.read(m_program.database(), request);
        QVERIFY2(report && !report->title.isEmpty(), qPrintable(entry.name));
    }
}

void tst_relatorio::wrongUseIsTold_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("told");
    const auto row = [](const char *command, const QString &told) {
        QTest::newRow(command) << QString::fromLatin1(command) << told;
    };
    row("", u"2 | Diga o nome de um relatório; --ajuda mostra todos."_s);
    row("contas --saida a.txt", u"2 | Diga o nome de um relatório; --ajuda mostra todos."_s);
    row("saldos", u"2 | Diga o arquivo de saída: --saida ARQUIVO."_s);
    row("saldos --saida a.txt --de 2026-11-01 --ate 2026-11-30",
        u"2 | O relatório \"saldos\" não tem datas a escolher."_s);
    row("extrato --saida a.txt", u"2 | O relatório \"extrato\" pede um nome: --nome NOME."_s);
    row("vendas --saida a.txt --de 2026-11-31 --ate 2026-12-01",
        u"2 | A data --de não existe: \"2026-11-31\". Escreva aaaa-mm-dd ou dd/mm/aaaa."_s);
    row("vendas --saida a.txt --de 2026-11-01", u"2 | Dê as duas datas, --de e --ate, ou nenhuma."_s);
    row("vendas --saida a.txt --de 02/11/2026 --ate 01/11/2026",
        u"2 | A data --de vem depois da data --ate."_s);
    row("vendas --saida a.txt --de 2025-01-01 --ate 2025-01-31", u"3 | Não há dados para este relatório."_s);
    row("saldos --saida a.doc",
        u"1 | O arquivo de saída deve terminar em .txt, .html, .csv, .xlsx ou .pdf."_s);
    row("extrato --nome D'Ávila --saida a.txt", u"1 | "_s);
}

void tst_relatorio::wrongUseIsTold()
{
    QFETCH(const QString, command);
    QFETCH(const QString, told);
    const QString said = run(command);
    QVERIFY2(said.startsWith(told), qPrintable(said));
    QVERIFY(!QFile::exists(file(u"a.txt"_s)));
}

void tst_relatorio::endingDecidesTheForm()
{
    const QString command = u"cliente --nome Ana --de 2026-11-01 --ate 30/11/2026 --saida ana.%1"_s;
    for (const QString &ending : {u"txt"_s, u"html"_s, u"csv"_s, u"xlsx"_s, u"pdf"_s}) {
        QCOMPARE(run(command.arg(ending)), u"0 | "_s);
        QVERIFY(QFile::exists(file(u"ana."_s + ending)));
    }
    QVERIFY(contentsOf(file(u"ana.txt"_s)).contains("CLIENTE - RECEITAS"));
    QVERIFY(contentsOf(file(u"ana.csv"_s)).contains(";50,00;"));
    QVERIFY(contentsOf(file(u"ana.html"_s)).contains("<td"));
    QVERIFY(contentsOf(file(u"ana.xlsx"_s)).startsWith("PK"));
    QVERIFY(pdfText(file(u"ana.pdf"_s)).contains(u"Venda"_s));
}

void tst_relatorio::failureLeavesTheOldFile()
{
    QFile old(file(u"velho.txt"_s));
    QVERIFY(old.open(QIODevice::WriteOnly) && old.write("velho") == 5);
    old.close();
    QVERIFY(run(u"saldos --saida velho.txt"_s, file(u"nenhum.qorvex"_s))
                .startsWith(u"1 | O arquivo do banco de dados"_s));
    QCOMPARE(contentsOf(file(u"velho.txt"_s)), QByteArray("velho"));
    QCOMPARE(run(u"saldos --saida velho.txt"_s), u"0 | "_s);
    QVERIFY(contentsOf(file(u"velho.txt"_s)).contains("R$ 80,00"));
    QVERIFY(run(u"saldos --saida /nenhuma/pasta/a.txt"_s).startsWith(u"1 | "_s));
}

QTEST_MAIN(tst_relatorio)
#include "tst_relatorio.moc"
