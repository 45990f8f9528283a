#include "data/dates.h"
#include "data/decimal.h"
#include "data/error.h"
#include "lists/period.h"
#include "support/answers.h"

#include <QLocale>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

Money units(qint64 tenThousandths)
{
    return Money::fromTenThousandths(tenThousandths);
}

/// What the user sees of a result that may be missing or refused.
template <typename Work>
QString outcome(Work work)
{
    try {
        return work();
    } catch (const Error &) {
        return u"refused"_s;
    }
}

QString plainOrNothing(const std::optional<Money> &money)
{
    return money ? money->plain() : u"nothing"_s;
}

} // namespace

class TestValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void moneyIsRead();
    void moneyIsRendered();
    void renderingsAreReadBack();
    void arithmeticIsExactOrRefused();
    void datesAreRead();
    void periodsGiveTheirDates();
};

/// Whatever the machine's locale is, values look Brazilian.
void TestValues::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

void TestValues::moneyIsRead()
{
    checkAnswers(
        u"R$ 1.234,56 -> 1234,56 ; -0,5 -> -0,5 ; R$ -1,00 -> -1 ; -R$ 1,00 -> -1 ; +2 -> 2 ; 1.5 -> 15\n"
        "-0,00 -> 0 ; ,5 -> 0,5 ; 5, -> 5 ; € 10 -> 10 ; 10 € -> 10 ;  \t1500 \r -> 1500\n"
        "R$\u00A01,00 -> 1 ; 0,00005 -> 0,0001 ; 0,000049999 -> 0 ; -0,00005 -> -0,0001\n"
        "922337203685477,5807 -> 922337203685477,5807 ; 922337203685477,5808 -> nothing\n"
        "-922337203685477,5808 -> -922337203685477,5808 ; -922337203685477,5809 -> nothing\n"
        "99999999999999999999999999999999999999999 -> nothing\n"
        "   -> nothing ; , -> nothing ; - -> nothing ; R$  -> nothing ; 12abc -> nothing\n"
        "1,2,3 -> nothing ; 1,5.0 -> nothing ; 1 000 -> nothing ; --1 -> nothing ; 1e3 -> nothing"_s,
        [](const QString &text) {
            const QString read = plainOrNothing(Money::parse(QStringView(text)));
            const bool same = read == plainOrNothing(Money::parse(std::string_view(text.toUtf8())));
            return same ? read : u"another by its bytes"_s;
        });
    for (const char *broken : {"", "1\xE2", "\xC2"})
        QVERIFY(!Money::parse(std::string_view(broken)));
    checkAnswers(
        u"12 un -> 12 ; 1.000,5kg -> 1000,5 ; R$ -3 (x) -> -3 ; 1,2,3 -> 1,2 ; un 12 -> 0 ; muito -> 0"_s,
        [](const QString &text) {
            const Money read = Money::stored(QStringView(text));
            return read == Money::stored(std::string_view(text.toUtf8())) ? read.plain() : u"differs"_s;
        });
}

void TestValues::moneyIsRendered()
{
    // ten-thousandths -> grouped | plain | SQL number | cents
    checkAnswers(
        u"0 -> 0,00 | 0 | 0 | 0\n"
        "-12345600 -> -1.234,56 | -1234,56 | -1234.56 | -1234,56\n"
        "15000000 -> 1.500,00 | 1500 | 1500 | 1500\n"
        "-1 -> 0,00 | -0,0001 | -0.0001 | 0\n"
        "50 -> 0,01 | 0,005 | 0.005 | 0,01\n"
        "49 -> 0,00 | 0,0049 | 0.0049 | 0\n"
        "-250 -> -0,03 | -0,025 | -0.025 | -0,03\n"
        "9999950 -> 1.000,00 | 999,995 | 999.995 | 1000\n"
        "9223372036854775807 -> 922.337.203.685.477,58 | 922337203685477,5807 | 922337203685477.5807 | "
        "922337203685477,58\n"
        "-9223372036854775808 -> -922.337.203.685.477,58 | -922337203685477,5808 | -922337203685477.5808 | -922337203685477,58"_s,
        [](const QString &text) {
            const Money money = units(text.toLongLong());
            std::string utf8;
            money.appendGrouped(utf8);
            return QStringList{QString::fromStdString(utf8), money.plain(), money.sqlNumber(),
                               money.roundedToCents().plain()}
                .join(u" | "_s);
        });
}

