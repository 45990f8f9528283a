#include "entries/centres.h"
#include "entries/frmcentrocusto.h"
#include "support/shop.h"

using namespace Qt::StringLiterals;

namespace {

void addEntry(TestProgram &program, const QString &table, const QString &description, const QString &status,
              const QString &value)
{
    program.run(u"insert into %1 (descricao, estatus, valor) values ('%2', '%3', '%4')"_s.arg(
        table, QString(description).replace(u'\'', u"''"_s), status, value));
}

/// One line for each centre: the plain way, a query for each.
QString queried(TestProgram &program, const CentreSide &side)
{
    std::vector<CentreLine> lines;
    for (const QString &name : centres::names(program.database(), side)) {
        CentreLine line{name, {}};
        Statement rows =
            program.database().prepare(u"select estatus, valor from %1 where (descricao like '%2')"_s.arg(
                side.entryTable, QString(name).replace(u'\'', u"''"_s)));
        while (rows.step()) {
            const bool pending = rows.text(0) == u"Pendente";
            Figures::Part &part = pending ? line.figures.pending : line.figures.settled;
            part += {1, Money::stored(rows.utf8(1)).roundedToCents()};
        }
        lines.push_back(line);
    }
    return centres::report(side, lines).lines.join(u'\n');
}

struct CentreScreen : Shop
{
    explicit CentreScreen(const CentreSide &side) : dialog(frmCentroCusto::openFor(side, nullptr)) {}
    ~CentreScreen() { delete dialog; }

    void add(const QString &name) const
    {
        find<QLineEdit>(u"txtnome"_s)->setText(name);
        press(u"cmdcad"_s);
    }
    QString centres() const
    {
        QStringList names;
        for (int row = 0; row < list(u"lstcentro"_s)->rowCount(); ++row)
            names << list(u"lstcentro"_s)->cell(row, 0);
        return names.join(u", "_s);
    }
    void select(int row) const { list(u"lstcentro"_s)->selectRow(row); }

    QPointer<QDialog> dialog;
};

} // namespace

class tst_centres : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void summaryIsThatOfOneQueryForEachCentre();
    void addingRenamingAndRemoving();
    void profitWords();
    void summaryTab();
};

void tst_centres::summaryIsThatOfOneQueryForEachCentre()
{
    TestProgram program;
    const CentreSide &side = costCentres();
    for (const QString &name : {u"Aluguel"_s, u"ÁGUA"_s, u"agua"_s, u"A%"_s, u"%"_s, u"%%"_s, u"Lu_"_s,
                                u"água"_s, u"Caixa d'água"_s, u"Sem nada"_s, u"%água"_s, u"Straße"_s})
        centres::add(program.database(), side, name);
    const QString spellings[] = {u"Aluguel"_s, u"ALUGUEL"_s,      u"aluguel "_s, u"Água"_s,
                                 u"AGUA"_s,    u"Luz"_s,          u"lua"_s,      u"Luzes"_s,
                                 u"A%"_s,      u"caixa D'Água"_s, u""_s,         u"STRASSE"_s};
    const QString statuses[] = {u"Pendente"_s, u"Concluído"_s, u"pendente"_s, u""_s};
    const QString values[] = {u"1.234,50"_s, u"0,005"_s, u"-3,00"_s, u"muito"_s, u"R$ 10"_s};
    for (int i = 0; i < 90; ++i)
        addEntry(program, side.entryTable, spellings[i % 12], statuses[i % 7 % 4], values[i % 5]);
    program.run(u"insert into pagar (estatus, valor) values ('Pendente', '7,00')"_s);

    const QString found = centres::report(side, centres::summary(program.database(), side,
                                                                 centres::names(program.database(), side)))
                              .lines.join(u'\n');
    QCOMPARE(found, queried(program, side));
}

