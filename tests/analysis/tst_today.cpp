#include "analysis/today.h"
#include "analysis/todaypane.h"
#include "data/dates.h"
#include "settings/database.h"
#include "settings/settings.h"
#include "support/ledger.h"
#include "support/shop.h"
#include "widgets/rowsigns.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QDate today(2026, 11, 14);

/// "pagar vencimento estatus valor", a line each.
void addEntries(TestProgram &program, const QString &lines)
{
    for (const QString &line : lines.split(u'\n')) {
        const QStringList words = line.split(u' ');
        addRow(
            program, words[0],
            u"descricao=%1, vencimento=%2, estatus=%3, valor=%4, origem=Caixa, data=2026/11/01, moeda=R$, %5=Ana"_s
                .arg(words[1].mid(5), words[1], words[2], words[3],
                     words[0] == u"pagar" ? u"fornecedor" : u"cliente"));
    }
}

const QString entries = u"pagar 2026/10/31 Pendente 10,00\n"
                        "receber 2026/11/13 Pendente 20,00\n"
                        "pagar 2026/11/14 Pendente 300,00\n"
                        "pagar 2026/11/21 Pendente 40,00\n"
                        "receber 2026/11/22 Pendente 50,00\n"
                        "receber 2027/02/12 Pendente 1.000,00\n"
                        "receber 2027/02/13 Pendente 9.000,00\n"
                        "pagar 14/11/2026 Concluído 5,00\n"
                        "receber 01/11/2026 Concluído 105,50\n"
                        "pagar 31/10/2026 Concluído 7,00\n"
                        "receber 2026/09/30 Concluído 9,00\n"
                        "pagar - Pendente 9,00"_s;

TodayFacts read()
{
    TodayLoad load(openDatabase(), today);
    while (!load.run(QDeadlineTimer(0))) {
    }
    return load.take();
}

double luminance(const QColor &colour)
{
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

QString signsOf(Shop &shop, const QString &list)
{
    const QAbstractItemModel &model = *shop.list(list)->model();
    QStringList signs;
    for (int row = 0; row < model.rowCount(); ++row)
        for (int column = 0; column < model.columnCount(); ++column)
            if (const QString word = model.index(row, column).data(Qt::AccessibleDescriptionRole).toString();
                !word.isEmpty())
                signs << QString::number(row) + u' ' + word;
    return signs.join(u", "_s);
}

} // namespace

class tst_today : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void factsComeFromTheEntries();
    void cashRunsOutOnTheRightDay();
    void pageIsFirstAndFollows();
    void settlingStaysOnThePage();
    void emptyFileLeadsToTheFirstEntry();
    void rowsBearSigns();
    void signsCanBeRead();
};

void tst_today::factsComeFromTheEntries()
{
    TestProgram program;
    addEntries(program, entries);
    const TodayFacts facts = read();
    QCOMPARE(linesOf(*today::summary(facts)), u"▲ Vencidas | 1  –  R$ 10,00 | 1  –  R$ 20,00\n"
                                              "● Vencem hoje | 1  –  R$ 300,00 | -\n"
                                              "○ Próximos 7 dias | 1  –  R$ 40,00 | -\n"_s);
    QCOMPARE(linesOf(*today::months(facts)), u"Recebido | R$ 105,50 | R$ 0,00\n"
                                             "Pago | R$ 5,00 | R$ 7,00\n"
                                             "Resultado | R$ 100,50 | R$ -7,00\n"_s);
    QCOMPARE(linesOf(*facts.due), u"▲ vencida há 14 dias | 31/10/2026 | Pagar | R$ 10,00 | 10/31 | Ana\n"
                                  "▲ vencida há 1 dia | 13/11/2026 | Receber | R$ 20,00 | 11/13 | Ana\n"
                                  "● vence hoje | 14/11/2026 | Pagar | R$ 300,00 | 11/14 | Ana\n"
                                  "○ em 7 dias | 21/11/2026 | Pagar | R$ 40,00 | 11/21 | Ana\n"_s);
    QCOMPARE(facts.due->origin(1)->key, 1);
    QVERIFY(facts.due->origin(1)->subject == Subject::Receivables);
}

