#include "analysis/chartpage.h"
#include "analysis/chartquery.h"
#include "analysis/frmconfgrafico.h"
#include "analysis/frmgrafico.h"
#include "analysis/statisticscommands.h"
#include "support/answers.h"
#include "support/ledger.h"
#include "support/paper.h"
#include "support/shop.h"

#include <QImage>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

void addBusiness(TestProgram &program)
{
    addRow(program, u"pagar"_s,
           u"data=2026/11/14, descricao=Luz, fornecedor=Ana, origem=Caixa, estatus=Pendente, valor=1,00"_s);
    addRow(
        program, u"pagar"_s,
        u"data=2026/10/14, descricao=Luz, fornecedor=Mariana, origem=Caixa, estatus=CONCLUÍDO, valor=20,00"_s);
    addRow(program, u"pagar"_s,
           u"data=2026/10/14, descricao=Luz, fornecedor=Bia, origem=Banco, estatus=Conluído, valor=300,00"_s);
    addRow(
        program, u"receber"_s,
        u"data=2026/11/14, descricao=Venda, cliente=Ana, origem=Caixa, estatus=Concluído, valor=4.000,00"_s);
    addRow(program, u"bancario"_s,
           u"data=2026/11/14, origem=Caixa, destino=Banco, estatus=Concluído, valor=70,00"_s);
    for (const QString &name : {u"Ana"_s, u"D'água"_s})
        addRow(program, u"fornecedor"_s, u"nome="_s + name);
    addRow(program, u"banco"_s, u"banco=Caixa"_s);
}

QString statistics(const std::optional<ChartData> &chart)
{
    QString text = chart->caption + u'\n' + chart->title + u'\n' + chart->heading;
    for (const QString &line : chart->lines)
        text += u'\n' + line;
    for (const ChartSeries &series : chart->series)
        text += u'\n' + series.name + u" = "_s + series.values[0].grouped();
    return text;
}

QString ticksOf(const QString &amounts)
{
    ChartData chart{.categories = {u"Total"_s}};
    for (const QString &amount : amounts.split(u' '))
        chart.series.push_back({amount, {Sum(*Money::parse(amount))}});
    QStringList texts;
    for (const Money tick : chartdata::ticks(chart))
        texts << chartdata::tickText(tick).remove(u"R$ "_s);
    return texts.join(u' ');
}

} // namespace

class tst_charts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void queries();
    void figuresAndWords();
    void ticksAreRoundAndHaveRoom();
    void optionsScreen();
    void chartOnScreenPaperAndInFiles();
};

void tst_charts::queries()
{
    const ChartFilter all;
    const ChartFilter some{.byDate = true,
                           .first = u"2026/11/01"_s,
                           .last = u"2026/11/30"_s,
                           .status = u"Pendente"_s,
                           .account = u"Caixa"_s,
                           .contact = u"Ana"_s,
                           .centre = u"Luz"_s,
                           .destination = u"Banco"_s};
    const QStringList texts{
        chartquery::query(payableFigures(), all), chartquery::query(receivableFigures(), some),
        chartquery::query(bankFigures(), all),    chartquery::query(bankFigures(), some),
        chartquery::opposed(payable(), some),     chartquery::opposed(receivable(), all)};
    QCOMPARE(
        texts.join(u"|\n"),
        uR"(Select * from pagar  WHERE estatus like ('%%') AND fornecedor like('%%') AND origem like('%%') AND descricao like('%%')  |
Select * from receber WHERE Data BETWEEN '2026/11/01' AND '2026/11/30'  AND estatus like ('%Pendente%') AND cliente like('%Ana%') AND origem like('%Caixa%') AND descricao like('%Luz%')  |
Select * from bancario  WHERE estatus like ('%%') AND origem like('%%') AND destino like('%%') |
Select * from bancario WHERE Data BETWEEN '2026/11/01' AND '2026/11/30'  AND estatus like ('%Pendente%') AND origem like('%Caixa%') AND destino like('%Banco%') |
Select * from pagar WHERE Data BETWEEN '2026/11/01' AND '2026/11/30'  AND estatus like ('%Pendente%') AND origem like('%Caixa%') |
Select * from receber  WHERE estatus like ('%%') AND origem like('%%') )"_s);
}

