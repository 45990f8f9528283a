#include "analysis/comparison.h"
#include "analysis/frmcompara.h"
#include "analysis/frmconfluxo.h"
#include "analysis/frmpormes.h"
#include "analysis/frmprojecao.h"
#include "analysis/projection.h"
#include "data/clock.h"
#include "lists/readrows.h"
#include "support/shop.h"

#include <QRandomGenerator>
#include <QTabBar>

using namespace Qt::StringLiterals;

namespace {

const QDate firstDay(2026, 11, 1);
const QDate lastDay(2026, 11, 30);

void addEntry(TestProgram &program, const Side &side, const QString &date, const QString &due,
              const QString &value, const QString &status, const QString &account = u"Caixa"_s)
{
    program.run(u"insert into %1 (data, vencimento, descricao, documento, %2, valor, moeda, estatus, origem, "
                "informacoes) values ('%3', '%4', 'Aluguel', '7', 'Ana', '%5', 'R$', '%6', '%7', ' ')"_s.arg(
                    side.table, side.contactColumn, date, due, value, status, account));
}

void addAccount(TestProgram &program, const QString &name)
{
    program.run(u"insert into banco (banco) values ('%1')"_s.arg(name));
}

cashflow::Choice everything(QDate first, QDate last)
{
    return {first, last, cashflow::allAccounts(), u"Pendentes e Concluidas"_s};
}

/// November: payables of 1.200,00 pending and 300,50 settled, a receivable of 2.000,00 pending.
void addNovember(TestProgram &program)
{
    addEntry(program, payable(), u"2026/11/02"_s, u"2026/11/10"_s, u"1.200,00"_s, u"Pendente"_s);
    addEntry(program, payable(), u"2026/11/03"_s, u"11/11/2026"_s, u"300,50"_s, u"Concluído"_s, u"Caixa 2"_s);
    addEntry(program, receivable(), u"2026/11/04"_s, u"2026/11/30"_s, u"2.000,00"_s, u"Pendente"_s);
}

QString read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class tst_flow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cashFlowTexts();
    void cashFlowOnScreenAndInFile();
    void cashFlowWithoutRows();
    void goals_data();
    void goals();
    void wrongGoalCountsAsZero();
    void comparisonTexts();
    void comparisonOnScreen();
    void monthViews();
    void figuresAgree();
};

void tst_flow::cashFlowTexts()
{
    QCOMPARE(cashflow::query(payable(), everything(firstDay, lastDay)),
             u"Select * from pagar WHERE vencimento BETWEEN '2026/11/01' AND '2026/11/30' AND estatus like "
             "('%%') AND fornecedor like('%%') AND origem like('%%') AND descricao like('%%') "_s);
    QCOMPARE(cashflow::query(receivable(), {firstDay, firstDay, u"Caixa"_s, u"Concluidas"_s}),
             u"Select * from receber WHERE vencimento BETWEEN '2026/11/01' AND '2026/11/01' AND estatus like "
             "('%Concluído%') AND cliente like('%%') AND origem like('%Caixa%') AND descricao like('%%') "_s);
    const cashflow::Choice backwards{lastDay, firstDay, u"<b>"_s, u"Pendentes"_s};
    QCOMPARE(cashflow::periodText(backwards),
             u"Previsão entre os vencimentos de 30/11/2026 até 01/11/2026 - Período de: -29 dias"_s);

    cashflow::Result result{cashflow::Mode::Payables, backwards, {{&payable(), nullptr}}};
    result.parts[0].figures.add("Pendente", Money::fromInteger(2));
    result.parts[0].figures.add("Outro", Money::fromInteger(3));
    QCOMPARE(cashflow::totals(result),
             u"Total de despesas: R$ 5,00 - Total pago: R$ 3,00 - Total pendente: R$ 2,00"_s);
    QCOMPARE(cashflow::htmlSummary(result),
             u"Previsão entre os vencimentos de 30/11/2026 até 01/11/2026<br><b>Período de:</b> -29 dias "
             "<br><b>Exibindo do Banco:</b> &lt;b&gt;<br><b>Exibindo com o estatus:</b> Pendentes"
             "<br><b>Total de despesas:</b> R$ 5,00<br><b>Total pago:</b> R$ 3,00<br><b>Total pendente:</b> "
             "R$ 2,00<br><b>Total de cadastros no período:</b> 2 cadastros"_s);
}

