#include "data/clock.h"
#include "data/dates.h"
#include "entries/entry.h"
#include "entries/entrylist.h"
#include "entries/frmmultiplos.h"
#include "support/boxes.h"
#include "support/testprogram.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

InstallmentsForm sampleForm()
{
    return {.status = u"Pendente"_s,
            .account = u"Caixa"_s,
            .contact = u"Imobiliária"_s,
            .date = u"15/01/2026"_s,
            .description = u"Aluguel"_s,
            .document = u" NF 1 "_s,
            .notes = u"Aluguel"_s,
            .value = u"100,00"_s,
            .currency = u"€"_s,
            .count = u"3"_s,
            .monthly = true,
            .days = u"30"_s};
}

/// The third row of a run cannot be written.
void breakThirdRow(TestProgram &program, const QByteArray &how)
{
    program.database().executeNative(
        "CREATE TRIGGER third BEFORE INSERT ON pagar WHEN NEW.informacoes LIKE '%Parcela 3 de%' "
        "BEGIN SELECT RAISE(" +
        how + ", 'sem espaço'); END");
}

class Screen
{
public:
    explicit Screen(const Side &side)
    {
        programclock::set(QDateTime(QDate(2026, 1, 31), QTime(10, 0)));
        program.run(u"insert into banco (banco, saldo) values ('Caixa', '0,00')"_s);
        program.run(u"insert into fornecedor (nome) values ('Imobiliária')"_s);
        program.run(u"insert into cliente (nome) values ('Ana')"_s);
        dialog = frmMultiplos::openFor(side, nullptr);
    }
    ~Screen() { delete dialog; }

    template <typename T>
    T *find(const QString &name) const
    {
        return dialog->findChild<T *>(name);
    }
    void set(const QString &name, const QString &text) const { find<QLineEdit>(name)->setText(text); }
    void fill(const QString &contact) const
    {
        find<QComboBox>(u"txtdescricao"_s)->setCurrentText(u"Aluguel"_s);
        find<QComboBox>(u"cbotipo"_s)->setCurrentText(contact);
        set(u"txtvalor"_s, u"1.500,00"_s);
    }
    void click(const QString &name) const { find<QAbstractButton>(name)->click(); }
    QString told() { return boxes.seen().join(u'\n'); }

    TestProgram program;
    Boxes boxes;
    QPointer<frmMultiplos> dialog;
};

} // namespace

class tst_installments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dueDates_data();
    void dueDates();
    void rows();
    void refusedValues();
    void interruptedRun_data();
    void interruptedRun();
    void checksInOrder();
    void writingFromTheScreen();
    void writtenRowsBeforeAFailureAreAnnounced();
};

void tst_installments::dueDates_data()
{
    QTest::addColumn<QString>("date");
    QTest::addColumn<bool>("monthly");
    QTest::addColumn<QString>("count");
    QTest::addColumn<QString>("days");
    QTest::addColumn<QString>("due");

    QTest::newRow("one step after the date")
        << u"15/01/2026"_s << true << u"3"_s << u"30"_s << u"2026/02/15 2026/03/15 2026/04/15"_s;
    QTest::newRow("days") << u"01/03/2026"_s << false << u"2"_s << u"10"_s << u"2026/03/11 2026/03/21"_s;
    QTest::newRow("a lowered day stays lowered")
        << u"31/01/2026"_s << true << u"3"_s << u"30"_s << u"2026/02/28 2026/03/28 2026/04/28"_s;
    QTest::newRow("leap year") << u"30/12/2027"_s << true << u"3"_s << u"1"_s
                               << u"2028/01/30 2028/02/29 2028/03/29"_s;
    QTest::newRow("across the year by days")
        << u"31/12/2026"_s << false << u"1"_s << u"365"_s << u"2027/12/31"_s;
    QTest::newRow("the decimals of a number do not count")
        << u"15/01/2026"_s << false << u"1,9"_s << u"2,7"_s << u"2026/01/17"_s;
}

void tst_installments::dueDates()
{
    QFETCH(QString, date);
    QFETCH(bool, monthly);
    QFETCH(QString, count);
    QFETCH(QString, days);
    QFETCH(QString, due);
    InstallmentsForm form = sampleForm();
    form.date = date;
    form.monthly = monthly;
    form.count = count;
    form.days = days;
    QStringList found;
    for (QDate one : installments::dueDates(form))
        found << dates::stored(one);
    QCOMPARE(found.join(u' '), due);
}

