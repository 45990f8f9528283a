#include "analysis/accountresults.h"
#include "analysis/bankbook.h"
#include "analysis/cashflow.h"
#include "analysis/chartquery.h"
#include "analysis/dialogreports.h"
#include "analysis/integratedreport.h"
#include "analysis/management.h"
#include "analysis/namestatistics.h"
#include "analysis/statement.h"
#include "entries/contacthistory.h"
#include "lists/readrows.h"
#include "reports/reporttext.h"
#include "support/answers.h"
#include "support/ledger.h"

#include <QBuffer>

#include <map>

using namespace Qt::StringLiterals;

namespace {

const QDate first(2026, 1, 1), last(2026, 12, 31);
const QString names[] = {u"D'Ávila"_s, u"100%"_s, u"1000"_s, u"a_b"_s, u"axb"_s, u"<b>x</b>"_s};

/// One of everything for each name, worth 1, 2, 4, ...: what a report adds up to says whose rows it has.
void addBusiness(TestProgram &program)
{
    int value = 1;
    for (const QString &name : names) {
        for (const auto &[table, contact] :
             {std::pair(u"pagar"_s, u"fornecedor"_s), {u"receber"_s, u"cliente"_s}}) {
            addRow(
                program, table,
                u"data=2026/05/05, vencimento=2026/05/05, estatus=Concluído, moeda=R$, qtde=1, valor=%1,00, "
                "origem=%2, descricao=%2, produto=%2, pagamento=%2, %3=%2"_s.arg(value)
                    .arg(name, contact));
            addRow(program, contact, u"nome="_s + name);
        }
        addRow(program, u"bancario"_s,
               u"data=2026/05/05, estatus=Concluído, movimento=Depósito, valor=%1,00, origem=%2, destino=%2"_s
                   .arg(value)
                   .arg(name));
        addRow(program, u"banco"_s, u"saldo=0,00, banco="_s + name);
        addRow(program, u"produto"_s, u"qtde=0, produto="_s + name);
        addRow(program, u"pcontapagar"_s, u"descricao="_s + name);
        addRow(program, u"pcontareceber"_s, u"descricao="_s + name);
        value *= 2;
    }
}

using Answer = std::function<Sum(Connection &, const QString &name)>;

/// What the amounts of a column add up to.
Sum added(const TableSource &table, const QString &title)
{
    Sum sum;
    for (int column = 0; column < table.columnCount(); ++column)
        for (int row = 0; table.heading(column) == title && row < table.rowCount(); ++row)
            sum += Money::stored(QStringView(table.cell(row, column).remove(u"R$ "_s)));
    return sum;
}

Sum added(const std::optional<Report> &report)
{
    return report ? added(*report->tables.front(), u"Valor"_s) : Sum();
}

integratedreport::Choices integrated(int section, std::size_t list, const QString &name)
{
    integratedreport::Choices choices;
    for (auto &other : choices)
        other.included = false;
    choices[std::size_t(section)].included = true;
    choices[std::size_t(section)].names[list] = {false, {name}};
    return choices;
}

std::map<QString, Answer> reports()
{
    std::map<QString, Answer> all;
    all[u"cash flow of an account"_s] = [](Connection &connection, const QString &name) {
        const auto result =
            cashflow::read(connection, cashflow::Mode::Payables, {first, last, name, {}}, nullptr);
        return result.parts.front().figures.total().sum;
    };
    for (const auto &[what, kind, places] : {std::tuple(u"payables"_s, dialogreports::Kind::Payables, 3),
                                             {u"receivables"_s, dialogreports::Kind::Receivables, 3},
                                             {u"movements"_s, dialogreports::Kind::Movements, 2},
                                             {u"sales"_s, dialogreports::Kind::Sales, 2}})
        for (int place = 0; place < places; ++place)
            all[what + u" by name %1"_s.arg(place)] = [kind = kind, place](Connection &connection,
                                                                           const QString &name) {
                QStringList chosen(3);
                chosen[place] = name;
                return added(dialogreports::read(connection, dialogreports::page(kind),
                                                 {.first = first, .last = last, .names = chosen}));
            };
    for (int choice = 0; choice <= int(dialogreports::Choice::PaymentReceived); ++choice)
        all[u"command %1"_s.arg(choice)] = [choice](Connection &connection, const QString &name) {
            return added(dialogreports::read(connection,
                                             dialogreports::command(dialogreports::Choice(choice)),
                                             {.first = first, .last = last, .names = {name}}));
        };
    for (int section = 0; section < integratedreport::sectionCount; ++section)
        for (std::size_t list = 0; list < integratedreport::section(section).names.size(); ++list)
            all[u"integrated %1.%2"_s.arg(section).arg(list)] = [section, list](Connection &connection,
                                                                                const QString &name) {
                return added(*integratedreport::read(connection, integrated(section, list, name)).table,
                             u"Valor"_s);
            };
    all[u"statement"_s] = [](Connection &connection, const QString &name) {
        return statement::read(connection, {name, first, last}).receivables;
    };
    all[u"history"_s] = [](Connection &connection, const QString &name) {
        FigureTotals totals;
        readrows::sum(connection, contacthistory::query(clientHistory(), name, contacthistory::Shown::All),
                      totals);
        return totals.figures.total().sum;
    };
    for (const auto by : {ManagementFilter::By::Contact, ManagementFilter::By::Account})
        all[u"management %1"_s.arg(int(by))] = [by](Connection &connection, const QString &name) {
            return management::read(connection, payableManagement(), {.by = by, .name = name}, nullptr).total;
        };
    return all;
}

} // namespace