void tst_charts::figuresAndWords()
{
    TestProgram program;
    addBusiness(program);
    Connection &connection = program.database();
    QCOMPARE(statistics(chartquery::chart(connection, payableFigures(), {}, nullptr)),
             u"Gráfico de contas a pagar(personalizado)\nGráfico de contas a pagar - despesas\n"
             "Estatistica de contas a pagar\n"
             "Total de despesas cadastradas: 3 cadastros\nTotal de despesas: R$ 321,00\n"
             "Qtd de despesas pagas cadastradas: 1 cadastros\nTotal de despesas pagas: R$ 20,00\n"
             "Qtd de despesas pendentes cadastradas: 1 cadastros\nTotal de despesas pendentes: R$ 1,00\n"
             "Total de despesas = 321,00\nDespesas pagas = 20,00\nDespesas pendentes = 1,00"_s);
    const QString found = statistics(
        chartquery::chart(connection, payableFigures(), {.account = u"aix"_s, .contact = u"Ana"_s}, nullptr));
    QVERIFY(found.contains(u"Total de despesas: R$ 21,00\n"_s)); // Mariana's, too
    QCOMPARE(statistics(chartquery::chart(connection, bankFigures(), {}, nullptr)).section(u'\n', 0, 4),
             u"Gráfico de movimento bancário(personalizado)\nGráfico de movimento bancário\n"
             "Estatistica de contas a receber\nTotal de cadastradas: 1 cadastros\nValor Total: R$ 70,00"_s);
    QCOMPARE(statistics(chartquery::bothSides(connection, {}, nullptr)),
             u"Gráfico de despesas x receitas(personalizado)\nGráfico de despesas x receitas\n"
             "Estatistica de despesas x receitas\nTotal Geral: R$ 4.321,00\nTotal de receitas: R$ 4.000,00\n"
             "Total de despesas: R$ 321,00\nDiferença entre despesas x receitas: R$ 3.679,00\n"
             "Despesas = 321,00\nReceitas = 4.000,00"_s);
    QCOMPARE(statistics(figures::chart(connection, receivableFigures(), ViewPeriod::Year, QDate(2026, 11, 14),
                                       nullptr))
                 .section(u'\n', 0, 2),
             u"Gráfico de movimento do ano (lucros)\nMovimento do ano (lucros)\n"
             "Estatistica de movimento anual(lucros)"_s);
    QVERIFY(!chartquery::chart(connection, bankFigures(), {.status = u"Pendente"_s}, nullptr));
}

void tst_charts::ticksAreRoundAndHaveRoom()
{
    checkAnswers(u"0 -> 0 0,20 0,40 0,60 0,80 1 1,20\n"
                 "0,01 0,02 -> 0 0,01 0,02 0,03\n"
                 "100 40 60 -> 0 20 40 60 80 100 120\n"
                 "66985,40 -> 0 20.000 40.000 60.000 80.000\n"
                 "-50 100 -> -75 -50 -25 0 25 50 75 100 125\n"
                 "-30 -> -35 -30 -25 -20 -15 -10 -5 0\n"
                 "900000000000000 -> 0 50.000.000.000.000 100.000.000.000.000 150.000.000.000.000 "
                 "200.000.000.000.000 250.000.000.000.000"_s,
                 ticksOf);
    Sum vast(*Money::parse(u"-900000000000000"_s));
    vast += vast; // beyond what is stored
    QCOMPARE(chartdata::clamped(vast), -chartdata::clamped(Sum() - vast));
    QVERIFY(chartdata::clamped(vast).isNegative());
}