void tst_installments::rows()
{
    TestProgram program;
    InstallmentsForm form = sampleForm();
    QCOMPARE(installments::write(program.database(), payable(), form, nullptr).written, 3);
    QCOMPARE(
        program.rows(u"select estatus, origem, fornecedor, data, descricao, documento, informacoes, valor, "
                     u"vencimento, "
                     "moeda from pagar"_s),
        u"Pendente | Caixa | Imobiliária | 2026/01/15 | Aluguel | NF 1  | Aluguel  - Parcela 1 de 3 | 100,00 "
        u"| 2026/02/15 | €\n"
        "Pendente | Caixa | Imobiliária | 2026/01/15 | Aluguel | NF 1  | Aluguel  - Parcela 2 de 3 | 100,00 "
        "| 2026/03/15 | €\n"
        "Pendente | Caixa | Imobiliária | 2026/01/15 | Aluguel | NF 1  | Aluguel  - Parcela 3 de 3 | 100,00 | 2026/04/15 | €\n"_s);
    form.notes.clear();
    form.document.clear();
    form.value = u"1500"_s; // stays as it stands
    form.count = u"1"_s;
    installments::write(program.database(), receivable(), form, nullptr);
    QCOMPARE(program.rows(u"select cliente, documento, informacoes, valor, custo from receber"_s),
             u"Imobiliária |   |   - Parcela 1 de 1 | 1500 | \n"_s);
    // Installments carry no product: they are none of the product lists' business, also once they are edited.
    QCOMPARE(program.rows(u"select código from receber where (produto <> '-')"_s), QString());
    QCOMPARE(entry::load(program.database(), receivable(), u"1"_s)->product, u"-"_s);
}

void tst_installments::refusedValues()
{
    TestProgram program;
    const auto refused = [&](auto change) {
        InstallmentsForm form = sampleForm();
        change(form);
        const InstallmentsOutcome outcome = installments::write(program.database(), payable(), form, nullptr);
        return outcome.failure ? installments::report(form, outcome).text() : QString();
    };
    QCOMPARE(refused([](InstallmentsForm &form) { form.value = u"cem"_s; }),
             u"o texto \"cem\" do campo Valor não é um valor válido.\nNenhuma parcela foi gravada."_s);
    QCOMPARE(refused([](InstallmentsForm &form) { form.date = u"31/02/2026"_s; }),
             u"a data \"31/02/2026\" do campo Data não existe.\nNenhuma parcela foi gravada."_s);
    QCOMPARE(refused([](InstallmentsForm &form) { form.date = u"20/11/9999"_s; }),
             u"o vencimento da parcela 2 passa do ano 9999.\nNenhuma parcela foi gravada."_s);
    QVERIFY(!refused([](InstallmentsForm &form) {
                 form.monthly = false;
                 form.days = u"99999999999999"_s;
             }).isEmpty());
    QCOMPARE(program.rows(u"select código from pagar"_s), QString());
}

void tst_installments::interruptedRun_data()
{
    QTest::addColumn<QByteArray>("how");
    QTest::addColumn<QString>("rows");
    QTest::addColumn<QString>("count");
    QTest::newRow("rows before the error stay")
        << QByteArray("ABORT") << u"1 | 2026/02/15\n2 | 2026/03/15\n"_s << u"Parcelas gravadas: 2 de 3."_s;
    QTest::newRow("the store undoes the run")
        << QByteArray("ROLLBACK") << QString() << u"Nenhuma parcela foi gravada."_s;
}

void tst_installments::interruptedRun()
{
    QFETCH(QByteArray, how);
    QFETCH(QString, rows);
    QFETCH(QString, count);
    TestProgram program;
    breakThirdRow(program, how);
    const InstallmentsForm form = sampleForm();
    const InstallmentsOutcome outcome = installments::write(program.database(), payable(), form, nullptr);
    QVERIFY(outcome.failure);
    const QString text = installments::report(form, outcome).text();
    QVERIFY2(text.contains(u"sem espaço"_s) && text.endsWith(u'\n' + count), qPrintable(text));
    QVERIFY(!program.database().inTransaction());
    QCOMPARE(program.rows(u"select código, vencimento from pagar"_s), rows);
}

