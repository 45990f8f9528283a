#include "data/dates.h"
#include "data/error.h"
#include "entries/interest.h"
#include "entries/receipt.h"
#include "settings/settings.h"
#include "support/answers.h"
#include "support/ledger.h"
#include "support/shop.h"

using namespace Qt::StringLiterals;

namespace {

const QString tooHigh = u"Valores muito altos para serem calculados!"_s;

/// "+ 1000 2,5" is interest, "- 1000 2,5" is discount.
QString charged(const QString &question)
{
    const QStringList words = question.split(u' ');
    try {
        const interest::Charged result =
            interest::charge(words[0] == u"+" ? interest::Kind::Interest : interest::Kind::Discount,
                             interest::number(words[1]), interest::number(words[2]));
        return result.amount.plain() + u' ' + result.total.plain();
    } catch (const Error &error) {
        return error.text();
    }
}

/// "1 1000 2 4 30": once, amount, rate, installments, days; "n 1000 ..." for each installment.
QString spread(const QString &question)
{
    const QStringList words = question.split(u' ');
    try {
        const interest::Spread result = interest::spread(
            {.amount = interest::number(words[1]),
             .monthlyRate = interest::number(words[2]),
             .count = interest::wholeNumber(words[3]),
             .days = interest::wholeNumber(words[4]),
             .start = {2026, 1, 1}},
            words[0] == u"1" ? interest::Charging::Once : interest::Charging::EachInstallment);
        QString text = result.charged.total.plain() + u' ' + result.charged.amount.plain() + u':';
        for (const QDate date : result.dates)
            text += u' ' + dates::shown(date) + u'=' + result.installment.plain();
        return text;
    } catch (const Error &error) {
        return error.text();
    }
}

} // namespace

class tst_calculators : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void interestAndDiscount();
    void installments();
    void screensCalculate();
    void receiptIsToTheLetter();
    void receiptOfAnEntryIsFilledIn();
};

void tst_calculators::interestAndDiscount()
{
    checkAnswers(u"+ 1000 2,5 -> 25 1025\n"
                 "- 1000 2,5 -> 25 975\n"
                 "+ 0,01 0,5 -> 0 0,01\n" // a half of a ten-thousandth goes to the even one
                 "+ 0,03 0,5 -> 0,0002 0,0302\n"
                 "- abc 2,5 -> 0 0\n"
                 "+ 922337203685477,58 1 -> "_s +
                     tooHigh + u"\n+ 100000000000000000000 1 -> "_s + tooHigh +
                     u"\n- 922337203685477,58 900000000000000 -> "_s + tooHigh +
                     u"\n+ 922337203685477,58 0 -> 0 922337203685477,58"_s,
                 charged);
}

void tst_calculators::installments()
{
    checkAnswers(u"n 1000 2 4 30 -> 1080 80: 31/01/2026=270 02/03/2026=270 01/04/2026=270 01/05/2026=270\n"
                 "1 1000 2 4 30 -> 1020 20: 31/01/2026=255 02/03/2026=255 01/04/2026=255 01/05/2026=255\n"
                 "1 100 0 3 1 -> 100 0: 02/01/2026=33,3333 03/01/2026=33,3333 04/01/2026=33,3333\n"
                 "1 100 3 0 30 -> 103 3:\n"
                 "n 100 3 0 30 -> 100 0:\n"
                 "1 100 x 1 0 -> 100 0: 01/01/2026=100\n"_s +
                     u"n 900000000000000 9999 9999 30 -> "_s + tooHigh + u"\n1 10 1 9999 9999 -> "_s +
                     tooHigh,
                 spread);
}

