#include "data/clock.h"
#include "data/dates.h"
#include "data/error.h"
#include "data/money.h"
#include "data/period.h"

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
    void moneyIsRead_data();
    void moneyIsRead();
    void plainNumbersAreRead_data();
    void plainNumbersAreRead();
    void moneyIsRendered_data();
    void moneyIsRendered();
    void renderingsAreReadBack();
    void arithmeticIsExactOrRefused_data();
    void arithmeticIsExactOrRefused();
    void datesAreRead_data();
    void datesAreRead();
    void datesAreShown();
    void datesRollOver_data();
    void datesRollOver();
    void periodsGiveTheirDates_data();
    void periodsGiveTheirDates();
    void periodTextsAreFound();
};

/// Whatever the machine's locale is, values look Brazilian.
void TestValues::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

void TestValues::moneyIsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *text, const char *expected) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromLatin1(expected);
    };
    row("R$ 1.234,56", "1234,56");
    row("-0,5", "-0,5");
    row("R$ -1,00", "-1");
    row("-R$ 1,00", "-1");
    row("R$-1,00", "-1");
    row("- 1,00", "-1");
    row("+2", "2");
    row("1.5", "15");
    row("1.234.567,8901", "1234567,8901");
    row("00,00", "0");
    row("-0,00", "0");
    row(",5", "0,5");
    row("5,", "5");
    row("5.", "5");
    row("€ 10", "10");
    row("£10", "10");
    row("¥ 10", "10");
    row("$ 10", "10");
    row("10 €", "10");
    row(" \t1500 \r\n", "1500");
    row("R$\u00A01,00", "1");
    row("0,00005", "0,0001");
    row("0,000049999", "0");
    row("-0,00005", "-0,0001");
    row("0,99999", "1");
    row("922337203685477,5807", "922337203685477,5807");
    row("-922337203685477,5808", "-922337203685477,5808");
    row("922337203685477,5808", "nothing");
    row("-922337203685477,5809", "nothing");
    row("922337203685477,58075", "nothing");
    row("99999999999999999999999999999999999999999", "nothing");
    row("", "nothing");
    row("   ", "nothing");
    row(".", "nothing");
    row(",", "nothing");
    row("-", "nothing");
    row("R$ ", "nothing");
    row("abc", "nothing");
    row("R", "nothing");
    row("12abc", "nothing");
    row("1,2,3", "nothing");
    row("1,5.0", "nothing");
    row("1 000", "nothing");
    row("--1", "nothing");
    row("1-", "nothing");
    row("1e3", "nothing");
    row("\u0661", "nothing");
    row("1\xE2", "nothing");
    row("\xC2", "nothing");
}

void TestValues::moneyIsRead()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(plainOrNothing(Money::parse(QStringView(text))), expected);
    QCOMPARE(plainOrNothing(Money::parse(std::string_view(text.toUtf8()))), expected);
    // A row's tag is the text as a table would hold it, broken UTF-8 included.
    QCOMPARE(plainOrNothing(Money::parse(std::string_view(QTest::currentDataTag()))), expected);
    QCOMPARE(Money::stored(QStringView(text)).isZero(), expected == u"nothing" || expected == u"0");
}

void TestValues::plainNumbersAreRead_data()
{
    QTest::addColumn<QString>("expected");
    QTest::newRow("12.5") << u"12,5"_s;
    QTest::newRow("-3") << u"-3"_s;
    QTest::newRow("0.00005") << u"0,0001"_s;
    QTest::newRow("1.5e+3") << u"1500"_s;
    QTest::newRow("1.0e-07") << u"0"_s;
    QTest::newRow("1e300") << u"nothing"_s;
    QTest::newRow("12,5") << u"nothing"_s;
    QTest::newRow("1.2.3") << u"nothing"_s;
    QTest::newRow("e5") << u"nothing"_s;
    QTest::newRow("") << u"nothing"_s;
}

void TestValues::plainNumbersAreRead()
{
    QFETCH(QString, expected);
    QCOMPARE(plainOrNothing(Money::parsePlain(QTest::currentDataTag())), expected);
}

