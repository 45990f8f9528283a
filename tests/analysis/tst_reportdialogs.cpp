#include "analysis/dialogreports.h"
#include "analysis/frmconfrelatorio.h"
#include "analysis/frmconfrelatorio2.h"
#include "analysis/frmgeradorret.h"
#include "analysis/integratedreport.h"
#include "reports/reporttext.h"
#include "support/shop.h"

#include <QBuffer>
#include <QListWidget>
#include <QRegularExpression>

using namespace Qt::StringLiterals;
using dialogreports::Choice;
using dialogreports::Kind;
using integratedreport::Status;

namespace {

const QDate first(2026, 1, 1), last(2026, 1, 31);

/// A few rows of everything.
struct SmallBusiness : Shop
{
    SmallBusiness()
    {
        for (
            const QString &sql :
            {u"insert into banco (banco) values ('Caixa')"_s,
             u"insert into fornecedor (nome) values ('Ana')"_s,

             u"insert into cliente (nome) values ('Bia')"_s,
             u"insert into pagar (data, descricao, documento, fornecedor, moeda, valor, vencimento, estatus, "
             u"origem, informacoes, produto, qtde, pagamento) values ('2026/11/02', 'Aluguel', 'NF 1', "
             u"'Ana', 'R$', '1000,50', "
             u"'2026/11/10', 'Pendente', 'Caixa', 'x', 'Café', 2, 'Dinheiro')"_s,
             u"insert into pagar (data, descricao, documento, fornecedor, moeda, valor, vencimento, estatus, "
             u"origem, informacoes, produto, qtde, pagamento) values ('2026/11/03', 'Luz', '2', 'Ana', 'R$', "
             u"'200', "
             u"'2026/11/11', 'Concluído', 'Caixa', 'y', '-', 0, 'Cheque')"_s,
             u"insert into receber (data, descricao, documento, cliente, moeda, valor, vencimento, estatus, "
             u"origem, informacoes, produto, qtde, custo) values ('2026/11/04', 'Venda', '<b>', 'Bia', 'R$', "
             u"'3000', "
             u"'2026/11/12', 'Concluído', 'Caixa', 'z', 'Café', 3, '2,50')"_s,
             u"insert into bancario (data, movimento, origem, destino, valor, estatus, informacoes) values "
             u"('2026/11/05', 'Transferência entre contas', 'Caixa', 'Cofre', '70', 'Concluído', '')"_s})
            program.run(sql);
    }
};

integratedreport::SectionChoices narrow(int names)
{
    integratedreport::SectionChoices choices;
    choices.allDates = false;
    choices.first = first;
    choices.last = last;
    choices.status = Status::Settled;
    choices.byDueDate = true;
    for (int i = 0; i < names; ++i)
        choices.names[std::size_t(i)] = {false, {u"A"_s, u"B"_s}};
    return choices;
}

} // namespace

class tst_reportdialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void queriesOfTheSections_data();
    void queriesOfTheSections();
    void queriesOfThePages_data();
    void queriesOfThePages();
    void queriesOfTheCommands();
    void wholeIntegratedReport();
    void generatorOnTheScreen();
    void payablesPageOnTheScreen();
    void stockAndNamesOnTheScreen();
};