void tst_calculators::screensCalculate()
{
    Shop shop;
    shop.open();
    shop.command(u"mnujurosdesc"_s);
    shop.fill(u"txttotal=1000, txtporcentagem=2,5"_s);
    const auto shown = [&] {
        return shop.label(u"rotjuros"_s) + shop.label(u"lbljuros"_s) + shop.label(u"rottotaljuros"_s) +
               shop.label(u"lbltotal"_s);
    };
    shop.press(u"cmdcalcular"_s);
    QCOMPARE(shown(), u"Juros:R$ 25,00Total de juros:R$ 1.025,00"_s);
    shop.choose(u"cboorigem"_s, u"Desconto"_s);
    shop.press(u"cmdcalcular"_s);
    QCOMPARE(shown(), u"Desconto:R$ 25,00Total de desconto:R$ 975,00"_s);
    shop.find<QLineEdit>(u"txttotal"_s)->setText(u"99999999999999999999"_s);
    shop.press(u"cmdcalcular"_s);
    QVERIFY(shop.told().endsWith(tooHigh));
    shop.screen(u"frmJurosDesconto"_s)->close();

    shop.command(u"mnujurosparcelas"_s);
    shop.fill(u"txtvalor=1000, txtjurosmes=2, txtparcelas=4, txtdias=30, txtdata=01/01/2026"_s);
    shop.find<QRadioButton>(u"optmensal"_s)->click();
    shop.press(u"cmdcalcular"_s);
    QCOMPARE(linesOf(*shop.list(u"lstparcelas"_s)->tableSource()),
             u"1ª | 31/01/2026 | R$ 270\n2ª | 02/03/2026 | R$ 270\n3ª | 01/04/2026 | R$ 270\n"
             "4ª | 01/05/2026 | R$ 270\n"_s);
    QCOMPARE(shop.label(u"lbltotal"_s) + u' ' + shop.label(u"lbljuros"_s), u"1080 80"_s);
    shop.fill(u"txtparcelas=0"_s);
    shop.find<QRadioButton>(u"optunico"_s)->click();
    shop.press(u"cmdcalcular"_s);
    QCOMPARE(shop.list(u"lstparcelas"_s)->rowCount(), 0);
    QCOMPARE(shop.label(u"lbltotal"_s) + u' ' + shop.label(u"lbljuros"_s), u"1020 20"_s);
}

void tst_calculators::receiptIsToTheLetter()
{
    const QString line(78, u'_');
    const QStringList expected{u" Recibo"_s,
                               u' ' + line.first(77),
                               u" "_s,
                               u"  Pagamento para:"_s,
                               u"     Zé"_s,
                               {},
                               u"  Recibo de:"_s,
                               u"     "_s,
                               {},
                               u"  Referênte a:"_s,
                               u"     Luz"_s,
                               u" "_s,
                               u"  Valor:"_s,
                               u"     R$ 1.234,50"_s,
                               {},
                               u"  Data:"_s,
                               u"     14/11/2026"_s,
                               u" "_s,
                               QString(60, u' ') + u"Assinatura        "_s,
                               QString(37, u' ') + line.first(42),
                               u' ' + line};
    for (const QString &typed : {u"1234,5"_s, u"R$ 1.234,50"_s}) {
        const QStringList lines =
            receipt::lines(u"Recibo"_s, {u"Zé"_s, {}, u"Luz"_s, typed, u"14/11/2026"_s});
        for (int i = 0; i < int(expected.size()); ++i)
            QCOMPARE(lines.value(i), expected[i]);
        QCOMPARE(lines.size(), expected.size());
    }
    QCOMPARE(receipt::lines({}, {})[13], u"     R$ "_s);
}

void tst_calculators::receiptOfAnEntryIsFilledIn()
{
    Shop shop;
    settings::setValue(settings::companyName, u"Loja"_s);
    for (const auto &[table, contact] :
         {std::pair(u"pagar"_s, u"fornecedor"_s), {u"receber"_s, u"cliente"_s}})
        addRow(shop.program, table,
               u"data=2026/11/01, vencimento=2026/11/14, valor=50,00, moeda=R$, estatus=Pendente, "
               "descricao=Luz, documento=NF 9, %1=Zé"_s.arg(contact));
    shop.open();
    const auto shown = [&] {
        QStringList texts;
        for (const QString &field :
             {u"txtpagamento"_s, u"txtrecibo"_s, u"txtreferente"_s, u"txtvalor"_s, u"txtdata"_s})
            texts << shop.text(field);
        shop.screen(u"frmRecibo"_s)->close();
        return texts.join(u" | "_s);
    };
    shop.command(u"cmdrecibod"_s); // nothing is selected
    QVERIFY2(shown().startsWith(u" |  |  | "), "empty");
    shop.list(u"lstpagar"_s)->selectRow(0);
    shop.command(u"cmdrecibod"_s);
    QCOMPARE(shown(), u"Zé | Loja | Luz - documento NF 9 | R$ 50,00 | 14/11/2026"_s);
    shop.window->findChild<QTabWidget *>(u"tabprincipal"_s)->setCurrentIndex(1);
    shop.list(u"lstreceber"_s)->selectRow(0);
    shop.command(u"cmdrecibor"_s);
    QCOMPARE(shown(), u"Loja | Zé | Luz - documento NF 9 | R$ 50,00 | 14/11/2026"_s);
    shop.list(u"lstreceber"_s)->selectRow(0);
    shop.program.run(u"delete from receber"_s);
    shop.command(u"cmdrecibor"_s);
    QCOMPARE(shop.told(), u"information | Recibo | Este lançamento não existe mais."_s);
}

QTEST_MAIN(tst_calculators)
#include "tst_calculators.moc"