void TestValues::moneyIsRendered_data()
{
    QTest::addColumn<qint64>("tenThousandths");
    QTest::addColumn<QString>("rendered"); // grouped | plain | SQL number | cents
    const auto row = [](qint64 value, const char *rendered) {
        QTest::addRow("%lld", value) << value << QString::fromLatin1(rendered);
    };
    row(0, "0,00 | 0 | 0 | 0");
    row(12345600, "1.234,56 | 1234,56 | 1234.56 | 1234,56");
    row(-12345600, "-1.234,56 | -1234,56 | -1234.56 | -1234,56");
    row(15000000, "1.500,00 | 1500 | 1500 | 1500");
    row(125000, "12,50 | 12,5 | 12.5 | 12,5");
    row(1, "0,00 | 0,0001 | 0.0001 | 0");
    row(-1, "0,00 | -0,0001 | -0.0001 | 0");
    row(50, "0,01 | 0,005 | 0.005 | 0,01");
    row(49, "0,00 | 0,0049 | 0.0049 | 0");
    row(150, "0,02 | 0,015 | 0.015 | 0,02");
    row(-250, "-0,03 | -0,025 | -0.025 | -0,03");
    row(9999950, "1.000,00 | 999,995 | 999.995 | 1000");
    row(9990000, "999,00 | 999 | 999 | 999");
    row(std::numeric_limits<qint64>::max(),
        "922.337.203.685.477,58 | 922337203685477,5807 | 922337203685477.5807 | 922337203685477,58");
    row(std::numeric_limits<qint64>::min(),
        "-922.337.203.685.477,58 | -922337203685477,5808 | -922337203685477.5808 | -922337203685477,58");
}

void TestValues::moneyIsRendered()
{
    QFETCH(qint64, tenThousandths);
    QFETCH(QString, rendered);
    const Money money = units(tenThousandths);
    QCOMPARE(QStringList({money.grouped(), money.plain(), money.sqlNumber(), money.roundedToCents().plain()})
                 .join(u" | "_s),
             rendered);
    std::string utf8 = "=";
    money.appendGrouped(utf8);
    QCOMPARE(QString::fromStdString(utf8), u'=' + money.grouped());
    QCOMPARE(money.inReais(), u"R$ "_s + money.grouped());
}

void TestValues::renderingsAreReadBack()
{
    for (qint64 value = 1; value < std::numeric_limits<qint64>::max() / 8; value = value * 7 + 3) {
        for (const Money money : {units(value), units(-value)}) {
            QCOMPARE(Money::parse(money.plain()), money);
            QCOMPARE(Money::parsePlain(money.sqlNumber().toStdString()), money);
            QCOMPARE(Money::parse(money.inReais()), money.roundedToCents());
        }
    }
}

void TestValues::arithmeticIsExactOrRefused_data()
{
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    constexpr qint64 least = std::numeric_limits<qint64>::min();
    QTest::addColumn<qint64>("left");
    QTest::addColumn<qint64>("right");
    QTest::addColumn<QString>("results"); // sum | difference | product | quotient
    const auto row = [](qint64 left, qint64 right, const char *results) {
        QTest::addRow("%lld and %lld", left, right) << left << right << QString::fromLatin1(results);
    };
    row(1000, 2000, "0,3 | -0,1 | 0,02 | 0,5");
    row(100000, 30000, "13 | 7 | 30 | 3,3333");
    row(200000, 30000, "23 | 17 | 60 | 6,6667");
    row(1, 20000, "2,0001 | -1,9999 | 0,0002 | 0");      // half of a unit: to even
    row(3, 20000, "2,0003 | -1,9997 | 0,0006 | 0,0002"); // one and a half: to even
    row(-3, 20000, "1,9997 | -2,0003 | -0,0006 | -0,0002");
    row(-3, -20000, "-2,0003 | 1,9997 | 0,0006 | 0,0002");
    row(5, 5000, "0,5005 | -0,4995 | 0,0002 | 0,001");
    row(15000, 0, "1,5 | 1,5 | 0 | nothing");
    row(most, 1, "refused | 922337203685477,5806 | 92233720368,5478 | refused");
    row(least, 1, "-922337203685477,5807 | refused | -92233720368,5478 | refused");
    row(least, -10000, "refused | -922337203685476,5808 | refused | refused");
    row(most, most, "refused | 0 | refused | 1");
}

void TestValues::arithmeticIsExactOrRefused()
{
    QFETCH(qint64, left);
    QFETCH(qint64, right);
    QFETCH(QString, results);
    const Money a = units(left);
    const Money b = units(right);
    const QStringList actual = {
        outcome([&] { return (a + b).plain(); }), outcome([&] { return (a - b).plain(); }),
        outcome([&] { return a.times(b).plain(); }), outcome([&] { return plainOrNothing(a.dividedBy(b)); })};
    QCOMPARE(actual.join(u" | "_s), results);
}

void TestValues::datesAreRead_data()
{
    QTest::addColumn<QString>("stored");
    const auto row = [](const char *text, const char *stored) {
        QTest::newRow(text) << QString::fromLatin1(stored);
    };
    row("2026/12/10", "2026/12/10");
    row("10/12/2026", "2026/12/10");
    row("5/3/2026", "2026/03/05");
    row("2026-3-5", "2026/03/05");
    row(" 05.03.2026 ", "2026/03/05");
    row("29/02/2024", "2024/02/29");
    row("29/02/2026", "");
    row("31/04/2026", "");
    row("0/12/2026", "");
    row("10/13/2026", "");
    row("", "");
    row(" ", "");
    row("abc", "");
    row("10/12", "");
    row("10/12/26", "");
    row("10-12/2026", "");
    row("100/12/2026", "");
    row("10/012/2026", "");
    row("20261210", "");
    row("10/12/2026 14:00", "");
    row("10/12/20261", "");
}