void tst_reportdialogs::queriesOfTheSections_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<bool>("everything");
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QString>("header");
    QTest::newRow("payables, all")
        << 0 << true
        << u"SELECT * FROM [pagar] WHERE [data] like ('%%') AND ([fornecedor] like ('%%')) AND ([origem] "
           u"like "
           u"('%%')) AND ([descricao] like ('%%')) AND [estatus] like ('%%')"_s
        << u"Datas incluídas: Todas, não filtrada.\r\nFornecedores Incluídos: Todos, não filtrado.\r\nConta "
           u"origem "
           u"incluídas: Todas, não filtrada.\r\nCentro de custos incluídos: Todos, não filtrado.\r\nEstatus: "
           u"Pendentes e Conluídos\r\n"_s;
    QTest::newRow("payables, narrow")
        << 0 << false
        << u"SELECT * FROM [pagar] WHERE [vencimento] BETWEEN ('2026/01/01') AND ('2026/01/31') AND "
           u"([fornecedor] "
           u"like ('A') OR [fornecedor] like ('B')) AND ([origem] like ('A') OR [origem] like ('B')) AND "
           u"([descricao] like ('A') OR [descricao] like ('B')) AND [estatus] like ('Concluído')"_s
        << u"Datas incluídas: 01/01/2026 à 31/01/2026\r\nFornecedores Incluídos: A, B\r\nConta origem "
           u"incluídas: "
           u"A, B\r\nCentro de custos incluídos: A, B\r\nEstatus: Apenas conluídos\r\n"_s;
    QTest::newRow("receivables, all")
        << 1 << true
        << u"SELECT * FROM [receber] WHERE [data] like ('%%') AND ([cliente] like ('%%')) AND ([origem] like "
           u"('%%')) AND ([descricao] like ('%%')) AND [estatus] like ('%%')"_s
        << u"Datas incluídas: Todas, não filtrada.\r\nclientes Incluídos: Todos, não filtrado.\r\nConta "
           u"origem "
           u"incluídas: Todas, não filtrada.\r\nCentro de lucros incluídos: Todos, não filtrado.\r\nEstatus: "
           u"Pendentes e Conluídos\r\n"_s;
    QTest::newRow("receivables, narrow")
        << 1 << false
        << u"SELECT * FROM [receber] WHERE [vencimento] BETWEEN ('2026/01/01') AND ('2026/01/31') AND "
           u"([cliente] "
           u"like ('A') OR [cliente] like ('B')) AND ([origem] like ('A') OR [origem] like ('B')) AND "
           u"([descricao] "
           u"like ('A') OR [descricao] like ('B')) AND [estatus] like ('Conluído')"_s
        << u"Datas incluídas: 01/01/2026 à 31/01/2026\r\nClientes Incluídos: A, B\r\nConta origem incluídas: "
           u"A, "
           u"B\r\nCentro de lucros incluídos: A, B\r\nEstatus: Apenas conluídos\r\n"_s;
    QTest::newRow("movements, all")
        << 2 << true
        << u"SELECT * FROM [bancario] WHERE [data] like '%%'  AND ([origem] like '%%') AND ([destino] like "
           u"('%%')) "
           u"AND [estatus] like '%%'"_s
        << u"Datas incluídas: Todas, não filtrada.\r\nConta origem incluídas: Todas, não filtrada.\r\nConta "
           u"destino "
           u"incluídas: Todas, não filtrado.\r\nEstatus: Pendentes e Conluídos\r\n"_s;
    QTest::newRow("movements, narrow")
        << 2 << false
        << u"SELECT * FROM [bancario] WHERE [data] BETWEEN '2026/01/01' AND '2026/01/31'  AND ([origem] like "
           u"'A' OR "
           u"[origem] like 'B') AND ([destino] like ('A') OR [destino] like ('B')) AND [estatus] like 'Conluído'"_s
        << u"Datas incluídas: 01/01/2026 à 31/01/2026\r\nConta origem incluídas: A, B\r\nContas destino "
           u"incluídas: "
           u"A, B\r\nEstatus: Apenas conluídos\r\n"_s;
}

void tst_reportdialogs::queriesOfTheSections()
{
    QFETCH(int, section);
    QFETCH(bool, everything);
    const integratedreport::Section &asked = integratedreport::section(section);
    const auto query = integratedreport::query(asked, everything ? integratedreport::SectionChoices()
                                                                 : narrow(int(asked.names.size())));
    QTEST(query.sql, "sql");
    QTEST(query.header, "header");
    TestProgram program;
    program.database().prepare(query.sql);
}

