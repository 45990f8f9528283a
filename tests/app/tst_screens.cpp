#include "bank/accounts.h"
#include "settings/database.h"
#include "settings/programfolder.h"
#include "support/samples.h"
#include "support/shop.h"
#include "widgets/listview.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void fillEntry(const Shop &shop)
{
    shop.choose(u"txtdescricao"_s, u"Aluguel"_s);
    shop.choose(u"cbotipo"_s, u"Imobiliária"_s);
    shop.type(u"txtvalor"_s, u"1500"_s);
}

EntryForm sale(const QString &product, const QString &quantity)
{
    EntryForm form = sampleEntry();
    form.value = u"10,00"_s;
    form.product = product;
    form.quantity = quantity;
    return form;
}

void addBasics(TestProgram &program)
{
    accounts::add(program.database(), {u"Caixa"_s, u"1000"_s, u""_s});
    program.run(u"insert into fornecedor (nome) values ('Imobiliária')"_s);
    program.run(u"insert into cliente (nome) values ('Ana')"_s);
    program.run(u"insert into produto (produto, qtde, custo) values ('P', 10, '2,50'), ('Q', 10, '1,00')"_s);
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
    void sellingWarnsOfLowStock();
    void editingMovesTheStockAgain();
    void deletingAPayableReadsTheReceivablesList();
    void settling();
    void accountScreens();
    void filtersAreKeptAndSurviveFailures();
    void startWithoutADatabase();
    void layoutIsSavedOnClosing();
};

void tst_screens::addingAPayable()
{
    Shop shop;
    addBasics(shop.program);
    shop.open();
    QCOMPARE(shop.label(u"lblbemvindo"_s),
             u"Seja bem vindo ao software   -   sábado, 14 de novembro de 2026"_s);
    shop.find<QTabWidget>(u"tabprincipal"_s)->setCurrentIndex(frmPrincipal::MovementsTab);
    shop.command(u"mnucaddespesas"_s);
    QCOMPARE(shop.screen(u"frmAdicionar"_s)->windowTitle(), u"Adicionar Contas a pagar - Despesa"_s);
    QVERIFY(!shop.find<QLineEdit>(u"txtcusto"_s)->isVisible());
    fillEntry(shop);
    QCOMPARE(shop.text(u"txtvalor"_s), u"1.500,00"_s);
    shop.press(u"cmdinserir"_s);
    QCOMPARE(shop.boxes.seen().join(u'\n'), u"information | Cadastrada | Despesa cadastrada com sucesso!"_s);
    QVERIFY(!shop.screen(u"frmAdicionar"_s));
    QCOMPARE(shop.tab(), int(frmPrincipal::PayablesTab));
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
    QVERIFY(shop.boxes.seen().join(u'\n').startsWith(
        u"exclamation | Erro | Os seguintes dados estão em branco: "_s));
}

void tst_screens::continuingLeavesTheMainWindowAlone()
{
    Shop shop;
    addBasics(shop.program);
    shop.open();
    shop.command(u"cmdadicionarr"_s);
    fillEntry(shop);
    shop.choose(u"cbotipo"_s, u"Ana"_s);
    shop.type(u"txtdocumento"_s, u"NF 1"_s);
    shop.type(u"txtinfo"_s, u"nota"_s);
    shop.find<QCheckBox>(u"chkcontinuar"_s)->setChecked(true);
    shop.press(u"cmdinserir"_s);
    QVERIFY(shop.screen(u"frmAdicionar"_s));
    for (const QString &name : {u"txtvalor"_s, u"txtdocumento"_s, u"txtvencimento"_s, u"txtinfo"_s})
        QCOMPARE(shop.text(name), QString());
    QCOMPARE(shop.text(u"cbotipo"_s), u"Ana"_s);
    QCOMPARE(shop.list(u"lstreceber"_s)->rowCount(), 0);
    QTest::keyClick(shop.screen(u"frmAdicionar"_s), Qt::Key_Escape);
    QCOMPARE(shop.list(u"lstreceber"_s)->rowCount(), 1);
    QCOMPARE(shop.tab(), int(frmPrincipal::ReceivablesTab));
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
    QCOMPARE(shop.boxes.seen().join(u'\n'),
             u"exclamation | Erro | Os seguintes dados estão em branco: \nDescrição\n"
             "Fornecedor/cliente\nValor\nData\nVencimento"_s);
    fillEntry(shop);
    shop.type(u"txtdata"_s, u"14112026"_s);
    shop.type(u"txtvencimento"_s, u"15112026"_s);
    shop.choose(u"cboproduto"_s, u"Copo d'água"_s);
    shop.type(u"txtqtde"_s, u"2"_s);
    shop.press(u"cmdinserir"_s);
    const QString told = shop.boxes.seen().join(u'\n');
    QVERIFY2(told.startsWith(u"critical | Erro | Ocorreu o seguinte erro ao tentar cadastrar os dados: "_s),
             qPrintable(told));
    QVERIFY(shop.screen(u"frmAdicionar"_s));
    QCOMPARE(shop.text(u"txtvalor"_s), u"1.500,00"_s);
    QCOMPARE(shop.program.rows(u"select código from pagar"_s), QString());
}