void TestValues::renderingsAreReadBack()
{
    for (qint64 value = 1; value < std::numeric_limits<qint64>::max() / 8; value = value * 7 + 3) {
        for (const Money money : {units(value), units(-value)}) {
            QCOMPARE(Money::parse(money.plain()), money);
            QCOMPARE(Money::parse(money.inReais()), money.roundedToCents());
        }
    }
}

void TestValues::arithmeticIsExactOrRefused()
{
    // ten-thousandths of both -> sum | difference | product | quotient; half of a unit goes to even
    checkAnswers(u"100000 30000 -> 13 | 7 | 30 | 3,3333\n"
                 "200000 30000 -> 23 | 17 | 60 | 6,6667\n"
                 "1 20000 -> 2,0001 | -1,9999 | 0,0002 | 0\n"
                 "3 20000 -> 2,0003 | -1,9997 | 0,0006 | 0,0002\n"
                 "-3 20000 -> 1,9997 | -2,0003 | -0,0006 | -0,0002\n"
                 "5 5000 -> 0,5005 | -0,4995 | 0,0002 | 0,001\n"
                 "15000 0 -> 1,5 | 1,5 | 0 | nothing\n"
                 "9223372036854775807 1 -> refused | 922337203685477,5806 | 92233720368,5478 | refused\n"
                 "-9223372036854775808 1 -> -922337203685477,5807 | refused | -92233720368,5478 | refused\n"
                 "-9223372036854775808 -10000 -> refused | -922337203685476,5808 | refused | refused"_s,
                 [](const QString &pair) {
                     const Money a = units(pair.section(u' ', 0, 0).toLongLong());
                     const Money b = units(pair.section(u' ', 1).toLongLong());
                     return QStringList{outcome([&] { return (a + b).plain(); }),
                                        outcome([&] { return (a - b).plain(); }),
                                        outcome([&] { return a.times(b).plain(); }),
                                        outcome([&] { return plainOrNothing(a.dividedBy(b)); })}
                         .join(u" | "_s);
                 });
}

void TestValues::datesAreRead()
{
    checkAnswers(
        u"2026/12/10 -> 2026/12/10 ; 10/12/2026 -> 2026/12/10 ; 5/3/2026 -> 2026/03/05\n"
        "2026-3-5 -> 2026/03/05 ;  05.03.2026  -> 2026/03/05 ; 29/02/2024 -> 2024/02/29\n"
        "29/02/2026 ->  ; 31/04/2026 ->  ; 0/12/2026 ->  ; 10/13/2026 ->  ; abc ->  ; 10/12 ->  ; 10/12/26 ->  ; 10-12/2026 ->  ; 20261210 ->  ; 10/12/2026 14:00 ->  ; 10/12/20261 -> "_s,
        [](const QString &text) {
            const QString stored = dates::stored(dates::read(text));
            const QString shown = stored.isEmpty() ? text : dates::shown(dates::read(stored));
            std::string utf8;
            dates::appendShown(text.toStdString(), utf8);
            const bool same = dates::shownFromStored(text) == shown && utf8 == shown.toStdString();
            return same ? stored : u"shown otherwise"_s;
        });
}

void TestValues::periodsGiveTheirDates()
{
    checkAnswers(u"2026-03-05 ultimos 7 dias -> 2026/02/26..2026/03/05\n"
                 "2026-01-10 ultimos 15 dias -> 2025/12/26..2026/01/10\n"
                 "2026-05-20 MÊS ANTERIOR -> 2026/04/01..2026/05/01\n"
                 "2026-01-31 mês anterior -> 2025/12/01..2025/12/31\n"
                 "2026-05-20 próximo mês -> 2026/06/01..2026/07/01\n"
                 "2026-12-01 próximo mês -> 2027/01/01..2027/01/31\n"
                 "2026-05-20 apenas deste mês -> .. ; 2026-05-20 outra coisa -> .."_s,
                 [](const QString &asked) {
                     const QDate today = QDate::fromString(asked.left(10), Qt::ISODate);
                     const auto [from, to] = period::range(period::fromText(asked.mid(11)), today);
                     return from + u".."_s + to;
                 });
}

QTEST_APPLESS_MAIN(TestValues)
#include "tst_values.moc"