void tst_reportdialogs::queriesOfThePages_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("everything");
    QTest::addColumn<QString>("sql");
    const auto row = [](const char *name, Kind kind, bool everything, const QString &sql) {
        QTest::newRow(name) << int(kind) << everything << sql;
    };
    row("payables, all", Kind::Payables, true,
        u"Select * from pagar  WHERE estatus like ('%%') AND fornecedor like('%%') AND origem like('%%') AND "
        u"descricao like('%%') order by Data ASC"_s);
    row("payables", Kind::Payables, false,
        u"Select * from pagar WHERE Vencimento BETWEEN '2026/01/01' AND '2026/01/31' AND estatus like "
        u"('Pendente') "
        u"AND fornecedor like('A') AND origem like('B') AND descricao like('C') order by valor DESC"_s);
    row("receivables, all", Kind::Receivables, true,
        u"Select * from receber  WHERE (estatus like '%%') AND (cliente like '%%') AND (origem like '%%') "
        u"AND "
        u"(descricao like '%%') order by data ASC"_s);
    row("receivables", Kind::Receivables, false,
        u"Select * from receber WHERE Vencimento BETWEEN '2026/01/01' AND '2026/01/31' AND (estatus like "
        u"'Pendente') AND (cliente like 'A') AND (origem like 'B') AND (descricao like 'C') order by valor DESC"_s);
    row("movements", Kind::Movements, false,
        u"Select * from bancario WHERE Data BETWEEN '2026/01/01' AND '2026/01/31' AND estatus like "
        u"('Pendente') "
        u"AND origem like('A') AND destino like('B') order by valor DESC"_s);
    row("purchases", Kind::Purchases, false,
        u"Select * from pagar WHERE Vencimento BETWEEN '2026/01/01' AND '2026/01/31' AND estatus like "
        u"('Pendente') "
        u"AND fornecedor like('A') AND produto like('B') AND [produto] <> '-' order by qtde DESC"_s);
    row("sales, all", Kind::Sales, true,
        u"Select * from receber  WHERE estatus like ('%%') AND cliente like('%%') AND produto like('%%') AND "
        u"[produto] <> '-' order by Data ASC"_s);
}

void tst_reportdialogs::queriesOfThePages()
{
    QFETCH(int, kind);
    QFETCH(bool, everything);
    const dialogreports::Page &page = dialogreports::page(Kind(kind));
    dialogreports::Choices choices{.datesWanted = !everything, .byDueDate = !everything};
    if (!everything) {
        choices.first = first;
        choices.last = last;
        choices.status = u"Pendente"_s;
        choices.names = {u"A"_s, u"B"_s, u"C"_s};
        choices.ordering = int(page.orderings.size()) - 1;
        choices.descending = true;
    }
    const QString sql = dialogreports::query(page, choices);
    QTEST(sql, "sql");
    TestProgram program;
    program.database().prepare(sql);
    QCOMPARE(
        dialogreports::filterText(choices),
        everything
            ? u"                      Obs. Este relatório não foi filtrado por data."_s
            : u"Relatório gerado entre os vencimentos de 01/01/2026 e 31/01/2026 - Período de 30 dias."_s);
}

void tst_reportdialogs::queriesOfTheCommands()
{
    const dialogreports::Choices choices{.first = first, .last = last, .names = {u"A"_s}};
    QStringList asked;
    TestProgram program;
    for (int i = 0; i <= int(Choice::PaymentReceived); ++i) {
        const dialogreports::Command &command = dialogreports::command(Choice(i));
        QString sql = dialogreports::query(command, choices);
        program.database().prepare(sql);
        asked << command.title + u": "_s +
                     sql.replace(u" BETWEEN '2026/01/01' AND '2026/01/31' AND "_s, u" … "_s);
    }
    QCOMPARE(asked.join(u'\n'),
             u"CLIENTE - RECEITAS: Select * from receber WHERE data … cliente like 'A'\n"
             u"FORNECEDOR - DESPESAS: Select * from pagar WHERE data … fornecedor like 'A'\n"
             u"CENTRO DE CUSTO: Select * from pagar WHERE data … descricao like 'A'\n"
             u"CENTRO DE LUCRO: Select * from receber WHERE data … descricao like 'A'\n"
             u"FORMAS DE PAGAMENTO: select * from pagar WHERE data … pagamento like 'A'\n"
             u"FORMAS DE PAGAMENTO: select * from receber WHERE data … pagamento like 'A'"_s);
}