void TestValues::datesAreRead()
{
    QFETCH(QString, stored);
    const QString text = QString::fromUtf8(QTest::currentDataTag());
    QCOMPARE(dates::stored(dates::read(text)), stored);

    const QString shown = dates::shownFromStored(text);
    QCOMPARE(shown, stored.isEmpty() ? text : dates::shown(dates::read(stored)));
    std::string utf8 = "=";
    dates::appendShown(QTest::currentDataTag(), utf8);
    QCOMPARE(QString::fromStdString(utf8), u'=' + shown);
}

void TestValues::datesAreShown()
{
    QCOMPARE(dates::shown(QDate(2026, 3, 5)), u"05/03/2026"_s);
    QCOMPARE(dates::shown(QDate()), QString());
    QCOMPARE(dates::longDate(QDate(2026, 11, 22)), u"domingo, 22 de novembro de 2026"_s);
    QCOMPARE(dates::longDate(QDate(2027, 3, 2)), u"terça-feira, 2 de março de 2027"_s);
    QCOMPARE(dates::longTime(QTime(14, 5, 9)), u"14:05:09"_s);

    programclock::set(QDateTime(QDate(2026, 5, 31), QTime(23, 59)));
    QCOMPARE(programclock::today(), QDate(2026, 5, 31));
    QCOMPARE(programclock::now().time(), QTime(23, 59));
}

void TestValues::datesRollOver_data()
{
    QTest::addColumn<QDate>("built");
    QTest::addColumn<QDate>("expected");
    QTest::newRow("in range") << dates::rolledOver(2026, 5, 20) << QDate(2026, 5, 20);
    QTest::newRow("month 0") << dates::rolledOver(2026, 0, 31) << QDate(2025, 12, 31);
    QTest::newRow("month 13") << dates::rolledOver(2026, 13, 1) << QDate(2027, 1, 1);
    QTest::newRow("day 31 of April") << dates::rolledOver(2026, 4, 31) << QDate(2026, 5, 1);
    QTest::newRow("day 31 of February") << dates::rolledOver(2026, 2, 31) << QDate(2026, 3, 3);
    QTest::newRow("leap February") << dates::rolledOver(2024, 2, 31) << QDate(2024, 3, 2);
    QTest::newRow("day 0") << dates::rolledOver(2026, 3, 0) << QDate(2026, 2, 28);
}

void TestValues::datesRollOver()
{
    QFETCH(QDate, built);
    QTEST(built, "expected");
}

void TestValues::periodsGiveTheirDates_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QDate>("today");
    QTest::addColumn<QString>("expected");
    const QDate may(2026, 5, 20);
    QTest::newRow("7 days") << u"ultimos 7 dias"_s << QDate(2026, 3, 5) << u"2026/02/26..2026/03/05"_s;
    QTest::newRow("15 days") << u"ultimos 15 dias"_s << QDate(2026, 1, 10) << u"2025/12/26..2026/01/10"_s;
    QTest::newRow("previous of May") << u"mês anterior"_s << may << u"2026/04/01..2026/05/01"_s;
    QTest::newRow("previous of January")
        << u"mês anterior"_s << QDate(2026, 1, 31) << u"2025/12/01..2025/12/31"_s;
    QTest::newRow("next of May") << u"próximo mês"_s << may << u"2026/06/01..2026/07/01"_s;
    QTest::newRow("next of December")
        << u"próximo mês"_s << QDate(2026, 12, 1) << u"2027/01/01..2027/01/31"_s;
    QTest::newRow("pattern") << u"apenas deste mês"_s << may << u".."_s;
}

void TestValues::periodsGiveTheirDates()
{
    QFETCH(QString, choice);
    QFETCH(QDate, today);
    const auto [from, to] = period::range(period::fromText(choice), today);
    QTEST(QString(from + u".."_s + to), "expected");
}

void TestValues::periodTextsAreFound()
{
    QCOMPARE(period::fromText(u"MÊS ANTERIOR"_s), period::Choice::PreviousMonth);
    QCOMPARE(period::fromText(u"outra coisa"_s), period::Choice::All);
    QCOMPARE(period::choices().indexOf(u"ultimos 15 dias"_s), int(period::Choice::Last15Days));
}

QTEST_APPLESS_MAIN(TestValues)
#include "tst_values.moc"