void tst_today::cashRunsOutOnTheRightDay()
{
    TestProgram program;
    addEntries(program, entries);
    const TodayFacts facts = read();
    const std::vector<Sum> cash = today::projection(facts, Decimal::fromInteger(310));
    QCOMPARE(int(cash.size()), 91);
    QCOMPARE(cash.front().inReais() + cash[7].inReais() + cash[8].inReais() + cash.back().inReais(),
             u"R$ 20,00R$ -20,00R$ 30,00R$ 1.030,00"_s);
    QCOMPARE(
        today::projectionText(facts, cash),
        u"▼ O caixa fica negativo em 21/11/2026 (R$ -20,00); o menor saldo é R$ -20,00, em 21/11/2026."_s);
    QCOMPARE(today::projectionText(facts, today::projection(facts, Decimal::fromInteger(1000))),
             u"O caixa não fica negativo nos próximos 90 dias; o menor saldo é R$ 670,00, em 21/11/2026."_s);
}

void tst_today::pageIsFirstAndFollows()
{
    Shop shop;
    settings::setValue(settings::openToday, u"1"_s);
    addRow(shop.program, u"banco"_s, u"banco=Caixa, saldo=100,00"_s);
    addEntries(shop.program, entries);
    shop.open();
    QCOMPARE(shop.tab(), int(MainTabs::Today));
    QTRY_COMPARE(shop.list(u"lsthoje"_s)->rowCount(), 4);
    QCOMPARE(linesOf(*shop.list(u"lstsaldos"_s)->tableSource()), u"Caixa | R$ 202,50\nTotal | R$ 202,50\n"_s);
    QVERIFY(shop.label(u"lblprojecao"_s).startsWith(u"▼ O caixa fica negativo em 14/11/2026 (R$ -87,50)"_s));
    QVERIFY(shop.label(u"lblaviso"_s).contains(u"Ainda não há nenhuma cópia"_s));

    shop.list(u"lsthoje"_s)->selectRow(2);
    shop.press(u"cmdabrir"_s);
    shop.type(u"txtvalor"_s, u"1,00"_s);
    shop.press(u"cmdinserir"_s);
    QCOMPARE(shop.told(), u"information | Cadastrada | Despesa cadastrada com sucesso!"_s);
    QCOMPARE(shop.tab(), int(MainTabs::Payables)); // a saved entry shows its list
    shop.find<QTabWidget>(u"tabprincipal"_s)->setCurrentIndex(MainTabs::Today);
    QTRY_VERIFY(shop.label(u"lblprojecao"_s).contains(u"não fica negativo"_s));
    shop.find<QCheckBox>(u"chkabrirhoje"_s)->click();
    QVERIFY(!settings::isOn(settings::openToday));
}

void tst_today::settlingStaysOnThePage()
{
    Shop shop;
    settings::setValue(settings::openToday, u"1"_s);
    addRow(shop.program, u"banco"_s, u"banco=Caixa, saldo=100,00"_s);
    addEntries(shop.program, entries);
    shop.open();
    QTRY_COMPARE(shop.list(u"lsthoje"_s)->rowCount(), 4);
    shop.list(u"lsthoje"_s)->selectRow(1);
    shop.boxes.answer(QMessageBox::Yes);
    shop.press(u"cmdbaixahoje"_s);
    QTRY_COMPARE(shop.list(u"lsthoje"_s)->rowCount(), 3);
    QCOMPARE(shop.tab(), int(MainTabs::Today));
    QCOMPARE(shop.program.rows(u"select estatus, vencimento from receber where código = 1"_s),
             u"Concluído | 14/11/2026\n"_s);
    QTRY_VERIFY(linesOf(*shop.list(u"lstsaldos"_s)->tableSource()).endsWith(u"Total | R$ 222,50\n"_s));
    shop.command(u"mnudesfazer"_s);
    shop.find<QTabWidget>(u"tabprincipal"_s)->setCurrentIndex(MainTabs::Today);
    QTRY_COMPARE(shop.list(u"lsthoje"_s)->rowCount(), 4);
}