void tst_centres::addingRenamingAndRemoving()
{
    CentreScreen screen(costCentres());
    TestProgram &program = screen.program;
    addEntry(program, u"pagar"_s, u"Aluguel"_s, u"Pendente"_s, u"10,00"_s);
    for (const QString &name : {u"  "_s, u"luz"_s, u"Água"_s, u"Aluguel"_s})
        screen.add(name);
    QCOMPARE(screen.centres(), u"Água, Aluguel, luz"_s);
    screen.select(1);
    for (const QString &name : {u" "_s, QString(), u"Moradia"_s}) {
        screen.boxes.input(name);
        screen.press(u"cmdeditar"_s);
    }
    QCOMPARE(screen.centres(), u"Água, luz, Moradia"_s);
    QCOMPARE(program.rows(u"select descricao from pagar"_s), u"Aluguel\n"_s);
    screen.select(1);
    for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
        QCOMPARE(program.rows(u"select * from pcontapagar where descricao like 'luz'"_s), u"luz\n"_s);
        screen.boxes.answer(answer);
        screen.press(u"cmdremover"_s);
    }
    QCOMPARE(screen.centres(), u"Água, Moradia"_s);
    const QString
        blank = u"exclamation | Erro | O nome do centro de custo não pode estar vazio!\n"_s,
        input = u"input | Editar centro de custo | Digite o novo nome para este centro de custo\n"_s,
        remove =
            u"question | Remover | Tem certeza que deseja remover o centro de custo luz do banco de dados?"_s;
    QCOMPARE(screen.told(), blank + input + blank + input + input + remove + u'\n' + remove);
}

void tst_centres::profitWords()
{
    CentreScreen screen(profitCentres());
    for (const QString &name : {u""_s, u"Vendas"_s, u"Aluguéis"_s}) // listed as they were added
        screen.add(name);
    QCOMPARE(screen.centres(), u"Vendas, Aluguéis"_s);
    QCOMPARE(screen.told(), u"exclamation | Erro | O nome do centro de lucro não pode estar vazio!"_s);
    const Report report = centres::report(
        profitCentres(), {{u"Vendas"_s, {{1, Money::fromInteger(1000)}, {2, Money::fromInteger(250)}}}});
    QCOMPARE(
        report.title + u'|' + report.lines.first(4).join(u'|'),
        u"Resumo de centro de lucro|Centro de lucro: Vendas|Pendentes: 1 (R$ 1.000,00)|Concluídas: 2 (R$ 250,00)|Total: 3 (R$ 1.250,00)"_s);
    QCOMPARE(report.statistics,
             u"Total de receitas: R$ 1.250,00\nTotal recebido: R$ 250,00\nTotal pendente: R$ 1.000,00"_s);
}

void tst_centres::summaryTab()
{
    CentreScreen screen(costCentres());
    TestProgram &program = screen.program;
    screen.find<QTabWidget>(u"xtab"_s)->setCurrentIndex(1);
    QCOMPARE(
        screen.told(),
        u"information | Plano de conta | Não há nenhum centro de custo, cadastrado no banco de dados! para cadastrar um centro de custo clique no menu principal e depois em centro de custo."_s);

    addEntry(program, u"pagar"_s, u"luz"_s, u"Pendente"_s, u"100,00"_s);
    addEntry(program, u"pagar"_s, u"Luz"_s, u"Concluído"_s, u"1.900,00"_s);
    addEntry(program, u"pagar"_s, u"Aluguel"_s, u"Pendente"_s, u"5,00"_s);
    screen.find<QTabWidget>(u"xtab"_s)->setCurrentIndex(0);
    screen.add(u"Luz"_s);
    screen.find<QTabWidget>(u"xtab"_s)->setCurrentIndex(1);
    const ListView *list = screen.list(u"lstresumo"_s);
    QCOMPARE(list->rowCount(), 1);
    QStringList cells;
    for (int column = 0; column < 4; ++column)
        cells << list->cell(0, column);
    QCOMPARE(cells.join(u" | "_s), u"Luz | 1 (R$ 100,00) | 1 (R$ 1.900,00) | 2 (R$ 2.000,00)"_s);
    QCOMPARE(screen.label(u"lbltotal"_s),
             u"Total de despesas: R$ 2.000,00 - Total pago: R$ 1.900,00 - Total pendente: R$ 100,00"_s);
    addEntry(program, u"pagar"_s, u"LUZ"_s, u"Pendente"_s, u"1,00"_s);
    Changes::announce(Subject::Payables);
    QCOMPARE(screen.label(u"lbltotal"_s),
             u"Total de despesas: R$ 2.001,00 - Total pago: R$ 1.900,00 - Total pendente: R$ 101,00"_s);
    QVERIFY(screen.boxes.seen().isEmpty());
}

QTEST_MAIN(tst_centres)
#include "tst_centres.moc"
