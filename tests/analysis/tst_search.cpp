#include "analysis/globalsearch.h"
#include "settings/database.h"
#include "support/ledger.h"
#include "support/shop.h"

using namespace Qt::StringLiterals;

namespace {

void fill(TestProgram &program)
{
    addRow(program, u"pagar"_s,
           u"descricao=Água e esgoto, fornecedor=SABESP, valor=1.234,50, vencimento=2026/11/20, "
           u"estatus=Pendente, "
           "moeda=R$, origem=Caixa, data=2026/11/01"_s);
    addRow(
        program, u"receber"_s,
        u"descricao=Venda, cliente=José Água Boa, valor=1.000,00, vencimento=20/11/2026, estatus=Concluído"_s);
    addRow(program, u"bancario"_s, u"movimento=Depósito, origem=Caixa, valor=1.234,50, data=2026/11/20"_s);
    addRow(program, u"cliente"_s, u"nome=José Água Boa, cidade=São Paulo, tel=5555-0101"_s);
    addRow(program, u"fornecedor"_s, u"nome=SABESP"_s);
    addRow(program, u"produto"_s, u"produto=Água com gás, qtde=7, custo=2,00"_s);
    addRow(program, u"compromisso"_s, u"Titulo=Trocar a água, data=2026/11/20, local=Loja"_s);
}

QString found(const QString &text)
{
    GlobalSearch search(openDatabase(), text);
    while (!search.run(QDeadlineTimer(0))) {
    }
    QStringList kinds;
    for (int row = 0; row < search.result()->rowCount(); ++row)
        kinds << search.result()->cell(row, 0);
    return kinds.join(u", "_s);
}

} // namespace

class tst_search : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wordsAmountsAndDatesAreFound();
    void everyKindOpensItsScreen();
    void manyAreCut();
};

void tst_search::wordsAmountsAndDatesAreFound()
{
    TestProgram program;
    fill(program);
    QCOMPARE(found(u"AGUA"_s), u"Conta a pagar, Conta a receber, Cliente, Produto, Compromisso"_s);
    QCOMPARE(found(u"agua boa"_s), u"Conta a receber, Cliente"_s);
    QCOMPARE(found(u"1234,50"_s), u"Conta a pagar, Movimento bancário"_s);
    QCOMPARE(found(u"1.234,50 caixa sabesp"_s), u"Conta a pagar"_s);
    QCOMPARE(found(u"20/11/2026"_s), u"Conta a pagar, Conta a receber, Movimento bancário, Compromisso"_s);
    QCOMPARE(found(u"5555-0101"_s), u"Cliente"_s);
    QCOMPARE(found(u" "_s) + found(u"nada disso"_s), QString());
}

void tst_search::everyKindOpensItsScreen()
{
    Shop shop;
    fill(shop.program);
    shop.open();
    auto *box = shop.find<QLineEdit>(u"txtprocurartudo"_s);
    box->setText(u"água"_s);
    QTest::keyClick(box, Qt::Key_Return);
    QTRY_COMPARE(shop.list(u"lstachados"_s)->rowCount(), 5);
    const QString screens[] = {u"frmAdicionar"_s, u"frmAdicionar"_s, u"frmCadCli"_s, u"frmcadproduto"_s,
                               u"frmCadCompromisso"_s};
    for (int row = 0; row < 5; ++row) {
        Q_EMIT shop.list(u"lstachados"_s)->rowActivated(row);
        QDialog *opened = nullptr;
        for (QWidget *top : QApplication::topLevelWidgets())
            if (auto *dialog = qobject_cast<QDialog *>(top);
                dialog && dialog->isVisible() &&
                QLatin1StringView(dialog->metaObject()->className()) == screens[row])
                opened = dialog;
        QVERIFY2(opened, qPrintable(screens[row]));
        opened->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QCOMPARE(shop.told(), QString());
}

void tst_search::manyAreCut()
{
    TestProgram program;
    program.database().executeNative(
        "WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 400) "
        "INSERT INTO pagar (descricao) SELECT 'Luz ' || i FROM n");
    GlobalSearch search(openDatabase(), u"luz"_s);
    QVERIFY(search.run(QDeadlineTimer(QDeadlineTimer::Forever)));
    QVERIFY(search.isCut());
    QCOMPARE(search.result()->rowCount(), GlobalSearch::mostOfKind);
    QCOMPARE(search.result()->cell(0, 2), u"Luz 400"_s); // the newest first
    QCOMPARE(search.rowsRead(), search.rowsInAll());
}

QTEST_MAIN(tst_search)
#include "tst_search.moc"
