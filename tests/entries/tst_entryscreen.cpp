#include "app/application.h"
#include "bank/frmbanco.h"
#include "bank/frmmovimentobanc.h"
#include "entries/frmadicionar.h"
#include "entries/frmcadcli.h"
#include "settings/database.h"
#include "stock/frmcadproduto.h"
#include "support/answers.h"
#include "support/samples.h"
#include "support/shop.h"

#include <QAbstractItemView>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

/// A screen that changes one row: how the row is made, the screen opened and saved.
struct EditScreen
{
    QString insert;
    std::function<QDialog *()> open;
    QString save, table;
};

/// Longer than a field takes unless told otherwise, with what a field of several lines would change, and an
/// entry's trailing blank.
const QString longText = u"x"_s.repeated(40'000) + u"\r\nR$\u00A01 fim "_s;

const std::vector<EditScreen> &editScreens()
{
    const QString name = longText.trimmed();
    static const std::vector<EditScreen> screens{
        {u"insert into receber (estatus, origem, cliente, data, vencimento, descricao, documento, informacoes, valor, moeda, produto, qtde, custo) values ('Pendente', 'Caixa', '%1', '2026/11/14', '2026/12/10', '%1', '%2', '%2', '-1.234,50', '€', 'P', '12 un', '1,11')"_s
             .arg(name, longText),
         [] { return frmAdicionar::openEdit(receivable(), u"1"_s, nullptr); }, u"cmdinserir"_s, u"receber"_s},
        {u"insert into cliente (nome, cpf, nascimento, pais, estado, cidade, bairro, endereco, tel, tel2, cel, site, email, insc, local, adicionais, tipo) values ('%1', '%1', '1970/03/05', '%1', '%1', '%1', '%1', '%1', '%1', '%1', '%1', '%1', '%1', '%1', '%1', '%1', 'j')"_s
             .arg(name),
         [] { return frmCadCli::openEdit(clients(), u"1"_s, nullptr); }, u"cmdok"_s, u"cliente"_s},
        {u"insert into banco (banco, saldo, informacoes) values ('%1', '-7,00', '%2')"_s.arg(name, longText),
         [name] { return frmbanco::openEdit(name, nullptr); }, u"cmdinserir"_s, u"banco"_s},
        {u"insert into bancario (estatus, movimento, origem, destino, data, valor, informacoes) values ('Pendente', 'Outro', '%1', ' - ', '2026/11/14', '3,00', '%2')"_s
             .arg(name, longText),
         [] { return frmmovimentobanc::openEdit(1, nullptr); }, u"cmdeditar"_s, u"bancario"_s},
        {u"insert into produto (produto, qtde, custo, info) values ('%1', -2.5, '3,00', '%2')"_s.arg(
             name, longText),
         [name] { return frmcadproduto::openEdit(name, nullptr); }, u"cmdadicionar"_s, u"produto"_s}};
    return screens;
}

void addSales(Shop &shop, int count)
{
    shop.program.run(u"insert into produto (produto, qtde, custo) values ('Café', 100, '7,50')"_s);
    for (int i = 0; i < count; ++i)
        entry::save(shop.program.database(), receivable(), sampleEntry(), {});
}

} // namespace

class tst_entryscreen : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savingUntouchedKeepsTheRow();
    void savingIntoAnotherFileIsRefused();
    void productChosenAgainReadsItsCostAgain();
    void continuingAfterAnEditAddsAnEntry();
    void closingWithoutSavingReadsTheListsAgain();
    void errorThatNothingCaughtIsShown();
};

void tst_entryscreen::savingUntouchedKeepsTheRow()
{
    for (const EditScreen &edited : editScreens()) {
        Shop shop;
        shop.program.run(u"insert into produto (produto, qtde, custo) values ('P', 10, '7,50')"_s);
        shop.program.run(edited.insert);
        const QString query = u"select * from "_s + edited.table +
                              (edited.table == u"produto" ? u" where (produto <> 'P')"_s : QString());
        const QString before = shop.program.rows(query);
        const QPointer<QDialog> screen = edited.open();
        QVERIFY(screen);
        bool announcedOpen = false;
        const auto watch = connect(&Changes::instance(), &Changes::changed, this,
                                   [&] { announcedOpen = screen && screen->isVisible(); });
        shop.press(edited.save);
        disconnect(watch);
        QVERIFY2(shop.program.rows(query) == before, qPrintable(edited.table));
        QVERIFY(!screen || !screen->isVisible());
        QVERIFY(!announcedOpen);
        if (edited.table == u"receber")
            QCOMPARE(shop.program.rows(u"select qtde from produto"_s), u"-2\n"_s);
    }
}