void tst_screens::sellingWarnsOfLowStock()
{
    Shop shop;
    addBasics(shop.program);
    shop.open();
    shop.command(u"mnucadrececeber"_s);
    QCOMPARE(shop.text(u"txtcusto"_s), u"00,00"_s);
    fillEntry(shop);
    shop.choose(u"cbotipo"_s, u"Ana"_s);
    shop.choose(u"cboproduto"_s, u"P"_s);
    QCOMPARE(shop.text(u"txtcusto"_s), u"2,50"_s);
    shop.type(u"txtqtde"_s, u"12"_s);
    QCOMPARE(shop.text(u"txtcusto"_s), u"30,00"_s);
    shop.press(u"cmdinserir"_s);
    QCOMPARE(
        shop.boxes.seen().join(u'\n'),
        u"exclamation | Aviso de estoque | A quantidade de produtos adicionada é maior do que a quantidade "
        u"de itens no "
        "estoque! Seu saldo no estoque ficara negativo\ninformation | Cadastrada | Receita cadastrada com sucesso!"_s);
    QCOMPARE(shop.program.rows(u"select qtde from produto where produto like 'P'"_s), u"-2\n"_s);
}

void tst_screens::editingMovesTheStockAgain()
{
    Shop shop;
    addBasics(shop.program);
    EntryForm form = sale(u"P"_s, u"8"_s); // edited, more than there is left: that warns of nothing
    form.contact = u"Cliente que já saiu"_s;
    entry::save(shop.program.database(), receivable(), form, {});
    shop.open();
    shop.list(u"lstreceber"_s)->selectRow(0);
    shop.command(u"cmdalterarr"_s);
    QCOMPARE(shop.find<QPushButton>(u"cmdinserir"_s)->text(), u"&Editar receita"_s);
    QCOMPARE(shop.text(u"cbotipo"_s), u"Cliente que já saiu"_s);
    QCOMPARE(shop.text(u"txtvencimento"_s), u"10/12/2026"_s);
    shop.press(u"cmdinserir"_s);
    QCOMPARE(shop.told(), u"information | Cadastrada | Receita cadastrada com sucesso!"_s);
    QCOMPARE(shop.program.rows(u"select cliente, qtde, valor, vencimento from receber"_s),
             u"Cliente que já saiu | 8 | 10,00 | 2026/12/10\n"_s);
    QCOMPARE(shop.program.rows(u"select qtde from produto where produto like 'P'"_s), u"-6\n"_s);
}

void tst_screens::deletingAPayableReadsTheReceivablesList()
{
    Shop shop;
    addBasics(shop.program);
    entry::save(shop.program.database(), payable(), sale(u"P"_s, u"4"_s), {});
    entry::save(shop.program.database(), receivable(), sale(u"Q"_s, u"2"_s), {});
    shop.open();
    shop.list(u"lstpagar"_s)->selectRow(0);
    shop.boxes.answer(QMessageBox::Yes);
    shop.command(u"cmdremoverd"_s);
    QCOMPARE(shop.boxes.seen().value(0),
             u"question | Remover | Tem certeza que deseja remover o item selecionado do banco de dados?"_s);
    QCOMPARE(shop.list(u"lstpagar"_s)->rowCount(), 1); // no receivables line is selected

    shop.list(u"lstreceber"_s)->selectRow(0);
    shop.boxes.answer(QMessageBox::No);
    shop.command(u"cmdremoverd"_s);
    QCOMPARE(shop.list(u"lstpagar"_s)->rowCount(), 1);
    shop.boxes.answer(QMessageBox::Yes);
    shop.command(u"cmdremoverd"_s);
    QCOMPARE(shop.list(u"lstpagar"_s)->rowCount(), 0);
    QCOMPARE(shop.program.rows(u"select produto, qtde from produto"_s), u"P | 14\nQ | 6\n"_s);
    shop.boxes.answer(QMessageBox::Yes);
    shop.command(u"cmdremoverr"_s);
    QCOMPARE(shop.program.rows(u"select produto, qtde from produto"_s), u"P | 14\nQ | 8\n"_s);
    QVERIFY(shop.boxes.unanswered().isEmpty());
}

void tst_screens::settling()
{
    Shop shop;
    addBasics(shop.program);
    entry::save(shop.program.database(), payable(), sale(u"-"_s, u""_s), {});
    shop.open();
    shop.list(u"lstpagar"_s)->selectRow(0);
    shop.boxes.answer(QMessageBox::Yes);
    shop.command(u"popbaixapagar"_s);
    QCOMPARE(shop.boxes.seen().join(u'\n'),
             u"question | Efetuar baixa | Deseja efetuar uma baixa para está despesa?"_s);
    QCOMPARE(shop.program.rows(u"select estatus, vencimento from pagar"_s), u"Concluído | 14/11/2026\n"_s);
    QCOMPARE(shop.list(u"lstpagar"_s)->cell(0, 5), u"14/11/2026"_s);
    QCOMPARE(shop.list(u"lstcaixabanco"_s)->cell(0, 1), u"R$ 990,00"_s);
}