/// Names that mean something to SQL or HTML, in every place where a report takes one.
class tst_hostilenames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsOfTheNameOrAMessage();
    void chartsAndSummaries();
    void pagesShowThemAsText();
};

/// A pattern finds what it matches, as everywhere; an apostrophe gives the message and no report.
void tst_hostilenames::rowsOfTheNameOrAMessage()
{
    TestProgram program;
    addBusiness(program);
    for (const auto &[what, answer] : reports()) {
        QStringList told;
        for (const QString &name : names) {
            try {
                told << answer(program.database(), name).plain();
            } catch (const Error &error) {
                told << (error.text().contains(u"apóstrofo") ? u"refused"_s : error.text());
            }
        }
        QCOMPARE(what + u": "_s + told.join(u' '), what + u": refused 6 4 24 16 32"_s);
    }
}

void tst_hostilenames::chartsAndSummaries()
{
    TestProgram program;
    addBusiness(program);
    Connection &connection = program.database();
    for (const QString &name : names) {
        const ChartFilter filters[] = {{.account = name}, {.contact = name}, {.centre = name}};
        for (const ChartFilter &filter : filters) {
            if (name.contains(u'\''))
                QVERIFY_THROWS_EXCEPTION(Error,
                                         chartquery::chart(connection, payableFigures(), filter, nullptr));
            else
                QVERIFY(chartquery::chart(connection, payableFigures(), filter, nullptr));
        }
    }
    // What goes through all names has a line for each, and loses no amount of those that are no pattern.
    const auto results =
        accountresults::read(connection, {.span = ResultFilter::Span::Year, .year = 2026}, nullptr);
    QCOMPARE(results->table->rowCount(), 6);
    QCOMPARE(linesOf(*results->table).section(u'\n', 5, 5), u"<b>x</b> | R$ 32,00 | R$ 32,00 | R$ 0,00"_s);
    QCOMPARE(linesOf(*results->table).section(u'\n', 0, 0), u"D'Ávila | R$ 1,00 | R$ 1,00 | R$ 0,00"_s);
    for (const auto &report :
         {namestatistics::centres(connection, payable(), nullptr), namestatistics::stock(connection, nullptr),
          namestatistics::sales(connection, nullptr)})
        QCOMPARE(report->tables.front()->rowCount(), 6);
    QCOMPARE(bankbook::read(connection, {first, last}).size(), 6u);
}

void tst_hostilenames::pagesShowThemAsText()
{
    TestProgram program;
    addBusiness(program);
    const auto report =
        dialogreports::read(program.database(), dialogreports::page(dialogreports::Kind::Payables),
                            {.first = first, .last = last, .names = {{}, {}, {}}});
    QBuffer page;
    QVERIFY(page.open(QIODevice::WriteOnly));
    reporttext::writeHtml(page, *report, nullptr);
    QVERIFY(page.data().contains("&lt;b&gt;x&lt;/b&gt;"));
    QVERIFY(!page.data().contains("<b>x"));
}

QTEST_MAIN(tst_hostilenames)
#include "tst_hostilenames.moc"