void tst_flow::cashFlowOnScreenAndInFile()
{
    Shop shop;
    addAccount(shop.program, u"Caixa"_s);
    addNovember(shop.program);
    shop.open();
    frmconfluxo::open(cashflow::Mode::General, shop.window.get());
    shop.fill(u"cbodata1=01/11/2026, cbodata2=30/11/2026, cbobanco=Caixa"_s);
    shop.press(u"cmdnatela"_s);
    QCOMPARE(shop.told(), QString());
    QCOMPARE(shop.label(u"lbltotal"_s),
             u"Total de receitas: R$ 2.000,00 - Total de despesas: R$ 1.500,50 - Saldo: R$ 499,50"_s);
    QCOMPARE(shop.label(u"lblcadastros"_s), u"Total de cadastros: 3"_s);

    const QString path = shop.program.file(u"fluxo.html"_s);
    shop.boxes.chooseFile(path);
    shop.boxes.answer(QMessageBox::No);
    shop.press(u"cmdhtml"_s);
    const QString page = read(path);
    for (const QString &piece :
         {u"<br><b>CONTAS A PAGAR:<br><br></b>"_s, u"<td nowrap>R$ 1.200,00 &nbsp;</td>"_s,
          u"<td nowrap>11/11/2026 &nbsp;</td>"_s, u"<br><b>CONTAS A RECEBER:<br><br></b>"_s,
          u"<hr><br>Previsão entre os vencimentos de 01/11/2026 até 30/11/2026<br><b>Período de:</b> 29 dias "
          "<br><b>Exibindo do Banco:</b> Caixa<br><b>Exibindo com o estatus:</b> Pendentes e Concluidas"
          "<br><b>Total receitas:</b> R$ 2.000,00<br><b>Total de despesas:</b> R$ 1.500,50<br><b>Saldo:</b> "
          "R$ 499,50<br><b>Total de cadastros no período:</b> 3 cadastros<br><b>Estatísticas</b><hr>"_s})
        QVERIFY2(page.contains(piece), qPrintable(piece + u"\n\n"_s + page));

    Q_EMIT shop.list(u"lstpagar"_s)->rowActivated(0);
    QCOMPARE(shop.text(u"txtvalor"_s), u"1.200,00"_s);
}

void tst_flow::cashFlowWithoutRows()
{
    Shop shop;
    shop.open();
    const auto run = [&](cashflow::Mode mode) {
        frmconfluxo *choice = frmconfluxo::open(mode, shop.window.get());
        shop.press(u"cmdnatela"_s);
        choice->close();
        return shop.told();
    };
    const QString check =
        u", verifique se os dados informados estão corretos e se existem cadastros entre as datas informadas!"_s;
    const QString none = u"information | Info | A pesquisa não retornou resultados"_s;
    QCOMPARE(run(cashflow::Mode::Payables), none);
    QCOMPARE(run(cashflow::Mode::Receivables), none + check);
    QVERIFY(!shop.screen(u"frmfluxo"_s));
    QCOMPARE(run(cashflow::Mode::General),
             none + u" em contas a pagar"_s + check + u'\n' + none + u" em contas a receber"_s + check);
}

void tst_flow::goals_data()
{
    QTest::addColumn<QString>("goal");
    QTest::addColumn<QString>("status");
    QTest::addRow("missing") << u"2.850,00"_s << u"Faltam R$ 150,00 para atingir sua meta!"_s;
    QTest::addRow("left over") << u"R$ 3.200,00"_s
                               << u"A meta foi atingida com sobra de "_s + Money::fromInteger(-200).inReais();
    QTest::addRow("reached") << u"3000"_s << u"A meta foi atingida!"_s;
}