void tst_screens::accountScreens()
{
    Shop shop;
    shop.open();
    shop.command(u"mnucadbancos"_s);
    shop.press(u"cmdinserir"_s);
    shop.type(u"txtvalor"_s, u"250,5"_s);
    shop.press(u"cmdinserir"_s);
    QCOMPARE(shop.boxes.seen().join(u'\n'), u"exclamation | Erro | O campo valor deve ser preenchido!\n"
                                            "exclamation | Erro | O campo nome deve ser preenchido!"_s);
    shop.type(u"txtnome"_s, u"Cofre"_s);
    shop.press(u"cmdinserir"_s);
    QVERIFY(!shop.screen(u"frmbanco"_s));
    QCOMPARE(shop.tab(), int(frmPrincipal::AccountsTab));
    QCOMPARE(shop.list(u"lstcaixabanco"_s)->cell(0, 1), u"R$ 250,50"_s);
    QVERIFY(shop.find<QPlainTextEdit>(u"txtresucaixa"_s)
                ->toPlainText()
                .startsWith(u"Caixa/Banco: Cofre( )\nO saldo neste banco inicio com R$ 250,5\n"_s));

    shop.list(u"lstcaixabanco"_s)->selectRow(0);
    shop.command(u"cmdalterarb"_s);
    QVERIFY(shop.screen(u"frmeditarbanco"_s));
    QVERIFY(shop.find<QLineEdit>(u"txtnome"_s)->isReadOnly());
    shop.type(u"txtvalor"_s, u"300"_s);
    shop.press(u"cmdinserir"_s);
    QCOMPARE(shop.list(u"lstcaixabanco"_s)->cell(0, 3), u"R$ 300,00"_s);

    shop.list(u"lstcaixabanco"_s)->selectRow(0);
    shop.boxes.answer(QMessageBox::Yes);
    shop.command(u"cmdremoverb"_s);
    QCOMPARE(shop.boxes.seen().join(u'\n'),
             u"question | Remover | Tem certeza que deseja remover Cofre (R$ 300,00) do banco de dados?"_s);
    QCOMPARE(shop.list(u"lstcaixabanco"_s)->rowCount(), 0);
}

void tst_screens::filtersAreKeptAndSurviveFailures()
{
    Shop shop;
    addBasics(shop.program);
    EntryForm form = sale(u"-"_s, u""_s);
    entry::save(shop.program.database(), receivable(), form, {});
    form.contact = u"D'Ávila"_s;
    entry::save(shop.program.database(), receivable(), form, {});
    shop.open();
    shop.choose(u"cbocliente"_s, u"Ana"_s);
    QCOMPARE(shop.list(u"lstreceber"_s)->rowCount(), 1);
    shop.choose(u"cbocliente"_s, u"D'Ávila"_s);
    QCOMPARE(shop.boxes.seen().size(), 1);
    QCOMPARE(shop.list(u"lstreceber"_s)->rowCount(), 1);
    QCOMPARE(shop.text(u"cbocliente"_s), u"Ana"_s);
    shop.choose(u"cbofiltror"_s, u"apenas do dia"_s);
    QCOMPARE(shop.list(u"lstreceber"_s)->rowCount(), 1);
    shop.choose(u"cbotipor"_s, u"Concluídos"_s);
    QVERIFY(shop.label(u"lbltotalr"_s).startsWith(u"0 cadastrados  -  Total de lucros: 0,00"_s));

    shop.window.reset();
    shop.open();
    QCOMPARE(shop.text(u"cbocliente"_s), u"Ana"_s);
    QCOMPARE(shop.text(u"cbotipor"_s), u"Concluídos"_s);
    QCOMPARE(settings::value(settings::receivablePeriod), u"apenas do dia"_s);
}

void tst_screens::startWithoutADatabase()
{
    Shop shop;
    closeDatabase();
    QVERIFY(QFile::remove(databasePath()));
    shop.open();
    const QStringList told = shop.boxes.seen();
    QCOMPARE(told.size(), 1);
    QVERIFY(told[0].startsWith(
        u"critical | Erro | Ocorreu o seguinte erro ao tentar abrir o banco de dados: "_s));
    QVERIFY(shop.window->isVisible());
    QVERIFY(!QFile::exists(databasePath()));
    shop.command(u"cmdadicionard"_s);
    QCOMPARE(shop.boxes.seen().size(), 1);
    QVERIFY(!shop.screen(u"frmAdicionar"_s));
}

/// What was not changed keeps its fine width, and one file that cannot be written does not keep the others from it.
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
