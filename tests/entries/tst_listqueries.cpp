#include "bank/movementlist.h"
#include "entries/entryfilter.h"
#include "support/answers.h"

using namespace Qt::StringLiterals;

namespace {

const QDate today(2026, 5, 14);

/// "based on, status, period", and with "chosen" at the end an account, a centre and a contact.
QString entries(const Side &side, const QString &question)
{
    const QStringList words = question.split(u", "_s);
    const bool all = words.value(3) != u"chosen";
    return entryfilter::query(side,
                              {.basedOn = words[0],
                               .status = words[1],
                               .account = all ? u"Todos os bancos"_s : u"Caixa"_s,
                               .centre = all ? side.allCentres : u"Luz"_s,
                               .contact = all ? side.allContacts : u"Zé"_s,
                               .period = words[2]},
                              today);
}

} // namespace

/// What the main lists ask the database, to the letter.
class tst_listqueries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void payables();
    void receivables();
    void movements();
};

void tst_listqueries::payables()
{
    checkAnswers(
        u"Data vencimento, Pendentes, todos os dados, chosen -> SELECT * FROM pagar where (estatus like "
        "'Pendente')  and (origem like 'Caixa')  and (descricao like 'Luz')  and (fornecedor like 'Zé')  "
        "order by "
        "vencimento\n"
        "Data vencimento, Concluídos, Todos os dados -> SELECT * FROM pagar where (estatus like 'Concluído') "
        " order "
        "by vencimento\n"
        "DATA CADASTRO, Pendentes e Concluídos, Todos os dados -> SELECT * FROM pagar where (estatus like "
        "'%%')  "
        "order by data\n"
        "Data vencimento, Pendentes, apenas deste ano, chosen -> SELECT * FROM pagar where(vencimento like "
        "'%2026/%')  and (estatus like 'Pendente')  and (origem like 'Caixa')  and (descricao like 'Luz')  "
        "and "
        "(fornecedor like 'Zé')  order by vencimento\n"
        "Data vencimento, Pendentes e Concluídos, apenas deste mês -> SELECT * FROM pagar where(vencimento "
        "like "
        "'%/05/%' AND data like '%2026/%')  order by vencimento\n"
        "Data cadastro, Concluídos, Apenas do dia -> SELECT * FROM pagar where(data like '2026/05/14')  and "
        "(estatus "
        "like 'Concluído')  order by data\n"
        "Data vencimento, Pendentes e Concluídos, ultimos 7 dias -> SELECT * FROM pagar WHERE vencimento "
        "BETWEEN "
        "'2026/05/07' AND '2026/05/14'  order by vencimento\n"
        "Data cadastro, Pendentes e Concluídos, ultimos 15 dias -> SELECT * FROM pagar WHERE data BETWEEN "
        "'2026/04/29' AND '2026/05/14'  order by data\n"
        "Data vencimento, Pendentes e Concluídos, mês anterior -> SELECT * FROM pagar WHERE vencimento "
        "BETWEEN "
        "'2026/04/01' AND '2026/05/01'  order by vencimento\n"
        "Data vencimento, Pendentes e Concluídos, próximo mês -> SELECT * FROM pagar WHERE vencimento "
        "BETWEEN "
        "'2026/06/01' AND '2026/07/01'  order by vencimento"_s,
        [](const QString &question) { return entries(payable(), question); });
}

/// Whatever the list is said to be based on, the period is that of the entry date, and there is no order.
void tst_listqueries::receivables()
{
    checkAnswers(
        u"Data vencimento, Pendentes, Todos os dados, chosen -> SELECT * FROM receber where (estatus like "
        "'Pendente')  and (origem like 'Caixa')  and (descricao like 'Luz')  and (cliente like 'Zé')\n"
        "Data vencimento, Pendentes e Concluídos, apenas deste ano -> SELECT * FROM receber where(data like "
        "'%2026/%')\n"
        "Data vencimento, Pendentes, apenas deste mês -> SELECT * FROM receber where(Data like '%/05/%' AND "
        "data like "
        "'%2026/%')  and (estatus like 'Pendente')\n"
        "Data vencimento, Pendentes e Concluídos, apenas do dia -> SELECT * FROM receber where(Data like "
        "'2026/05/14')\n"
        "Data vencimento, Pendentes e Concluídos, mês anterior -> SELECT * FROM receber WHERE data BETWEEN "
        "'2026/04/01' AND '2026/05/01'"_s,
        [](const QString &question) { return entries(receivable(), question); });
}

void tst_listqueries::movements()
{
    const auto answer = [](const QString &question) {
        const QStringList words = question.split(u", "_s);
        return movementlist::query(
            {.kind = words[0], .period = words[1], .sortBy = words[2], .ascending = words.value(3).isEmpty()},
            today);
    };
    checkAnswers(
        u"Todos os dados, Todos os dados, Data de cadastro -> Select * from bancario order by data ASC\n"
        "Depósitos, Todos os dados, Destino -> Select * from bancario WHERE (movimento like 'Depósito') "
        "order by "
        "destino ASC\n"
        "Retiradas, Todos os dados, Origem, down -> Select * from bancario WHERE (movimento like 'Retirada') "
        "order by "
        "origem DESC\n"
        "Transferências, apenas deste ano, Estatus -> SELECT * FROM bancario where(data like '%2026/%')  AND "
        "(movimento like 'Transferência entre contas') order by estatus ASC\n"
        "Depósitos, apenas deste mês, Valor, down -> SELECT * FROM bancario where(Data like '%/05/%' AND "
        "data like "
        "'%2026/%')  AND (movimento like 'Depósito') order by valor DESC\n"
        "Todos os dados, apenas do dia, Movimento -> SELECT * FROM bancario where(Data like '2026/05/14') "
        "order by "
        "movimento ASC\n"
        "Todos os dados, próximo mês, Valor -> SELECT * FROM bancario WHERE data BETWEEN '2026/06/01' AND "
        "'2026/07/01' order by valor ASC"_s,
        answer);
}

QTEST_MAIN(tst_listqueries)
#include "tst_listqueries.moc"