void tst_flow::goals()
{
    QFETCH(QString, goal);
    TestProgram program;
    addEntry(program, payable(), u"2024/02/29"_s, u"01/03/2024"_s, u"3.000,00"_s, u"Concluído"_s);
    addEntry(program, payable(), u"2024/02/10"_s, u"2024/02/11"_s, u"9,00"_s, u"Pendente"_s);
    addEntry(program, payable(), u"2024/03/01"_s, u"11/02/2024"_s, u"9,00"_s, u"Concluído"_s);
    const projection::Result result = projection::compute(program.database(), payable(), 2024, 2, goal);
    QTEST(projection::status(result), "status");
    const QString daily = result.goal.dividedBy(Money::fromInteger(29))->inReais();
    QCOMPARE(projection::summary(result),
             u"Valor da projeção: %1\r\nMeta diária: %2\r\nValor Efetivado: R$ 3.000,00\r\nMédia diária "
             "efetivada: R$ 103,45\r\nEstatus: %3\r\n\r\nInformações Adicionais \r\nData escolhida: Mês de "
             "Fevereiro de 2024\r\nDias no mês: 29 dias \r\n* Está projeção é baseada apenas em despesas "
             "concluídas."_s.arg(result.goal.inReais(), daily, projection::status(result)));
}

void tst_flow::wrongGoalCountsAsZero()
{
    Shop shop;
    shop.open();
    frmProjecao::open(receivable(), shop.window.get());
    shop.find<QLineEdit>(u"txtvalorrec"_s)->setText(u"muito"_s);
    shop.press(u"cmdrec"_s);
    QCOMPARE(shop.label(u"lblestatusrec"_s), u"A meta foi atingida!"_s);
    const QString path = shop.program.file(u"meta.txt"_s);
    shop.boxes.chooseFile(path);
    shop.boxes.answer(QMessageBox::No);
    shop.press(u"cmdtxtrec"_s);
    QVERIFY(shop.told().startsWith(
        u"file | Salvar projeções e metas de receitas em txt | Arquivos de Texto(*.txt)"_s));
    QVERIFY(read(path).startsWith(u"Projeções e Metas de receitas\n"_s + QString(128, u'-') +
                                  u"\nProjeção e Meta\nValor da projeção: R$ 0,00\r\n"_s));
}

void tst_flow::comparisonTexts()
{
    using namespace comparison;
    const Period october{Span::Month, 2026, 10};
    const Period november{Span::Month, 2026, 11};
    QCOMPARE(query(payable(), october), u"select * from pagar where (data like '%2026/10%')"_s);
    QCOMPARE(query(receivable(), {Span::Year, 2026}), u"select * from receber where (data like '%2026%')"_s);
    Result result{&payable(), {october, november}, {}};
    result.figures[0].add("PENDENTE", Money::fromInteger(10), 1, StatusRule::AnyCase);
    result.figures[1].add("Outro", Money::fromInteger(4), 1, StatusRule::AnyCase);
    QCOMPARE(summary(result, 0),
             u"Resumo do mês de: outubro/2026\r\n\r\nTotal de despesas cadastradas: 1\r\n\r\n"
             "Valor total de despesas: R$ 10,00\r\n\r\nTotal de despesas pendentes: 1\r\n\r\n"
             "Valor total de despesas pendentes: R$ 10,00\r\n\r\nTotal de despesas concluídas: "
             "0\r\n\r\nValor total de despesas concluídas: R$ 0,00\r\n\r\n"_s);
    QVERIFY(differences(result).startsWith(
        u"Comparação entre o mês de outubro/2026 e o mês de novembro/2026\r\n\r\nTotal de despesas "
        u"cadastradas: mês "
        "de outubro/2026 (1) - mês de: novembro/2026 (1)\r\nDiferença de 0 cadastros\r\n\r\nValor total de "
        "despesas: "
        "mês de outubro/2026 (R$ 10,00) - mês de: novembro/2026 (R$ 4,00)\r\nDiferença de "_s +
        Money::fromInteger(-6).inReais() +
        u"\r\n\r\nTotal de despesas pendentes: mês de outubro/2026 (1) - "_s));
}

void tst_flow::comparisonOnScreen()
{
    Shop shop;
    addNovember(shop.program);
    shop.open();
    frmCompara::open(payable(), comparison::Span::Year, shop.window.get());
    shop.press(u"cmdok"_s);
    const QString text = shop.find<QPlainTextEdit>(u"txtcomparacao"_s)->toPlainText();
    QVERIFY2(text.contains(u"(R$ 0,00) - ano de: 2026 (R$ 1.500,50)\nDiferença de R$ 1.500,50"_s),
             qPrintable(text));
    shop.find<QTabWidget>(u"tabcomparacao"_s)->setCurrentIndex(1);
    const QString path = shop.program.file(u"meses.html"_s);
    shop.boxes.chooseFile(path);
    shop.boxes.answer(QMessageBox::No);
    shop.press(u"cmdhtmlmes"_s);
    QVERIFY(shop.told().startsWith(u"file | Salvar comparação de despesas por mês em html"_s));
    QVERIFY(read(path).contains(u"<center>Comparação de despesas entre anos</b><hr>"_s));
    QVERIFY(read(path).contains(u"<br>Diferença de 2 cadastros<br><br>Valor total de despesas: "_s));
}

