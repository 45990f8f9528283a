#include "bank/accounts.h"
#include "settings/database.h"
#include "settings/programfolder.h"
#include "support/samples.h"
#include "support/shop.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;

namespace {

const QString entryFields = u"txtdescricao=Aluguel, cbotipo=Imobiliária, txtvalor=1500"_s;

void addBasics(TestProgram &program)
{
    accounts::add(program.database(), {u"Caixa"_s, u"1000"_s, u""_s});
    program.run(u"insert into fornecedor (nome) values ('Imobiliária')"_s);
    program.run(u"insert into cliente (nome) values ('Ana')"_s);
    program.run(u"insert into produto (produto, qtde, custo) values ('P', 10, '2,50')"_s);
}

} // namespace

class tst_screens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addingAPayable();
    void enterWalksTheEntryScreen();
    void continuingLeavesTheMainWindowAlone();
    void missingFieldsAndFailedSaves();
    void editingMovesTheStockAgain();
    void accountScreens();
    void layoutIsSavedOnClosing();
};

void tst_screens::addingAPayable()
{
    Shop shop;
    addBasics(shop.program);
    shop.open();
    QCOMPARE(shop.label(u"lblbemvindo"_s),
             u"Seja bem vindo ao software   -   sábado, 14 de novembro de 2026"_s);
    shop.command(u"mnucaddespesas"_s);
    QVERIFY(!shop.find<QLineEdit>(u"txtcusto"_s)->isVisible());
    shop.fill(entryFields);
    QCOMPARE(shop.text(u"txtvalor"_s), u"1.500,00"_s);
    shop.press(u"cmdinserir"_s);
    QCOMPARE(shop.told(), u"information | Cadastrada | Despesa cadastrada com sucesso!"_s);
    QVERIFY(!shop.screen(u"frmAdicionar"_s));
    QCOMPARE(shop.label(u"lbltotalp"_s), u"1 cadastros  -  Total de despesas: R$ 1.500,00  -  Total pago: R$ "
                                         u"0,00  -  Total pendente: R$ 1.500,00 - "
                                         "Quantidade de produtos (entrada): 0"_s);
    QCOMPARE(shop.program.rows(
                 u"select estatus, origem, data, vencimento, documento, produto, qtde, moeda from pagar"_s),
             u"Pendente | Caixa | 2026/11/14 | 2026/11/14 |   | - |  | R$\n"_s);
}

void tst_screens::enterWalksTheEntryScreen()
{
    Shop shop;
    addBasics(shop.program);
    shop.open();
    shop.command(u"mnucaddespesas"_s);
    shop.type(u"txtdescricao"_s, u"Luz"_s);
    shop.find<QComboBox>(u"txtdescricao"_s)->setFocus();
    QStringList walked;
    for (QString name; name != u"cmdinserir" && walked.size() < 20; walked << name) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        name = QApplication::focusWidget()->objectName();
    }
    QCOMPARE(walked.join(u' '),
             u"cbotipo cbomoeda txtvalor cboestatus txtdata txtvencimento cboorigem txtdocumento "
             "cboproduto txtqtde txtinfo chkcontinuar cmdinserir"_s);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); // presses the button
    QVERIFY(shop.told().startsWith(u"exclamation | Erro | Os seguintes dados estão em branco: "_s));
}

void tst_screens::continuingLeavesTheMainWindowAlone()
{
    Shop shop;
    addBasics(shop.program);
    shop.open();
    shop.command(u"cmdadicionarr"_s);
    shop.fill(entryFields);
    shop.fill(u"cbotipo=Ana, txtdocumento=NF 1, txtinfo=nota"_s);
    shop.find<QCheckBox>(u"chkcontinuar"_s)->setChecked(true);
    shop.press(u"cmdinserir"_s);
    QVERIFY(shop.screen(u"frmAdicionar"_s));
    for (const QString &name : {u"txtvalor"_s, u"txtdocumento"_s, u"txtvencimento"_s, u"txtinfo"_s})
        QCOMPARE(shop.text(name), QString());
    QCOMPARE(shop.text(u"cbotipo"_s), u"Ana"_s);
    QCOMPARE(shop.list(u"lstreceber"_s)->rowCount(), 0);
    QTest::keyClick(shop.screen(u"frmAdicionar"_s), Qt::Key_Escape);
    QCOMPARE(shop.list(u"lstreceber"_s)->rowCount(), 1);
    QCOMPARE(shop.tab(), int(MainTabs::Receivables));
    // A list that is read meanwhile counts the change once.
    shop.list(u"lstreceber"_s)->selectRow(0);
    shop.command(u"cmdalterarr"_s);
    shop.type(u"txtvalor"_s, u"2000"_s);
    shop.find<QCheckBox>(u"chkcontinuar"_s)->setChecked(true);
    shop.press(u"cmdinserir"_s);
    shop.command(u"mnuatualizarlistas"_s);
    QTest::keyClick(shop.screen(u"frmAdicionar"_s), Qt::Key_Escape);
    QVERIFY(shop.label(u"lbltotalr"_s).contains(u"Total de lucros: R$ 2.000,00"));
}