void tst_reportdialogs::wholeIntegratedReport()
{
    SmallBusiness shop;
    integratedreport::Choices choices;
    choices[1].status = Status::Settled;
    const auto result = integratedreport::read(shop.program.database(), choices);
    QBuffer text, page;
    text.open(QIODevice::WriteOnly);
    page.open(QIODevice::WriteOnly);
    const Report report = integratedreport::saved(result, result.table);
    reporttext::writeText(text, report, nullptr);
    reporttext::writeHtml(page, report, nullptr);
    const QString written = QString::fromUtf8(text.data()).section(u"\nGerado "_s, 0, 0);
    QString rows = written.section(u'\n', 7, 10);
    rows.replace(QRegularExpression(u" {2,}"_s), u" | "_s);
    QCOMPARE(rows,
             u"02/11/2026 | Aluguel | NF 1 | Ana | R$ 1.000,50 | 10/11/2026 | Pendente | Caixa | DÉBITO | \n"
             u"03/11/2026 | Luz | 2 | Ana | R$ 200,00 | 11/11/2026 | Concluído | Caixa | DÉBITO | \n"
             u"05/11/2026 | Transferência entre contas | - | - | 70,00 | - | Concluído | Caixa / Cofre | "
             u"Movimento Bancário | \n"_s);
    QCOMPARE(written.section(u'\n', 0, 3),
             u"RELATÓRIO INTEGRADO  - Despesas, Receitas e Movimento Bancário\n\n"
             u"Tavaro organizando a sua vida financeira!\n"_s);
    const QString sections =
        u"Contas a pagar:\nDatas incluídas: Todas, não filtrada.\nFornecedores Incluídos: Todos, não "
        u"filtrado.\n"
        u"Conta origem incluídas: Todas, não filtrada.\nCentro de custos incluídos: Todos, não filtrado.\n"
        u"Estatus: Pendentes e Conluídos\nTotal de despesa: R$ 1.200,50\n\n"
        u"Contas a receber:\nDatas incluídas: Todas, não filtrada.\nclientes Incluídos: Todos, não "
        u"filtrado.\n"
        u"Conta origem incluídas: Todas, não filtrada.\nCentro de lucros incluídos: Todos, não filtrado.\n"
        u"Estatus: Apenas conluídos\nTotal de receitas: R$ 0,00\n\n"
        u"Movimento bancário:\nDatas incluídas: Todas, não filtrada.\n"
        u"Conta origem incluídas: Todas, não filtrada.\nConta destino incluídas: Todas, não filtrado.\n"
        u"Estatus: Pendentes e Conluídos\nTotal bancário: R$ 70,00\n\n"
        u"Dados financeiros:\nTotal de receitas: R$ 0,00\nTotal de despesas: R$ 1.200,50\n"
        u"Saldo (receitas - despesas): R$ -1.200,50\nTotal do movimento bancário: R$ 70,00\n"_s;
    QCOMPARE(written.section(u'\n', 11), sections);
    const QString html = QString::fromUtf8(page.data());
    QVERIFY(html.contains(u"<title>RELATÓRIO INTEGRADO - Despesas, Receitas e Movimento Bancário</title>"_s));
    QVERIFY(html.contains(
        u"Total bancário: R$ 70,00<br><br><b>DADOS FINANCEIROS</b><BR>Total de receitas: R$ 0,00<br>"_s));
}

