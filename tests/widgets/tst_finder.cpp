#include "agenda/appointments.h"
#include "data/clock.h"
#include "lists/findindex.h"
#include "support/ledger.h"
#include "support/shop.h"
#include "widgets/listfinder.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;

namespace {

void addPayables(Shop &shop, const QStringList &descriptions)
{
    for (const QString &description : descriptions)
        addRow(
            shop.program, u"pagar"_s,
            u"descricao=%1, estatus=Pendente, valor=10,00, moeda=R$, data=2026/11/01, vencimento=2026/12/01"_s
                .arg(description));
}

QString descriptions(const ListView &list, int column)
{
    QStringList texts;
    for (int row = 0; row < list.rowCount(); ++row)
        texts << list.cell(row, column);
    return texts.join(u' ');
}

/// The field that Ctrl+F opens.
QLineEdit *find(ListView &list)
{
    QTest::keyClick(&list, Qt::Key_F, Qt::ControlModifier);
    return list.findChild<QLineEdit *>(u"txtlocalizar"_s);
}

} // namespace

class tst_finder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wordsAreFoundWhateverTheirCaseAndAccents();
    void listIsNarrowedWhileTyping();
    void commandsReachTheRowThatIsSeen();
    void narrowedListFollowsChanges();
    void heldRowsKeepTheirOrder();
    void listThatIsReadAnewStaysNarrowed();
};

void tst_finder::wordsAreFoundWhateverTheirCaseAndAccents()
{
    StoredTable table({{u"a"_s, u"A"_s}, {u"b"_s, u"B"_s}});
    table.append(QStringList{u"AÇAÍ"_s, u"R$ 1.234,50"_s});
    table.append(QStringList{u"Pão de queijo"_s, u"são josé"_s});
    table.append(QStringList{u"acai"_s, u"ZÉ"_s});
    FindIndex index(std::make_shared<StoredTable>(table));
    while (!index.run(QDeadlineTimer(0))) {
    }
    const auto found = [&index](const QString &text) {
        QString rows;
        for (const int row : index.find(text))
            rows += QString::number(row);
        return rows;
    };
    QCOMPARE(found(u"Açai"_s), u"02"_s);
    QCOMPARE(found(u"ze acai"_s), u"2"_s);
    QCOMPARE(found(u"queijo JOSE"_s), u"1"_s);
    QCOMPARE(found(u"1.234"_s), u"0"_s);
    QCOMPARE(found(u"  "_s), u"012"_s);
    QCOMPARE(found(u"nada"_s), QString());
    QCOMPARE(found(u"acair"_s), QString()); // a word does not reach into the next cell
}

void tst_finder::listIsNarrowedWhileTyping()
{
    Shop shop;
    addPayables(shop, {u"Água"_s, u"Luz"_s, u"Aluguel"_s, u"água mineral"_s});
    shop.open();
    shop.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(shop.window.get()));
    ListView &list = *shop.list(u"lstpagar"_s);
    list.setFocus();
    QLineEdit *field = find(list);
    QVERIFY(field->isVisible() && field->hasFocus());
    QTest::keyClicks(field, u"agua"_s);
    QTRY_COMPARE(descriptions(list, 2), u"Água água mineral"_s);
    QCOMPARE(list.findChild<QLabel *>(u"lbllocalizar"_s)->text(), u"2 de 4"_s);
    QTest::keyClicks(field, u" mi"_s);
    QCOMPARE(descriptions(list, 2), u"água mineral"_s);
    QTest::keyClick(field, Qt::Key_Return);
    QVERIFY(list.hasFocus());
    QCOMPARE(list.selectedRow(), 0);
    QTest::keyClick(field, Qt::Key_Escape);
    QCOMPARE(descriptions(list, 2), u"Água Luz Aluguel água mineral"_s);
    QCOMPARE(list.selectedRow(), 3); // the same row
    QVERIFY(!field->isVisible());
    QVERIFY(!shop.screen(u"frmCliente"_s)); // Ctrl+F in a list is the list's
}