void tst_today::emptyFileLeadsToTheFirstEntry()
{
    Shop shop;
    settings::setValue(settings::openToday, u"1"_s);
    addRow(shop.program, u"fornecedor"_s, u"nome=Ana"_s);
    shop.open();
    const auto steps = [&shop] {
        QString signs;
        for (const QString &name : {u"lblpasso1"_s, u"lblpasso2"_s, u"lblpasso3"_s})
            signs += shop.window->findChild<QLabel *>(name)->text();
        return signs;
    };
    const auto goBack = [&shop] {
        shop.find<QTabWidget>(u"tabprincipal"_s)->setCurrentIndex(MainTabs::Today);
    };
    QTRY_COMPARE(steps(), u"○○○"_s);
    QVERIFY(!shop.find<QPushButton>(u"cmdpassosaldo"_s)->isEnabled());
    shop.press(u"cmdpassoconta"_s);
    shop.fill(u"txtnome=Gaveta, txtvalor=0"_s);
    shop.press(u"cmdinserir"_s);
    goBack();
    QTRY_COMPARE(steps(), u"✓○○"_s);
    shop.press(u"cmdpassosaldo"_s);
    shop.type(u"txtvalor"_s, u"250"_s);
    shop.press(u"cmdinserir"_s);
    goBack();
    QTRY_COMPARE(steps(), u"✓✓○"_s);
    shop.press(u"cmdpassodespesa"_s);
    shop.fill(u"txtdescricao=Luz, cbotipo=Ana, txtvalor=10, txtvencimento=20/11/2026"_s);
    shop.press(u"cmdinserir"_s);
    goBack();
    QTRY_COMPARE(steps(), u"✓✓✓"_s);
    QVERIFY(!shop.window->findChild<QWidget *>(u"grpprimeirospassos"_s)->isVisible());
    QCOMPARE(shop.program.rows(u"select saldo from banco"_s), u"250,00\n"_s);
}

void tst_today::rowsBearSigns()
{
    Shop shop;
    addEntries(shop.program, entries);
    shop.open();
    QCOMPARE(signsOf(shop, u"lstpagar"_s), // in the order of the due dates
             u"1 vencida, 2 concluída, 3 vence hoje, 4 concluída"_s);
    shop.command(u"mnusinais"_s);
    QCOMPARE(signsOf(shop, u"lstpagar"_s), QString());
    QVERIFY(!shop.list(u"lstpagar"_s)->model()->index(0, 1).data(Qt::ForegroundRole).isValid());
    shop.command(u"mnusinais"_s);
    QVERIFY(signsOf(shop, u"lstreceber"_s).contains(u"vencida"_s));
}

void tst_today::signsCanBeRead()
{
    for (const QColor &ground : {QColor(0xff, 0xff, 0xff), QColor(0xf7, 0xf7, 0xf7), QColor(0x23, 0x26, 0x29),
                                 QColor(0x31, 0x36, 0x3b)})
        for (const RowSign sign : {RowSign::Overdue, RowSign::DueToday, RowSign::Settled}) {
            QPalette palette;
            palette.setColor(QPalette::Base, ground);
            const double ratio = contrast(rowsigns::colour(sign, palette), ground);
            QVERIFY2(ratio >= 4.5,
                     qPrintable(u"%1 on %2: %3"_s.arg(rowsigns::word(sign), ground.name()).arg(ratio)));
        }
}

QTEST_MAIN(tst_today)
#include "tst_today.moc"