void tst_reportdialogs::generatorOnTheScreen()
{
    SmallBusiness shop;
    shop.open();
    frmGeradorRet::open(shop.window.get());
    shop.boxes.input(u"Ana"_s);
    shop.press(u"cmdfornecedor"_s);
    QVERIFY(!shop.find<QCheckBox>(u"chkfornecedor"_s)->isChecked());
    shop.find<QCheckBox>(u"chkincluirr"_s)->setChecked(false);
    shop.find<QRadioButton>(u"optpendentep"_s)->setChecked(true);
    shop.told();
    shop.press(u"cmdnatela"_s);
    QCOMPARE(shop.list(u"lstrelatorio"_s)->rowCount(), 2);
    QVERIFY(
        shop.find<QPlainTextEdit>(u"txtpagar"_s)->toPlainText().contains(u"Fornecedores Incluídos: Ana\n"_s));
    QCOMPARE(shop.find<QPlainTextEdit>(u"txtreceber"_s)->toPlainText(),
             u"Contas a receber - créditos, não incluído no relatório!"_s);
    shop.screen(u"frmRelatorioInt"_s)->close();

    shop.find<QListWidget>(u"lstfornecedor"_s)->addItem(u"D'Ávila"_s);
    shop.press(u"cmdnatela"_s);
    QVERIFY(shop.told().contains(u"apóstrofo"_s));
    QVERIFY(!shop.screen(u"frmRelatorioInt"_s));
}

void tst_reportdialogs::payablesPageOnTheScreen()
{
    SmallBusiness shop;
    shop.open();
    shop.command(u"mnuretpagar"_s);
    QCOMPARE(shop.text(u"cbodata1p"_s) + shop.text(u"cbodata2p"_s), u"01/11/202630/11/2026"_s);
    shop.press(u"cmdnatelap"_s);
    QCOMPARE(shop.list(u"lstrelatorio"_s)->rowCount(), 2);
    QCOMPARE(shop.label(u"lbltitulo"_s), u"CONTAS A PAGAR"_s);
    QCOMPARE(shop.label(u"lblfiltro"_s),
             u"Relatório gerado entre as datas de 01/11/2026 e 30/11/2026 - Período de 29 dias."_s);
    QCOMPARE(
        shop.find<QPlainTextEdit>(u"txtestatisticas"_s)->toPlainText(),
        u"Total de cadastros no período: 2 (entre 01/11/2026 e 30/11/2026)\nTotal de despesas: R$ 1.200,50 - "
        u"Total pago: R$ 200,00 - Total pendente: R$ 1.000,50"_s);
    shop.screen(u"frmRelatorio"_s)->close();

    shop.type(u"cbodata1p"_s, u"01/12/2026"_s);
    shop.press(u"cmdnatelap"_s);
    QCOMPARE(shop.told(), u"information | Info | A pesquisa não retornou resultados"_s);
    shop.find<QLineEdit>(u"cbodata1p"_s)->clear();
    shop.press(u"cmdnatelap"_s);
    QCOMPARE(shop.told(),
             u"exclamation | Erro | Selecione as que deseja filtrar(data de inicio e data final)."_s);
}

void tst_reportdialogs::stockAndNamesOnTheScreen()
{
    SmallBusiness shop;
    for (const auto &[kind, totals] :
         {std::pair(Kind::Purchases, u"Total: R$ 1.000,50 - Total concluído: R$ 0,00 - Total pendente: R$ "
                                     u"1.000,50 - Quantidade de produtos: 2"_s),
          std::pair(Kind::Sales,
                    u"Total: R$ 3.000,00 - Total concluído: R$ 3.000,00 - Total pendente: R$ 0,00 - "
                    u"Quantidade de produtos: 3"_s)}) {
        const auto report =
            dialogreports::read(shop.program.database(), dialogreports::page(kind), {.datesWanted = false});
        QCOMPARE(report->statistics.section(u"\r\n"_s, 1), totals);
        QCOMPARE(report->tables[0]->cell(0, 11), kind == Kind::Sales ? u"2,50"_s : QString());
    }
    shop.open();
    shop.command(u"mnuretclientes"_s);
    shop.press(u"cmdcliente"_s);
    QCOMPARE(shop.told(), u"exclamation | Erro | O cliente deve ser selecionado!"_s);
    shop.choose(u"cbocliente"_s, u"Bia"_s);
    shop.press(u"cmdcliente"_s);
    QVERIFY(shop.find<QPlainTextEdit>(u"txtestatisticas"_s)
                ->toPlainText()
                .endsWith(
                    u"Total de receitas: R$ 3.000,00 - Total pago: R$ 3.000,00 - Total pendente: R$ 0,00"_s));
}

QTEST_MAIN(tst_reportdialogs)
#include "tst_reportdialogs.moc"