void tst_flow::monthViews()
{
    using monthview::Basis;
    QCOMPARE(monthview::query(payable(), Basis::DueDate, 2026, 1, true),
             u"Select * from pagar where(Vencimento like '%2026/01%')"_s);
    QCOMPARE(monthview::query(receivable(), Basis::EntryDate, 2026, 1, true),
             u"Select * from receber where(Data like '%2026/01/%')"_s);
    Shop shop;
    addNovember(shop.program);
    shop.open();
    frmPorMes *screen = frmPorMes::open(payable(), Basis::EntryDate, shop.window.get());
    QCOMPARE(screen->windowTitle(), u"Visualizando contas a pagar separadas por mês - ano de 2026"_s);
    screen->findChild<QTabBar *>(u"meses"_s)->setCurrentIndex(10);
    const auto totals = [&] { return shop.label(u"lbltotal"_s); };
    QCOMPARE(totals(), u"2 cadastros  -  Total de despesas: R$ 1.500,50  -  Total pago: R$ 300,50  -  Total "
                       "pendente: R$ 1.200,00"_s);
    addEntry(shop.program, payable(), u"2026/11/20"_s, u"2026/12/20"_s, u"1,00"_s, u"PENDENTE"_s);
    Changes::announce(Subject::Payables);
    QCOMPARE(totals(), u"3 cadastros  -  Total de despesas: R$ 1.501,50  -  Total pago: R$ 301,50  -  Total "
                       "pendente: R$ 1.200,00"_s);
    shop.press(u"cmdverificar"_s);
    QVERIFY(totals().startsWith(u"0 cadastros"_s));

    // A file of the older name in the program folder comes first.
    QVERIFY(QFile::copy(shop.program.databaseFile(), shop.program.file(u"dados.zelqa"_s)));
    shop.program.run(u"delete from pagar"_s);
    screen->findChild<QTabBar *>(u"meses"_s)->setCurrentIndex(10);
    QVERIFY(totals().startsWith(u"3 cadastros"_s));
}

void tst_flow::figuresAgree()
{
    TestProgram program;
    QRandomGenerator random(20261114);
    const QStringList words{u"Pendente"_s, u"Concluído"_s, u"Conluído"_s, u"Cancelada"_s};
    for (int i = 0; i < 80; ++i) {
        const QDate due = QDate(2026, 1, 1).addDays(random.bounded(365));
        const bool settled = random.bounded(2) == 1;
        addEntry(program, i % 2 ? payable() : receivable(),
                 QDate(2026, 1, 1).addDays(i).toString(u"yyyy/MM/dd"_s),
                 due.toString(settled ? u"dd/MM/yyyy"_s : u"yyyy/MM/dd"_s),
                 Money::fromTenThousandths(random.bounded(1'000'000) * 100).grouped(),
                 settled ? words[1 + random.bounded(3)] : words[0]);
    }
    const cashflow::Result flow = cashflow::read(program.database(), cashflow::Mode::General,
                                                 everything(QDate(2026, 1, 1), QDate(2026, 12, 31)), nullptr);
    for (const cashflow::Part &part : flow.parts) {
        const Figures compared =
            comparison::read(program.database(), *part.side, {comparison::Span::Year, 2026}, nullptr);
        FigureTotals list;
        readrows::sum(program.database(), u"select * from "_s + part.side->table, list);
        for (const Figures &figures : {compared, list.figures}) {
            QCOMPARE(part.figures.total().count, figures.total().count);
            QVERIFY(part.figures.pending.sum == figures.pending.sum);
            QVERIFY(part.figures.settled.sum == figures.settled.sum);
        }
        QCOMPARE(part.figures.total().count, qint64(40));
    }
}

QTEST_MAIN(tst_flow)
#include "tst_flow.moc"
