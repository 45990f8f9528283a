#include "settings/settings.h"
#include "support/answers.h"
#include "support/paper.h"
#include "support/shop.h"

#include <QProcess>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// Payables of 1, 2, 4 and 8 reais, receivables of 10 to 80 that sold 1 to 4 of a product, deposits of 100 to
/// 300: nothing else adds up to what these do. The payables' due dates fall while their keys rise.
struct Book : Shop
{
    Book()
    {
        program.database().executeNative(
            "INSERT INTO banco VALUES ('Caixa', '1.000,00', ' '), ('Banco', '0,00', ' ');INSERT INTO produto "
            "VALUES ('P', 100, '2,50', ' '), ('Q', 7, '1,00', ' ');INSERT INTO cliente (nome) VALUES "
            "('Ana'); INSERT INTO fornecedor (nome) VALUES ('Zé');INSERT INTO pagar (estatus, origem, "
            "fornecedor, data, vencimento, descricao, valor, moeda, produto, qtde) VALUES ('Pendente', "
            "'Caixa', 'Zé', '2026/11/14', '2026/12/09', 'Luz', '1,00', 'R$', '-', ''), ('Pendente', 'Banco', "
            "'Zé', '2026/11/01', '2026/12/08', 'Luz', '2,00', 'R$', '-', ''), ('Pendente', 'Caixa', 'Eva', "
            "'2026/11/14', '2026/12/07', 'Luz', '4,00', 'R$', '-', ''), ('Pendente', 'Caixa', 'Zé', "
            "'2025/11/14', '2026/12/06', 'Gás', '8,00', 'R$', 'Q', '3');INSERT INTO receber (estatus, "
            "origem, cliente, data, vencimento, descricao, valor, moeda, produto, qtde, custo) VALUES "
            "('Pendente', 'Caixa', 'Ana', '2026/11/14', '2026/12/01', 'Venda', '10,00', 'R$', 'P', '1', "
            "'2,50'), ('Pendente', 'Banco', 'Ana', '2026/11/01', '2026/12/01', 'Venda', '20,00', 'R$', 'P', "
            "'2', '2,50'), ('Pendente', 'Caixa', 'Bia', '2026/11/14', '2026/12/01', 'Venda', '40,00', 'R$', "
            "'P', '3', '2,50'), ('Pendente', 'Caixa', 'Ana', '2025/11/14', '2026/12/01', 'Outra', '80,00', "
            "'R$', 'P', '4', '2,50');INSERT INTO bancario (estatus, movimento, origem, destino, data, valor, "
            "informacoes) VALUES ('Concluído', 'Depósito', 'Caixa', ' - ', '2026/11/14', '100,00', ' '), "
            "('Concluído', 'Retirada', 'Caixa', ' - ', '2026/11/14', '50,00', ' '), ('Concluído', "
            "'Depósito', 'Caixa', ' - ', '2026/11/01', '300,00', ' ')");
    }

