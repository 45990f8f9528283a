#include "data/clock.h"
#include "entries/entrylist.h"
#include "entries/frmmultiplos.h"
#include "support/answers.h"
#include "support/shop.h"

#include <QSignalSpy>

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

struct InstallmentsScreen : Shop
{
    explicit InstallmentsScreen(const Side &side)
    {
        programclock::set(QDateTime(QDate(2026, 1, 31), QTime(10, 0)));
        program.run(u"insert into banco (banco, saldo) values ('Caixa', '0,00')"_s);
        for (const QString &table : {u"fornecedor"_s, u"cliente"_s})
            program.run(u"insert into %1 (nome) values ('Ana')"_s.arg(table));
        dialog = frmMultiplos::openFor(side, nullptr);
    }
    ~InstallmentsScreen() { delete dialog; }
    void set(const QString &name, const QString &text) const { find<QLineEdit>(name)->setText(text); }
    void fillIn() const
    {
        choose(u"txtdescricao"_s, u"Aluguel"_s);
        choose(u"cbotipo"_s, u"Ana"_s);
        set(u"txtvalor"_s, u"1.500,00"_s);
    }

    QPointer<frmMultiplos> dialog;
};

} // namespace

class tst_installments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dueDates();
    void rows();
    void interruptedRun();
    void checksInOrder();
    void writingFromTheScreen();
};

void tst_installments::dueDates()
{
    // date, count, days between (0: one a month) -> due dates; a lowered day stays lowered, and decimals of a
    // number do not count
    checkAnswers(u"15/01/2026 3 0 -> 2026/02/15 2026/03/15 2026/04/15\n"
                 "31/01/2026 3 0 -> 2026/02/28 2026/03/28 2026/04/28\n"
                 "30/12/2027 3 0 -> 2028/01/30 2028/02/29 2028/03/29\n"
                 "01/03/2026 2 10 -> 2026/03/11 2026/03/21 ; 31/12/2026 1 365 -> 2027/12/31\n"
                 "15/01/2026 1,9 2,7 -> 2026/01/17 ; 15/01/2026 1 1.000 -> 2028/10/11"_s,
                 [](const QString &asked) {
                     const QStringList words = asked.split(u' ');
                     InstallmentsForm form = sampleForm();
                     form.date = words[0];
                     form.count = words[1];
                     form.monthly = words[2] == u"0";
                     if (!form.monthly)
                         form.days = words[2];
                     QStringList found;
                     for (QDate due : installments::dueDates(form))
                         found << due.toString(u"yyyy/MM/dd"_s);
                     return found.join(u' ');
                 });
}

void tst_installments::rows()
{
    TestProgram program;
    InstallmentsForm form = sampleForm();
    QCOMPARE(installments::write(program.database(), payable(), form, nullptr).written, 3);
    QCOMPARE(
        program.rows(
            u"select estatus, origem, fornecedor, data, descricao, documento, valor, moeda, informacoes, vencimento from pagar where código = 3"_s),
        u"Pendente | Caixa | Imobiliária | 2026/01/15 | Aluguel | NF 1  | 100,00 | € | Aluguel  - Parcela 3 de 3 | 2026/04/15\n"_s);
    form.notes.clear();
    form.document.clear();
    form.value = u"1500"_s; // stays as it stands
    form.count = u"1"_s;
    installments::write(program.database(), receivable(), form, nullptr);
    // Installments carry no product: they are none of the product lists' business.
    QCOMPARE(
        program.rows(u"select cliente, documento, informacoes, valor, custo, produto <> '-' from receber"_s),
        u"Imobiliária |   |   - Parcela 1 de 1 | 1500 |  | \n"_s);
}

