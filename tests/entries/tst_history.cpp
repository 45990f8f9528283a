#include "entries/contacthistory.h"
#include "support/shop.h"

using namespace Qt::StringLiterals;
using contacthistory::Shown;

class tst_history : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void queries();
    void theEntriesOfOneClient();
    void fromTheListOfSuppliers();
};

void tst_history::queries()
{
    QCOMPARE(contacthistory::query(clientHistory(), u"Ana"_s, Shown::All),
             u"SELECT * FROM receber where (cliente like 'Ana') order by data"_s);
    QCOMPARE(
        contacthistory::query(clientHistory(), u"Ana"_s, Shown::Pending),
        u"SELECT * FROM receber where (cliente like 'Ana') AND (estatus like 'Pendente') order by data"_s);
    QCOMPARE(
        contacthistory::query(supplierHistory(), u"Z%"_s, Shown::Settled),
        u"SELECT * FROM pagar where (fornecedor like 'Z%') AND (estatus like 'Concluído') order by data"_s);
}

void tst_history::theEntriesOfOneClient()
{
    Shop shop;
    shop.program.database().executeNative(
        "INSERT INTO cliente (nome, tipo, cpf, tel2, cel, nascimento, insc) VALUES ('Ana', 'f', '123', '1', "
        "'2', '1990/03/05', 'x'), ('D''Arc', 'j', '', '', '', '', '');"
        "INSERT INTO receber (estatus, cliente, data, documento, descricao, produto, qtde, origem, valor, "
        "moeda, informacoes) VALUES ('Pendente', 'ANA', '2026/11/02', 'NF', 'Venda', 'P', '2', 'Caixa', "
        "'100,00', 'R$', 'i'), ('Pendente', 'Ana', '2026/11/03', '', '', '-', '', 'Caixa', '100,00', 'R$', "
        "''), ('Concluído', 'Ana', '2026/11/01', '', '', '-', '', 'Caixa', '50,00', 'R$', '')");
    shop.open();
    shop.command(u"mnufincli"_s);
    shop.press(u"cmdverificar"_s);
    QCOMPARE(shop.told(), u"exclamation | Erro | Nenhum cliente foi selecionado!"_s);
    shop.choose(u"cbonome"_s, u"Ana"_s);
    shop.press(u"cmdverificar"_s);
    QCOMPARE(shop.label(u"lbltotal"_s),
             u"3 cadastrados  -  Total de lucros: R$ 250,00  -  Total recebido: R$ 50,00  -  Total "
             "pendente: R$ 200,00"_s);
    QStringList cells;
    for (int column = 0; column < 9; ++column)
        cells << shop.list(u"lstdados"_s)->cell(1, column);
    QCOMPARE(cells.join(u'|'), u"02/11/2026|NF |Venda |P |2 |Caixa |R$ 100,00|Pendente|i "_s);

    shop.boxes.chooseFile(shop.program.file(u"a.txt"_s));
    shop.press(u"cmdtxt"_s);
    QCOMPARE(shop.told(), u"file | Salvar financeiro de cliente em txt | Arquivos de Texto(*.txt)\n"
                          "question | Visualizar | Os dados foram salvos com sucesso para arquivo, deseja "
                          "abrir o arquivo agora?"_s);
    QFile text(shop.program.file(u"a.txt"_s));
    QVERIFY(text.open(QFile::ReadOnly));
    QVERIFY(QString::fromUtf8(text.readAll())
                .startsWith(u"HISTÓRICO FINANCEIRO DE CLIENTE\n\nCliente: Ana\n Estatus: Exibindo todos os "
                            "dados\n"_s));

    shop.find<QRadioButton>(u"optpendente"_s)->setChecked(true);
    shop.press(u"cmdverificar"_s);
    QVERIFY(shop.label(u"lbltotal"_s)
                .startsWith(u"2 cadastrados  -  Total de lucros: R$ 200,00  -  Total "
                            "recebido: R$ 0,00"_s));
    shop.choose(u"cbonome"_s, u"D'Arc"_s); // the list stays as it was
    QVERIFY(shop.told().startsWith(u"critical | Erro | Ocorreu o seguinte erro: "_s));
    shop.press(u"cmdverificar"_s);
    QVERIFY(shop.told().startsWith(u"critical | Erro | Ocorreu o seguinte erro: "_s));
    QCOMPARE(shop.list(u"lstdados"_s)->rowCount(), 2);
}

void tst_history::fromTheListOfSuppliers()
{
    Shop shop;
    shop.program.database().executeNative(
        "INSERT INTO fornecedor (nome) VALUES ('Zé'), ('Eva');"
        "INSERT INTO pagar (estatus, fornecedor, data, valor, moeda) VALUES ('Pendente', 'Eva', "
        "'2026/11/02', '7,00', 'R$')");
    shop.open();
    shop.command(u"mnufornecedores"_s);
    shop.list(u"lstcontato"_s)->selectRow(0);
    shop.command(u"financeiro"_s);
    QVERIFY(shop.screen(u"frmFinForn"_s));
    QCOMPARE(shop.label(u"lbltotal"_s),
             u"1 cadastros  -  Total de despesas: R$ 7,00  -  Total pago: R$ 0,00  "
             "-  Total pendente: R$ 7,00"_s);
    shop.list(u"lstdados"_s)->selectRow(0);
    Q_EMIT shop.list(u"lstdados"_s)->rowActivated(0);
    QVERIFY(shop.screen(u"frmAdicionar"_s));
}

QTEST_MAIN(tst_history)
#include "tst_history.moc"