void tst_screens::missingFieldsAndFailedSaves()
{
    Shop shop;
    addBasics(shop.program);
    shop.program.run(u"insert into produto (produto, qtde, custo) values ('Copo d''água', 1, '1,00')"_s);
    shop.open();
    shop.command(u"cmdadicionard"_s);
    shop.find<QLineEdit>(u"txtdata"_s)->clear();
    shop.find<QLineEdit>(u"txtvencimento"_s)->clear();
    shop.press(u"cmdinserir"_s);
    QCOMPARE(shop.told(), u"exclamation | Erro | Os seguintes dados estão em branco: \nDescrição\n"
                          "Fornecedor/cliente\nValor\nData\nVencimento"_s);
    shop.fill(entryFields);
    shop.fill(u"txtdata=14112026, txtvencimento=15112026, cboproduto=Copo d'água, txtqtde=2"_s);
    shop.press(u"cmdinserir"_s);
    const QString told = shop.told();
    QVERIFY2(told.startsWith(u"critical | Erro | Ocorreu o seguinte erro ao tentar cadastrar os dados: "_s),
             qPrintable(told));
    QVERIFY(shop.screen(u"frmAdicionar"_s));
    QCOMPARE(shop.text(u"txtvalor"_s), u"1.500,00"_s);
    QCOMPARE(shop.program.rows(u"select código from pagar"_s), QString());
}

void tst_screens::editingMovesTheStockAgain()
{
    Shop shop;
    addBasics(shop.program);
    EntryForm form = sampleEntry();
    form.product = u"P"_s;
    form.quantity = u"8"_s; // edited, more than there is left: that warns of nothing
    form.contact = u"Cliente que já saiu"_s;
    entry::save(shop.program.database(), receivable(), form, {});
    shop.open();
    shop.list(u"lstreceber"_s)->selectRow(0);
    shop.command(u"cmdalterarr"_s);
    QCOMPARE(shop.find<QPushButton>(u"cmdinserir"_s)->text(), u"&Editar receita"_s);
    shop.press(u"cmdinserir"_s);
    QCOMPARE(shop.told(), u"information | Cadastrada | Receita cadastrada com sucesso!"_s);
    QCOMPARE(shop.program.rows(u"select cliente, qtde, valor, vencimento from receber"_s),
             u"Cliente que já saiu | 8 | 1.234,50 | 2026/12/10\n"_s);
    QCOMPARE(shop.program.rows(u"select qtde from produto"_s), u"-6\n"_s);
}

void tst_screens::accountScreens()
{
    Shop shop;
    shop.open();
    shop.command(u"mnucadbancos"_s);
    shop.press(u"cmdinserir"_s);
    shop.type(u"txtvalor"_s, u"250,5"_s);
    shop.press(u"cmdinserir"_s);
    QCOMPARE(shop.told(), u"exclamation | Erro | O campo valor deve ser preenchido!\n"
                          "exclamation | Erro | O campo nome deve ser preenchido!"_s);
    shop.type(u"txtnome"_s, u"Cofre"_s);
    shop.press(u"cmdinserir"_s);
    QCOMPARE(shop.tab(), int(MainTabs::Accounts));
    ListView *list = shop.list(u"lstcaixabanco"_s);
    QCOMPARE(list->cell(0, 1), u"R$ 250,50"_s);
    QVERIFY(shop.find<QPlainTextEdit>(u"txtresucaixa"_s)
                ->toPlainText()
                .startsWith(u"Caixa/Banco: Cofre( )\nO saldo neste banco inicio com R$ 250,5\n"_s));
    list->selectRow(0);
    shop.command(u"cmdalterarb"_s);
    QVERIFY(shop.screen(u"frmeditarbanco"_s) && shop.find<QLineEdit>(u"txtnome"_s)->isReadOnly());
    shop.type(u"txtvalor"_s, u"300"_s);
    shop.press(u"cmdinserir"_s);
    QCOMPARE(list->cell(0, 3), u"R$ 300,00"_s);
    list->selectRow(0);
    shop.boxes.answer(QMessageBox::Yes);
    shop.command(u"cmdremoverb"_s);
    QCOMPARE(shop.told(),
             u"question | Remover | Tem certeza que deseja remover Cofre (R$ 300,00) do banco de dados?"_s);
    QCOMPARE(list->rowCount(), 0);
}

/// What was not changed keeps its fine width, and one file that cannot be written does not keep the others
/// from it.
void tst_screens::layoutIsSavedOnClosing()
{
    const auto stored = [](const QString &name) {
        QFile file(programfolder::file(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    {
        Shop shop;
        shop.open();
        shop.list(u"lstpagar"_s)->setColumnWidth(2, 200);
        shop.window->close();
        const QByteArray text = stored(u"pagar.ini"_s);
        QVERIFY2(text.contains("id=0\ndata=1319,8111\ndescricao=3000\n"), text.constData());
        QVERIFY(stored(u"receber.ini"_s).contains("data=1319,8111\n"));
        QVERIFY(stored(u"bancario.ini"_s).contains("valor=1339,6536\n"));
    }
    Shop shop;
    shop.open();
    QVERIFY(QDir().mkpath(programfolder::file(u"pagar.ini/x"_s)));
    for (const QString &list : {u"lstpagar"_s, u"lstreceber"_s, u"lstmovimento"_s})
        shop.list(list)->header()->moveSection(2, 3);
    shop.window->close();
    QCOMPARE(shop.boxes.seen().size(), 1);
    for (const QString &name : {u"receber.ini"_s, u"bancario.ini"_s})
        QVERIFY2(stored(name).contains("posicao3=4\nposicao4=3\n"), stored(name).constData());
}

QTEST_MAIN(tst_screens)
#include "tst_screens.moc"