void tst_entryscreen::savingIntoAnotherFileIsRefused()
{
    for (const EditScreen &edited : editScreens()) {
        Shop shop;
        shop.program.run(edited.insert);
        const std::unique_ptr<QDialog> screen(edited.open());
        replaceDatabase();
        const QString before = shop.program.rows(u"select * from "_s + edited.table);
        shop.press(edited.save);
        const QString told = shop.boxes.seen().join(u'\n');
        QVERIFY2(told.startsWith(u"critical | Erro | "_s) && told.contains(u"foi trocado"_s),
                 qPrintable(told));
        QVERIFY(screen->isVisible());
        QVERIFY(shop.program.rows(u"select * from "_s + edited.table) == before);
    }
}

void tst_entryscreen::productChosenAgainReadsItsCostAgain()
{
    Shop shop;
    addSales(shop, 0);
    const std::unique_ptr<QDialog> screen(frmAdicionar::openNew(receivable(), nullptr));
    QCOMPARE(shop.text(u"txtcusto"_s), u"00,00"_s);
    shop.choose(u"cboproduto"_s, u"Café"_s);
    QCOMPARE(shop.text(u"txtcusto"_s), u"7,50"_s);
    shop.type(u"txtqtde"_s, u"1.000"_s);
    QCOMPARE(shop.text(u"txtcusto"_s), u"7.500,00"_s);
    auto *products = shop.find<QComboBox>(u"cboproduto"_s);
    products->showPopup();
    QTest::keyClick(products->view(), Qt::Key_Return); // the one that is chosen already
    QCOMPARE(shop.text(u"txtcusto"_s), u"7,50"_s);
}

void tst_entryscreen::continuingAfterAnEditAddsAnEntry()
{
    Shop shop;
    addSales(shop, 1);
    shop.program.run(u"insert into cliente (nome) values ('Bia')"_s);
    shop.open();
    shop.list(u"lstreceber"_s)->selectRow(0);
    shop.command(u"cmdalterarr"_s);
    shop.find<QCheckBox>(u"chkcontinuar"_s)->setChecked(true);
    shop.choose(u"cbotipo"_s, u"Bia"_s);
    shop.press(u"cmdinserir"_s);
    QCOMPARE(shop.find<QPushButton>(u"cmdinserir"_s)->text(), u"&Inserir receita"_s);
    shop.fill(u"txtvalor=2, txtvencimento=15112026"_s);
    shop.press(u"cmdinserir"_s);
    QCOMPARE(shop.program.rows(u"select código, cliente, valor from receber"_s),
             u"1 | Bia | 1.234,50\n2 | Bia | 2,00\n"_s);
    QCOMPARE(shop.list(u"lstreceber"_s)->rowCount(), 1); // the main window waits
    shop.press(u"cmdcancelar"_s);
    QCOMPARE(shop.list(u"lstreceber"_s)->rowCount(), 2);
}

void tst_entryscreen::closingWithoutSavingReadsTheListsAgain()
{
    Shop shop;
    shop.open();
    shop.command(u"cmdadicionarr"_s);
    addSales(shop, 1);
    shop.program.run(u"update receber set cliente='Caio'"_s);
    shop.press(u"cmdcancelar"_s);
    QCOMPARE(shop.list(u"lstreceber"_s)->cell(0, 4), u"Caio"_s);
    QCOMPARE(shop.tab(), int(MainTabs::Receivables));
}

void tst_entryscreen::errorThatNothingCaughtIsShown()
{
    Shop shop;
    const std::unique_ptr<QDialog> screen(frmAdicionar::openNew(payable(), nullptr));
    shop.type(u"txtinfo"_s, u"digitado"_s);
    QTimer::singleShot(0, this, [] { throw Error(Error::Kind::Data, u"o valor é grande demais."_s); });
    QTimer::singleShot(0, this, [] { throw std::bad_alloc(); });
    QStringList told;
    QVERIFY(QTest::qWaitFor([&] { return (told += shop.boxes.seen()).size() == 2; }));
    QVERIFY(told.contains(u"critical | Erro | Ocorreu o seguinte erro: o valor é grande demais."_s));
    QCOMPARE(shop.text(u"txtinfo"_s), u"digitado"_s);
}

int main(int argc, char *argv[])
{
    Application application(argc, argv);
    tst_entryscreen test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_entryscreen.moc"