void tst_finder::commandsReachTheRowThatIsSeen()
{
    Shop shop;
    addPayables(shop, {u"Água"_s, u"Luz"_s, u"Aluguel"_s});
    addRow(shop.program, u"receber"_s,
           u"descricao=Venda, estatus=Pendente, valor=1,00, data=2026/11/01, produto=-"_s);
    shop.open();
    shop.list(u"lstreceber"_s)->selectRow(0);
    ListView &list = *shop.list(u"lstpagar"_s);
    find(list)->setText(u"luz"_s);
    QTRY_COMPARE(list.rowCount(), 1);
    list.selectRow(0);
    shop.boxes.answer(QMessageBox::Yes);
    QTest::keyClick(&list, Qt::Key_Delete);
    QCOMPARE(shop.program.rows(u"select descricao from pagar"_s), u"Água\nAluguel\n"_s);
    QCOMPARE(list.rowCount(), 0);
    shop.command(u"mnudesfazer"_s);
    QTRY_COMPARE(descriptions(list, 2), u"Luz"_s);
}

void tst_finder::narrowedListFollowsChanges()
{
    Shop shop;
    addPayables(shop, {u"Água"_s, u"Luz"_s});
    shop.open();
    ListView &list = *shop.list(u"lstpagar"_s);
    find(list)->setText(u"2026"_s);
    QTRY_COMPARE(list.rowCount(), 2);
    list.findChild<QLineEdit *>(u"txtlocalizar"_s)->setText(u"agua"_s);
    QCOMPARE(list.rowCount(), 1);
    list.selectRow(0);
    shop.boxes.answer(QMessageBox::Yes);
    shop.command(u"popbaixapagar"_s);
    QTRY_COMPARE(list.rowCount(), 1);
    QCOMPARE(list.selectedRow(), 0);
    QCOMPARE(list.cell(0, 9), u"Concluído"_s);
    list.header()->sectionClicked(2);
    QTRY_COMPARE(descriptions(list, 2), u"Água"_s);
}

void tst_finder::heldRowsKeepTheirOrder()
{
    Shop shop;
    for (const QString &title : {u"Zelar"_s, u"Entrega A"_s, u"Banco"_s, u"entrega B"_s})
        appointments::add(shop.program.database(), {u"20/12/2026"_s, u"10:00"_s, title, u"Loja"_s, u"-"_s});
    shop.open();
    shop.command(u"mnucomp"_s);
    ListView &list = *shop.list(u"lstcompromisso"_s);
    list.sortByColumn(appointments::titleColumn, Qt::DescendingOrder);
    find(list)->setText(u"ENTREGA"_s);
    QTRY_COMPARE(descriptions(list, appointments::titleColumn), u"entrega B Entrega A"_s);
    list.sortByColumn(appointments::titleColumn, Qt::AscendingOrder);
    QCOMPARE(descriptions(list, appointments::titleColumn), u"Entrega A entrega B"_s);
    QTest::keyClick(list.findChild<QLineEdit *>(u"txtlocalizar"_s), Qt::Key_Escape);
    QCOMPARE(descriptions(list, appointments::titleColumn), u"Banco Entrega A entrega B Zelar"_s);
    QVERIFY(shop.screen(u"frmCompromisso"_s)); // Esc closed the field alone
}

void tst_finder::listThatIsReadAnewStaysNarrowed()
{
    Shop shop;
    addPayables(shop, {u"Água"_s, u"Luz"_s});
    shop.open();
    ListView &list = *shop.list(u"lstpagar"_s);
    find(list)->setText(u"luz"_s);
    QTRY_COMPARE(list.rowCount(), 1);
    addPayables(shop, {u"Luz da loja"_s});
    shop.command(u"mnuatualizarlistas"_s);
    QTRY_COMPARE(descriptions(list, 2), u"Luz Luz da loja"_s);
    auto *tabs = shop.find<QTabWidget>(u"tabprincipal"_s); // also while it stands at the back
    tabs->setCurrentIndex(MainTabs::Accounts);
    shop.command(u"mnuatualizarlistas"_s);
    tabs->setCurrentIndex(MainTabs::Payables);
    QTRY_COMPARE(descriptions(list, 2), u"Luz Luz da loja"_s);
}

QTEST_MAIN(tst_finder)
#include "tst_finder.moc"
