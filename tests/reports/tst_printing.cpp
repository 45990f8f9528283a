#include "reports/modimpressao.h"
#include "support/testprogram.h"
#include "widgets/documentpages.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A long list that is dear to read: it notes how often somebody starts again, or looks back.
class LongList : public TableSource
{
public:
    int columnCount() const override { return 4; }
    int rowCount() const override { return 5000; }
    QString heading(int column) const override { return u"Coluna %1"_s.arg(column); }
    CellKind kind(int column) const override { return column == 3 ? CellKind::Amount : CellKind::Text; }
    QString cell(int row, int column) const override
    {
        passes += row < m_last || m_last < 0;
        m_last = row;
        return column == 3 ? u"R$ %1,00"_s.arg(row) : u"linha %1 "_s.arg(row).repeated(1 + row % 7);
    }

    mutable int passes = 0;

private:
    mutable int m_last = -1;
};

} // namespace

class tst_printing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsAreReadThreeTimesInTheirOrder_data();
    void rowsAreReadThreeTimesInTheirOrder();
};

void tst_printing::rowsAreReadThreeTimesInTheirOrder_data()
{
    QTest::addColumn<bool>("byDate");
    QTest::newRow("a report") << false;
    QTest::newRow("the main list") << true;
}

void tst_printing::rowsAreReadThreeTimesInTheirOrder()
{
    QFETCH(bool, byDate);
    const TestProgram program;
    const auto list = std::make_shared<LongList>();
    Report report;
    report.title = u"LISTA"_s;
    report.tables = {list};
    const auto setup =
        byDate ? modimpressao::listPages(modimpressao::ListKind::ByDate, *list) : modimpressao::PageSetup();
    const QPageLayout paper(QPageSize(QPageSize::A4), QPageLayout::Portrait, {10, 10, 10, 10},
                            QPageLayout::Millimeter);
    DocumentPages pages(modimpressao::document(report, setup));
    pageprinter::savePdf(program.file(u"longa.pdf"_s), pages, paper, nullptr);
    QVERIFY(pages.count() > 50);
    QVERIFY2(list->passes <= 3, qPrintable(QString::number(list->passes)));
}

QTEST_MAIN(tst_printing)
#include "tst_printing.moc"