void tst_charts::optionsScreen()
{
    Shop shop;
    addBusiness(shop.program);
    shop.open();
    frmConfGrafico::open(frmConfGrafico::Payables, shop.window.get());
    shop.find<QCheckBox>(u"chkdatap"_s)->setChecked(true);
    shop.press(u"cmdnatelap"_s);
    QCOMPARE(shop.told(),
             u"exclamation | Erro | Selecione as que deseja filtrar(data de inicio e data final)."_s);
    shop.find<QCheckBox>(u"chkdatap"_s)->setChecked(false);
    shop.choose(u"cbocontatop"_s, u"D'água"_s);
    shop.press(u"cmdnatelap"_s);
    QVERIFY(shop.told().contains(u"apóstrofo"_s));
    QVERIFY(!shop.screen(u"frmGrafico"_s));
    shop.choose(u"cbocontatop"_s, u"Ana"_s);
    shop.fill(u"txtinicialp=01/11/2026, txtfinalp=30/11/2026"_s);
    shop.find<QCheckBox>(u"chkdatap"_s)->setChecked(true);
    shop.press(u"cmdnatelap"_s);
    QCOMPARE(shop.find<QPlainTextEdit>(u"txtestatisticas"_s)->toPlainText().section(u'\n', 0, 1),
             u"Total de despesas cadastradas: 1 cadastros\nTotal de despesas: R$ 1,00"_s);
    QCOMPARE(shop.screen(u"frmGrafico"_s)->windowTitle(), u"Gráfico de contas a pagar(personalizado)"_s);
    shop.screen(u"frmGrafico"_s)->close();

    auto *tabs = shop.find<QTabWidget>(u"xtab"_s);
    for (const auto &[page, suffix, command] :
         {std::tuple(frmConfGrafico::Receivables, u"r"_s, u"cmdnatelar"_s),
          {frmConfGrafico::Movements, u"b"_s, u"cmdnatelab"_s},
          {frmConfGrafico::BothSides, u"d"_s, u"cmdgradr"_s}}) {
        tabs->setCurrentIndex(page);
        shop.fill(u"txtinicial%1=01/01/2020, txtfinal%1=31/01/2020"_s.arg(suffix));
        shop.find<QCheckBox>(u"chkdata"_s + suffix)->setChecked(true);
        shop.press(command);
    }
    QCOMPARE(shop.told(), u"information | Info | A pesquisa não retonou resultados\n"
                          "information | Info | A pesquisa não retornou resultados\n"
                          "information | Info | A pesquisa não retonou resultados"_s);
}

void tst_charts::chartOnScreenPaperAndInFiles()
{
    Shop shop;
    addBusiness(shop.program);
    shop.open();
    statisticscommands::chart(payableFigures(), ViewPeriod::Year, shop.window.get());
    const QString pdf = shop.program.file(u"grafico.pdf"_s), svg = shop.program.file(u"grafico.svg"_s),
                  png = shop.program.file(u"grafico.png"_s);
    shop.boxes.drive([&](QDialog &pages) {
        shop.boxes.chooseFile(pdf);
        QTest::mouseClick(pages.findChild<QPushButton *>(u"cmdpdf"_s), Qt::LeftButton);
        pages.reject();
    });
    shop.press(u"cmdimprimir"_s);
    const QString text = pdfText(pdf);
    QStringList lines = text.split(u'\n', Qt::SkipEmptyParts);
    const QString rule(77, u'-');
    lines = lines.mid(lines.indexOf(rule));
    for (QString &line : lines)
        line = line.trimmed();
    QCOMPARE(
        lines.join(u'\n').trimmed(),
        rule + u"\nEstatísticas\n"_s + rule +
            u"\nTotal de despesas cadastradas: 3 cadastros\nTotal de despesas: R$ 321,00\n"
            "Qtd de despesas pagas cadastradas: 1 cadastros\nTotal de despesas pagas: R$ 20,00\n"
            "Qtd de despesas pendentes cadastradas: 1 cadastros\nTotal de despesas pendentes: R$ 1,00\n"_s +
            rule +
            u"\nGerado sábado, 14 de novembro de 2026 às 10:00:00\n"
            "© Tavaro - controle financeiro e de estoque"_s);

    shop.boxes.chooseFile(svg);
    shop.press(u"cmdsvg"_s);
    shop.boxes.chooseFile(png);
    shop.press(u"cmdpng"_s);
    const QString drawing = QString::fromUtf8(contentsOf(svg));
    for (const QString &written : {text, drawing}) // letters, not dots
        for (const QString &part : {u"Movimento anual (despesas)"_s, u"R$ 321,00"_s, u"R$ 20,00"_s,
                                    u"R$ 1,00"_s, u"Despesas pendentes"_s, u"R$ 400"_s})
            QVERIFY2(written.contains(part), qPrintable(part));
    QVERIFY(!drawing.contains(u"<image"_s));
    const QImage picture(png);
    QVERIFY(picture.width() > 1000);
    QSet<QRgb> colours;
    for (int x = 0; x < picture.width(); x += 5)
        for (int y = 0; y < picture.height(); y += 5)
            colours << picture.pixel(x, y);
    QVERIFY(colours.contains(qRgb(0x00, 0x72, 0xB2)) && colours.contains(qRgb(0xE6, 0x9F, 0x00)));
}

QTEST_MAIN(tst_charts)
#include "tst_charts.moc"