void tst_installments::checksInOrder()
{
    Screen screen(payable());
    QCOMPARE(screen.dialog->windowTitle(), u"Adicionar Contas a pagar / multiplas contas"_s);
    QCOMPARE(screen.find<QLabel>(u"lbldescricao"_s)->text(), u"Descrição / Centro de custo:"_s);
    QCOMPARE(screen.find<QLineEdit>(u"txtdata"_s)->text(), u"31/01/2026"_s);
    screen.set(u"txtnparcelas"_s, u"0"_s);
    screen.set(u"txtdata"_s, u""_s);
    screen.click(u"cmdinserir"_s);
    QCOMPARE(
        screen.told(),
        u"exclamation | Erro | Os seguintes dados estão em branco: \nDescrição\nForcenedor/cliente\nValor\nData"_s);
    screen.set(u"txtdata"_s, u"31/01/2026"_s);
    screen.fill(u"Imobiliária"_s);
    QVERIFY(!screen.find<QLineEdit>(u"txtdiasparcelas"_s)->isEnabled());
    screen.set(u"txtdiasparcelas"_s, u"0"_s);
    screen.click(u"cmdinserir"_s);
    screen.set(u"txtnparcelas"_s, u"muitas"_s);
    screen.click(u"cmdinserir"_s);
    const QString count = u"exclamation | Erro | O número de parcelas não pode ser menor que 1!"_s;
    QCOMPARE(screen.told(), count + u'\n' + count);
    screen.set(u"txtnparcelas"_s, u"2"_s);
    screen.click(u"cmdinserir"_s); // one a month: the days are looked at all the same
    QCOMPARE(screen.told(), u"exclamation | Erro | Os dias entre as parcelas não pode ser menor que 1!"_s);
    QCOMPARE(screen.program.rows(u"select código from pagar"_s), QString());
    QVERIFY(screen.dialog->isVisible());
}

void tst_installments::writingFromTheScreen()
{
    Screen screen(receivable());
    QCOMPARE(screen.dialog->windowTitle(), u"Adicionar Contas a receber / multiplas contas"_s);
    QCOMPARE(screen.find<QLabel>(u"lblnome"_s)->text(), u"Nome do Cliente(devedor):"_s);
    QCOMPARE(screen.find<QAbstractButton>(u"cmdinserir"_s)->text(), u"&Inserir receita"_s);
    screen.fill(u"Ana"_s);
    screen.set(u"txtnparcelas"_s, u"300"_s);
    screen.click(u"optperiodo"_s);
    QVERIFY(screen.find<QLineEdit>(u"txtdiasparcelas"_s)->isEnabled());
    screen.set(u"txtdiasparcelas"_s, u"7"_s);
    QList<Subject> announced;
    connect(&Changes::instance(), &Changes::changed, screen.dialog,
            [&](Subject subject) { announced << subject; });
    screen.click(u"cmdinserir"_s);
    QCOMPARE(screen.told(), QString());
    QCOMPARE(announced, QList<Subject>{Subject::Receivables});
    QVERIFY(!screen.dialog || !screen.dialog->isVisible());
    QCOMPARE(
        screen.program.rows(
            u"select count(*), min(vencimento), max(vencimento), min(data), max(data), min(valor) from receber"_s),
        u"300 | 2026/02/07 | 2031/11/01 | 2026/01/31 | 2026/01/31 | 1.500,00\n"_s);
}

void tst_installments::writtenRowsBeforeAFailureAreAnnounced()
{
    Screen screen(payable());
    breakThirdRow(screen.program, "ABORT");
    screen.fill(u"Imobiliária"_s);
    screen.set(u"txtnparcelas"_s, u"12"_s);
    int announced = 0;
    connect(&Changes::instance(), &Changes::changed, screen.dialog, [&](Subject) { ++announced; });
    screen.click(u"cmdinserir"_s);
    const QString told = screen.told();
    QVERIFY2(told.startsWith(u"critical | Erro | Ocorreu o seguinte erro ao tentar cadastrar os dados: "_s) &&
                 told.endsWith(u"\nParcelas gravadas: 2 de 12."_s),
             qPrintable(told));
    QCOMPARE(announced, 1);
    QVERIFY(screen.dialog->isVisible());
}

QTEST_MAIN(tst_installments)
#include "tst_installments.moc"