/// The rows before an error stay, unless the store itself undoes the run.
void tst_installments::interruptedRun()
{
    for (const auto &[how, rows, count] :
         {std::tuple("ABORT", u"1 | 2026/02/28\n2 | 2026/03/28\n"_s, u"Parcelas gravadas: 2 de 3."_s),
          {"ROLLBACK", QString(), u"Nenhuma parcela foi gravada."_s}}) {
        InstallmentsScreen screen(payable());
        screen.program.database().executeNative(
            QByteArray("CREATE TRIGGER third BEFORE INSERT ON pagar WHEN NEW.informacoes LIKE '%Parcela 3 "
                       "de%' BEGIN SELECT RAISE(") +
            how + ", 'sem espaço'); END");
        screen.fillIn();
        screen.set(u"txtnparcelas"_s, u"3"_s);
        const QSignalSpy announced(&Changes::instance(), &Changes::changed);
        screen.press(u"cmdinserir"_s);
        const QString told = screen.told();
        QVERIFY2(
            told.startsWith(u"critical | Erro | Ocorreu o seguinte erro ao tentar cadastrar os dados: "_s) &&
                told.contains(u"sem espaço"_s) && told.endsWith(u'\n' + count),
            qPrintable(told));
        QCOMPARE(announced.count(), rows.isEmpty() ? 0 : 1);
        QCOMPARE(screen.program.rows(u"select código, vencimento from pagar"_s), rows);
        QVERIFY(screen.dialog->isVisible());
    }
}

void tst_installments::checksInOrder()
{
    InstallmentsScreen screen(payable());
    QCOMPARE(screen.dialog->windowTitle(), u"Adicionar Contas a pagar / multiplas contas"_s);
    QCOMPARE(screen.text(u"txtdata"_s), u"31/01/2026"_s);
    const auto told = [&](const QString &name, const QString &text) {
        screen.set(name, text);
        screen.press(u"cmdinserir"_s);
        return screen.told().section(u" | "_s, 2);
    };
    screen.set(u"txtvalor"_s, u""_s);
    QCOMPARE(told(u"txtdata"_s, u""_s),
             u"Os seguintes dados estão em branco: \nDescrição\nForcenedor/cliente\nValor\nData"_s);
    screen.fillIn();
    for (const auto &[date, problem] :
         {std::pair(u"31/02/2026"_s, u"a data \"31/02/2026\" do campo Data não existe."_s),
          {u"20/11/9999"_s, u"o vencimento da parcela 2 passa do ano 9999."_s}}) {
        screen.set(u"txtnparcelas"_s, u"3"_s);
        QVERIFY(told(u"txtdata"_s, date).contains(problem + u"\nNenhuma parcela foi gravada."_s));
    }
    screen.set(u"txtdata"_s, u"31/01/2026"_s);
    screen.set(u"txtdiasparcelas"_s, u"0"_s);
    for (const QString &count : {u"0"_s, u"muitas"_s})
        QCOMPARE(told(u"txtnparcelas"_s, count), u"O número de parcelas não pode ser menor que 1!"_s);
    // One a month: the days are looked at all the same.
    QCOMPARE(told(u"txtnparcelas"_s, u"2"_s), u"Os dias entre as parcelas não pode ser menor que 1!"_s);
    QCOMPARE(screen.program.rows(u"select código from pagar"_s), QString());
    QVERIFY(screen.dialog->isVisible());
}

void tst_installments::writingFromTheScreen()
{
    InstallmentsScreen screen(receivable());
    screen.fillIn();
    screen.set(u"txtnparcelas"_s, u"300"_s);
    QVERIFY(!screen.find<QLineEdit>(u"txtdiasparcelas"_s)->isEnabled());
    screen.find<QAbstractButton>(u"optperiodo"_s)->click();
    QVERIFY(screen.find<QLineEdit>(u"txtdiasparcelas"_s)->isEnabled());
    screen.set(u"txtdiasparcelas"_s, u"7"_s);
    const QSignalSpy announced(&Changes::instance(), &Changes::changed);
    screen.press(u"cmdinserir"_s);
    QCOMPARE(screen.told(), QString());
    QCOMPARE(announced.count(), 1);
    QVERIFY(!screen.dialog || !screen.dialog->isVisible());
    QCOMPARE(
        screen.program.rows(
            u"select count(*), min(vencimento), max(vencimento), min(data), max(data), min(valor) from receber"_s),
        u"300 | 2026/02/07 | 2031/11/01 | 2026/01/31 | 2026/01/31 | 1.500,00\n"_s);
}

QTEST_MAIN(tst_installments)
#include "tst_installments.moc"