    /// "lstpagar 1 2": selects the second and the third row, the second being the current one.
    void select(const QString &rows) const
    {
        const QStringList words = rows.split(u' ');
        ListView *view = list(words[0]);
        view->selectRow(words[1].toInt());
        for (const QString &row : words.sliced(2))
            view->selectionModel()->select(view->model()->index(row.toInt(), 0),
                                           QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    /// "1P 2C": the rows of the list, by key and first letter of the status.
    QString listed(const QString &name) const
    {
        QStringList rows;
        const QAbstractItemModel *model = list(name)->model();
        for (int column = 0; column < model->columnCount(); ++column)
            for (int row = 0; row < model->rowCount(); ++row)
                if (model->headerData(column, Qt::Horizontal).toString() == u"Estatus")
                    rows << list(name)->cell(row, 0) + list(name)->cell(row, column).left(1);
        return rows.join(u' ');
    }
    QString filed(const QString &table)
    {
        return program.rows(u"select código, estatus from "_s + table)
            .replace(QRegularExpression(u" \\| (.).*\n"_s), u"\\1 "_s)
            .trimmed();
    }
    /// The figures of a line of totals.
    QString figures(const QString &name) const
    {
        QStringList found;
        static const QRegularExpression figure(u"-?\\d[\\d.,]*"_s);
        for (const auto &match : figure.globalMatch(label(name)))
            found << match.captured();
        return found.join(u' ');
    }
    /// Closes the screens over the main window; gives their names and titles.
    QString closeScreens() const
    {
        QString closed;
        QList<QPointer<QWidget>> screens;
        for (QWidget *top : QApplication::topLevelWidgets())
            if (qobject_cast<QDialog *>(top) && top->isVisible()) {
                screens << top;
                closed += top->objectName() + u", "_s + top->windowTitle();
            }
        for (const QPointer<QWidget> &open : screens)
            delete open; // and those over it
        return closed;
    }
    QString balance() const { return list(u"lstcaixabanco"_s)->cell(0, 1); }
    QString stock() { return program.rows(u"select qtde from produto where (produto like 'P')"_s).trimmed(); }
    /// The file, the list, its totals, the balance and the stock.
    QString state(const QString &shown)
    {
        const bool movements = shown == u"lstmovimento";
        const QString table = movements ? u"bancario"_s : shown.mid(3);
        const QString totals = u"lbltotal"_s + (movements ? u'm' : table[0]);
        return QStringList{filed(table), listed(shown), figures(totals), balance(), stock()}.join(u"; "_s);
    }
};

QString contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class tst_commands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commandsActOnWhatIsSelected();
    void windowFollowsOtherScreensUnlessSwitchedOff();
    void missedWritesComeWithTheNext();
    void balancesAreComputedWhenTheSettingSays();
    void filtersChooseRows();
    void choicesComeBackAtStart();
    void menuOpensItsScreen();
    void buttonsWriteWhatTheyShow();
    void labelsAreOfTheListShown();
    void rowColoursAlternate();
    void calculatorStarts();
};

/// Whatever the main window does with the writes of other screens, it shows those of its own commands.
void tst_commands::commandsActOnWhatIsSelected()
{
    struct Line
    {
        QString select, command;
        QMessageBox::StandardButton answer;
        QString told, after;
        QString meanwhile = {}; ///< what another installation does between selection and command
    };
    const QString settle = u"question | Efetuar baixa | Deseja efetuar uma baixa para "_s;
    const QString remove =
        u"question | Remover | Tem certeza que deseja remover o item selecionado do banco de dados?"_s;
    const QString gone = u"Este lançamento não existe mais."_s;
    const QMessageBox::StandardButton yes = QMessageBox::Yes, no = QMessageBox::No;
    const QString payables = u"1P 2P 3P 4P; 4P 3P 2P 1P; 4 15,00 0,00 15,00 3; R$ 1.350,00; 100"_s;
    const QString receivables = u"1P 2P 3P 4P; 1P 2P 3P 4P; 4 150,00 0,00 150,00 10; R$ 1.350,00; 100"_s;
    const QString movements = u"1C 2C 3C; 3C 1C 2C; 400,00 2 50,00 1 0,00 0; R$ 1.350,00; 100"_s;
    const Line lines[] = {
        {u"lstpagar 1"_s, u"popbaixapagar"_s, no, settle + u"está despesa?"_s, payables},
        {u"lstpagar 1"_s, u"popbaixapagar"_s, yes, settle + u"está despesa?"_s,
         u"1P 2P 3C 4P; 3C 4P 2P 1P; 4 15,00 4,00 11,00 3; R$ 1.346,00; 100"_s},
        {u"lstpagar 2 3"_s, u"popbaixapagar"_s, yes, settle + u"as 2 despesas selecionadas?"_s,
         u"1C 2C 3P 4P; 1C 2C 4P 3P; 4 15,00 3,00 12,00 3; R$ 1.349,00; 100"_s},
        {u"lstpagar -1"_s, u"popbaixapagar"_s, yes,
         u"information | Lançamentos | Selecione um lançamento na lista."_s, payables},
        {u"lstreceber 2"_s, u"popbaixareceber"_s, yes, settle + u"está receita?"_s,
         u"1P 2P 3C 4P; 1P 2P 3C 4P; 4 150,00 40,00 110,00 10; R$ 1.390,00; 100"_s},
        {u"lstreceber 1 3"_s, u"popbaixareceber"_s, yes, settle + u"as 2 receitas selecionadas?"_s,
         u"1P 2C 3P 4C; 1P 2C 3P 4C; 4 150,00 100,00 50,00 10; R$ 1.430,00; 100"_s},
        {u"lstreceber 1 3"_s, u"popbaixareceber"_s, yes,
         settle + u"as 2 receitas selecionadas?\ninformation | Efetuar baixa | "_s + gone,
         u"1P 2P 3P; 1P 2P 3P; 3 70,00 0,00 70,00 6; R$ 1.350,00; 100"_s,
         u"delete from receber where código=4"_s},
        {u"lstreceber 2"_s, u"cmdremoverr"_s, no, remove, receivables},
        {u"lstreceber 2"_s, u"cmdremoverr"_s, yes, remove,
         u"1P 2P 4P; 1P 2P 4P; 3 110,00 0,00 110,00 7; R$ 1.350,00; 103"_s},
        {u"lstreceber 1 2"_s, u"cmdremoverr"_s, yes, remove,
         u"1P 4P; 1P 4P; 2 90,00 0,00 90,00 5; R$ 1.350,00; 105"_s},
        {u"lstreceber 1 2"_s, u"cmdremoverr"_s, yes, remove + u"\ninformation | Remover | "_s + gone,
         u"1P 2P 4P; 1P 2P 4P; 3 110,00 0,00 110,00 7; R$ 1.350,00; 100"_s,
         u"delete from receber where código=3"_s},
        {u"lstpagar 1 2"_s, u"cmdremoverd"_s, yes,
         remove +
             u"\nexclamation | Remover | Nada foi removido. Selecione também, na lista de contas a receber, a linha do produto cujo estoque será corrigido."_s,
         payables},
        {u"lstreceber 2,lstpagar 1 2"_s, u"cmdremoverd"_s, yes, remove,
         u"1P 4P; 4P 1P; 2 9,00 0,00 9,00 3; R$ 1.350,00; 94"_s},
        {u"lstmovimento 1 2"_s, u"cmdremoverm"_s, no, remove, movements},
        {u"lstmovimento 1 2"_s, u"cmdremoverm"_s, yes, remove,
         u"3C; 3C; 300,00 1 0,00 0 0,00 0; R$ 1.300,00; 100"_s},
        {u"lstmovimento -1"_s, u"cmdremoverm"_s, yes,
         u"information | Movimento bancário | Selecione um movimento na lista."_s, movements},
        {u"lstmovimento 1"_s, u"cmdremoverm"_s, yes,
         remove +
             u"\ncritical | Erro | Ocorreu o seguinte erro ao tentar remover os dados: este movimento não existe mais; ele foi removido por outro usuário."_s,
         u"2C 3C; 3C 2C; 300,00 1 50,00 1 0,00 0; R$ 1.350,00; 100"_s,
         u"delete from bancario where código=1"_s},
        // Its line is blank, and goes with the next notice.
        {u"lstmovimento 1"_s, u"cmdalterarm"_s, yes,
         u"information | Editar movimento bancário | Este movimento não existe mais."_s,
         u"2C 3C; 3C  2C; 400,00 2 50,00 1 0,00 0; R$ 1.350,00; 100"_s,
         u"delete from bancario where código=1"_s},
    };
    int count = 0;
    for (const Line &line : lines) {
        Book shop;
        settings::setValue(settings::refreshMainWindow, QString::number(++count % 2));
        shop.open();
        for (const QString &rows : line.select.split(u','))
            shop.select(rows);
        if (!line.meanwhile.isEmpty())
            shop.program.run(line.meanwhile);
        shop.boxes.answer(line.answer);
        shop.command(line.command);
        QCOMPARE(shop.told(), line.told);
        QCOMPARE(shop.state(line.select.section(u',', -1).section(u' ', 0, 0)), line.after);
        QCOMPARE(shop.tab(), int(MainTabs::Payables));
    }
}

/// A screen that writes, and what the window shows of it: at once, or when the lists are read anew.
void tst_commands::windowFollowsOtherScreensUnlessSwitchedOff()
{
    struct Line
    {
        QString command, fields, save, list;
        int tab;
        QString written, shown, shownBefore;
    };
    const QString entry = u"cboorigem=Caixa, cboestatus=Concluído, "_s;
    const Line lines[] = {
        {u"cmdadicionard"_s, entry + u"txtdescricao=Luz, cbotipo=Zé, txtvalor=16"_s, u"cmdinserir"_s,
         u"lstpagar"_s, MainTabs::Payables, u"1P 2P 3P 4P 5C; "_s,
         u"5C 4P 3P 2P 1P; 5 31,00 16,00 15,00 3; R$ 1.334,00; 100"_s,
         u"4P 3P 2P 1P; 4 15,00 0,00 15,00 3; R$ 1.350,00; 100"_s},
        {u"cmdadicionarr"_s, entry + u"txtdescricao=Venda, cbotipo=Ana, txtvalor=160"_s, u"cmdinserir"_s,
         u"lstreceber"_s, MainTabs::Receivables, u"1P 2P 3P 4P 5C; "_s,
         u"1P 2P 3P 4P 5C; 5 310,00 160,00 150,00 10; R$ 1.510,00; 100"_s,
         u"1P 2P 3P 4P; 4 150,00 0,00 150,00 10; R$ 1.350,00; 100"_s},
        {u"cmdmultiplosp"_s, entry + u"txtdescricao=Luz, cbotipo=Zé, txtvalor=16, txtnparcelas=2"_s,
         u"cmdinserir"_s, u"lstpagar"_s, MainTabs::Payables, u"1P 2P 3P 4P 5C 6C; "_s,
         u"4P 3P 2P 1P 5C 6C; 6 47,00 32,00 15,00 3; R$ 1.318,00; 100"_s,
         u"4P 3P 2P 1P; 4 15,00 0,00 15,00 3; R$ 1.350,00; 100"_s},
        {u"cmdadicionarm"_s, entry + u"txtvalor=400"_s, u"cmdadicionar"_s, u"lstmovimento"_s,
         MainTabs::Movements, u"1C 2C 3C 4C; "_s, u"3C 1C 2C 4C; 800,00 3 50,00 1 0,00 0; R$ 1.750,00; 100"_s,
         u"3C 1C 2C; 400,00 2 50,00 1 0,00 0; R$ 1.350,00; 100"_s},
    };
    for (const Line &line : lines) {
        for (const bool follows : {true, false}) {
            Book shop;
            settings::setValue(settings::refreshMainWindow, follows ? u"1"_s : u"0"_s);
            shop.open();
            shop.find<QTabWidget>(u"tabprincipal"_s)->setCurrentIndex(MainTabs::Accounts);
            shop.command(line.command);
            shop.fill(line.fields);
            shop.press(line.save);
            QCOMPARE(shop.state(line.list), line.written + (follows ? line.shown : line.shownBefore));
            QCOMPARE(shop.tab(), follows ? line.tab : int(MainTabs::Accounts));
            shop.command(u"mnuatualizarlistas"_s);
            QTRY_COMPARE(shop.state(line.list), line.written + line.shown);
        }
    }
}

/// A write that the window did not show comes with the next one that it shows.
void tst_commands::missedWritesComeWithTheNext()
{
    Book shop;
    settings::setValue(settings::refreshMainWindow, u"0"_s);
    shop.open();
    shop.command(u"cmdadicionarr"_s);
    shop.fill(u"cboorigem=Caixa, cboestatus=Concluído, txtdescricao=Venda, cbotipo=Ana, txtvalor=160"_s);
    shop.press(u"cmdinserir"_s);
    shop.select(u"lstreceber 0"_s);
    shop.boxes.answer(QMessageBox::Yes);
    shop.command(u"popbaixareceber"_s);
    QTRY_COMPARE(shop.state(u"lstreceber"_s),
                 u"1C 2P 3P 4P 5C; 1C 2P 3P 4P 5C; 5 310,00 170,00 140,00 10; R$ 1.520,00; 100"_s);
}

void tst_commands::balancesAreComputedWhenTheSettingSays()
{
    Book shop;
    shop.open();
    const auto settleAndReload = [&](const QString &row) {
        shop.select(row);
        shop.boxes.answer(QMessageBox::Yes);
        shop.command(u"popbaixareceber"_s);
        const QString followed = shop.balance();
        shop.command(u"mnuatualizarlistas"_s);
        return followed + u' ' + shop.balance();
    };
    QCOMPARE(settleAndReload(u"lstreceber 0"_s), u"R$ 1.360,00 R$ 1.360,00"_s);
    shop.find<QAction>(u"mnuatualizarsaldo"_s)->setChecked(false);
    QCOMPARE(settleAndReload(u"lstreceber 2"_s), u"R$ 1.000,00 R$ 1.000,00"_s);
    shop.find<QAction>(u"mnuatualizarsaldo"_s)->setChecked(true);
    QCOMPARE(settleAndReload(u"lstreceber 3"_s), u"R$ 1.480,00 R$ 1.480,00"_s);
}

void tst_commands::filtersChooseRows()
{
    Book shop;
    shop.program.run(u"update pagar set vencimento='14/11/2026' where código=1 or código=4"_s);
    shop.open();
    checkAnswers(u"cbofiltrop=Todos os dados -> 1P 4P 3P 2P ; cbofiltrop=apenas deste mês -> 1P\n"
                 "cbofiltrop=próximo mês -> 3P 2P ; cbobaseadoP=Data cadastro -> \n"
                 "cbofiltrop=apenas deste ano -> 2P 1P 3P ; cbobancop=Caixa -> 1P 3P\n"
                 "cbofornecedor=Zé -> 1P ; cbotipop=Concluídos -> "_s,
                 [&](const QString &choice) {
                     shop.fill(choice);
                     return shop.listed(u"lstpagar"_s);
                 });
    checkAnswers(u"cbofiltror=ultimos 7 dias -> 1P 3P ; cbofiltror=apenas deste mês -> 1P 2P 3P\n"
                 "cbocentrolucro=Venda, cbofiltror=Todos os dados -> 1P 2P 3P ; cbocliente=Bia -> 3P"_s,
                 [&](const QString &choice) {
                     shop.fill(choice);
                     return shop.listed(u"lstreceber"_s);
                 });
    checkAnswers(
        u"cbotipom=Todos os dados -> 3C 1C 2C ; cbofiltrom=apenas do dia -> 1C 2C\n"
        "cbotipom=Retiradas -> 2C ; cbotipom=Depósitos -> 1C ; cbofiltrom=apenas deste mês -> 3C 1C\n"
        "cbotipom=Transferências ->  ; cbotipom=Depósitos, cbofiltrom=mês anterior -> "_s,
        [&](const QString &choice) {
            shop.fill(choice);
            return shop.listed(u"lstmovimento"_s);
        });
}

void tst_commands::choicesComeBackAtStart()
{
    Book shop;
    shop.open();
    const QString chosen =
        u"cbotipop=Pendentes, cbobancop=Caixa, cbocentrocusto=Luz, cbofornecedor=Zé, cbofiltrop=apenas deste ano, cbotipor=Pendentes, cbobancor=Caixa, cbocentrolucro=Venda, cbocliente=Ana, cbofiltror=apenas deste ano, cbotipom=Depósitos, cbofiltrom=apenas deste mês, cboorgm=Valor"_s;
    const auto shown = [&shop] {
        return shop.listed(u"lstpagar"_s) + u"; "_s + shop.listed(u"lstreceber"_s) + u"; "_s +
               shop.listed(u"lstmovimento"_s);
    };
    shop.find<QRadioButton>(u"optdescm"_s)->click();
    for (const QString &choice : chosen.split(u", "_s))
        shop.choose(choice.section(u'=', 0, 0), choice.section(u'=', 1));
    QCOMPARE(shown(), u"1P; 1P; 3C 1C"_s);
    shop.window.reset();
    shop.open();
    for (const QString &choice : chosen.split(u", "_s))
        QCOMPARE(shop.text(choice.section(u'=', 0, 0)), choice.section(u'=', 1));
    QVERIFY(shop.find<QRadioButton>(u"optdescm"_s)->isChecked());
    QCOMPARE(shown(), u"1P; 1P; 3C 1C"_s);
}

void tst_commands::menuOpensItsScreen()
{
    Book shop;
    shop.open();
    checkAnswers(u"mnuclientes -> frmCliente, Clientes ; mnufornecedores -> frmFornecedor, Fornecedores\n"
                 "mnucentrocusto -> frmCentroCusto, Centro de custo\n"
                 "mnucentrolucro -> frmCentroLucro, Centro de lucro\n"
                 "mnuestoque -> frmestoque, Controle de estoque\n"
                 "mnucestoque -> frmestoque, Controle de estoque\n"
                 "mnuvisdiapagar -> frmVisualizar, Movimento do dia de contas a pagar\n"
                 "mnuvismespagar -> frmVisualizar, Movimento do mês de contas a pagar\n"
                 "mnuvisanopagar -> frmVisualizar, Movimento anual de contas a pagar\n"
                 "mnuvisdiareceber -> frmVisualizar, Movimento do dia de contas a receber\n"
                 "mnuvismesreceber -> frmVisualizar, Movimento do mês de contas a receber\n"
                 "mnuvisanoreceber -> frmVisualizar, Movimento anual de contas a receber\n"
                 "mnuvisdiabancario -> frmVisualizar, Movimento do dia - bancário\n"
                 "mnuvismesbancario -> frmVisualizar, Movimento do mês - bancário\n"
                 "mnuvisanobancario -> frmVisualizar, Movimento anual - bancário\n"
                 "mnucaddespesas -> frmAdicionar, Adicionar Contas a pagar - Despesa\n"
                 "mnucadrececeber -> frmAdicionar, Adicionar Contas a receber - Receita\n"
                 "mnucadbancario -> frmmovimentobanc, Cadastrar movimento bancário\n"
                 "mnucadbancos -> frmbanco, Cadastrar Banco/Caixa\n"
                 "cmdmultiplosp -> frmMultiplos, Adicionar Contas a pagar / multiplas contas\n"
                 "cmdmultiplosr -> frmMultiplos, Adicionar Contas a receber / multiplas contas"_s,
                 [&](const QString &command) {
                     shop.command(command);
                     return shop.closeScreens();
                 });
}

/// A screen, its tab and a button -> title and first row in the file.
void tst_commands::buttonsWriteWhatTheyShow()
{
    Book shop;
    shop.open();
    const QString payables = u"14/11/2025 Gás Zé 06/12/2026 R$ 8,00 Q 3 Pendente Caixa"_s;
    const QString receivables = u"14/11/2026 Venda Ana 01/12/2026 R$ 10,00 2,50 P 1 Pendente Caixa"_s;
    const QString movements = u"01/11/2026 Depósito Caixa - R$ 300,00 Concluído"_s;
    const QString month = u"01/11/2026 Luz Zé 08/12/2026 R$ 2,00 - Pendente Banco"_s;
    const QString lines =
        u"- 0 cmdtxtp -> Contas a pagar; "_s + payables +
        u"\n- 0 cmdhtmlp -> Contas a pagar - Todos os dados; "_s + payables +
        u"\n- 0 cmdtxtr -> Contas a receber; "_s + receivables +
        u"\n- 0 cmdhtmlr -> Contas a receber - Todos os dados; "_s + receivables +
        u"\n- 0 cmdtxtm -> Movimento bancário; "_s + movements +
        u"\n- 0 cmdhtmlm -> Movimento bancário - Todos os dados; "_s + movements +
        u"\n- 0 cmdtxtb -> Caixas e bancos; Caixa R$ 1.350,00 R$ 1.000,00\n"
        "- 0 cmdhtmlb -> Caixas e bancos - Saldos; Caixa R$ 1.350,00 R$ 1.000,00\n"
        "mnuestoque 0 cmdtxt -> Controle de estoque; P 100 R$ 2,50 R$ 250,00\n"
        "mnuestoque 1 cmdhtml -> Controle de estoque - Vendas; 14/11/2026 Venda Ana 01/12/2026 R$ 10,00 "
        "R$ 2,50 300,00% R$ 7,50 P 1 Pendente Caixa\n"
        "mnuestoque 2 cmdtxt -> Controle de estoque; "_s +
        payables + u"\nmnuvismespagar 0 cmdtxt -> Movimento do mês de contas a pagar; "_s + month +
        u"\nmnuvismespagar 0 cmdhtml -> Movimento do mês de contas a pagar - CONTAS A PAGAR; "_s + month +
        u"\nmnuclientes 0 txt -> LISTA DE CLIENTES; Ana Pessoa Jurídica\n"
        "mnufornecedores 0 html -> LISTA DE CLIENTES; Zé Pessoa Jurídica"_s;
    checkAnswers(lines, [&](const QString &asked) {
        const QStringList words = asked.split(u' ');
        const QString path = shop.program.file(asked);
        if (words[0] != u"-")
            shop.command(words[0]);
        if (words[1] != u"0")
            shop.find<QTabWidget>(u"tabestoque"_s)->setCurrentIndex(words[1].toInt());
        shop.boxes.chooseFile(path);
        shop.boxes.answer(QMessageBox::No);
        if (words[0].startsWith(u"mnuvis") || words[0] == u"mnuestoque")
            shop.press(words[2]);
        else
            shop.command(words[2]);
        shop.closeScreens();
        const QString file = contents(path + (asked.contains(u"txt"_s) ? u".txt"_s : u".html"_s));
        if (asked.contains(u"txt"_s))
            return file.section(u'\n', 0, 0) + u"; "_s +
                   file.section(u"\n\n"_s, 3, 3).section(u'\n', 0, 0).simplified();
        static const QRegularExpression tags(u"<[^>]*>|&nbsp;"_s);
        return file.section(u"title>"_s, 1, 1).section(u"</"_s, 0, 0) + u"; "_s +
               file.section(u"<tr>"_s, 2, 2).section(u"</tr>"_s, 0, 0).remove(tags).simplified();
    });
}

/// What the list of contacts shows makes the labels.
void tst_commands::labelsAreOfTheListShown()
{
    Book shop;
    shop.open();
    checkAnswers(u"mnuclientes -> Ana ; mnufornecedores -> Zé"_s, [&](const QString &command) {
        const QString path = shop.program.file(command + u".pdf"_s);
        shop.command(command);
        shop.command(u"mala"_s);
        shop.boxes.chooseFile(path);
        shop.press(u"cmdpdf"_s);
        shop.closeScreens();
        return pdfText(path).simplified();
    });
}

void tst_commands::rowColoursAlternate()
{
    Book shop;
    settings::setValue(settings::textColour, u"&H00FF00"_s);
    settings::setValue(settings::firstBackground, u"&HFF0000"_s); // blue comes first
    settings::setValue(settings::secondBackground, u"&H0000FF"_s);
    shop.open();
    const QAbstractItemModel *model = shop.list(u"lstpagar"_s)->model();
    for (int row = 0; row < 3; ++row) {
        const QModelIndex cell = model->index(row, 2);
        QCOMPARE(cell.data(Qt::BackgroundRole).value<QColor>(), QColor(row == 1 ? Qt::red : Qt::blue));
        QCOMPARE(cell.data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::green));
    }
}

void tst_commands::calculatorStarts()
{
    Shop shop;
    QFile program(shop.program.file(u"gnome-calculator"_s));
    QVERIFY(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\ntouch \"$0.started\"\n");
    program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    program.close();
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", QFileInfo(program).path().toUtf8() + ':' + before);
    shop.open();
    shop.command(u"mnucalc"_s);
    qputenv("PATH", before);
    QTRY_VERIFY(QFile::exists(program.fileName() + u".started"_s));
    QCOMPARE(shop.told(), QString());
}

QTEST_MAIN(tst_commands)
#include "tst_commands.moc"
