#include "demoentries.h"

#include "demoshop.h"

#include "data/dates.h"
#include "data/status.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

/// One payable or receivable as its table holds it; amounts in cents.
struct DemoRow
{
    QString status, account, contact, day, due, centre, document, remark, currency, method;
    QString product = u"-"_s;
    qint64 value = 0;
    qint64 cost = 0;
    qint64 quantity = 0;
};

namespace {

/// A text that may be left empty, as the screens store it: followed by one blank.
QString freeText(const QString &text)
{
    return text + u' ';
}

/// Binds the columns in which payables and receivables are alike and runs the statement.
void insertRow(Statement &insert, const DemoRow &row)
{
    const std::array texts{
        row.status,   row.account, row.contact,
        row.day,      row.due,     row.centre,
        row.document, row.remark,  demoshop::amount(row.value),
        row.currency, row.product, row.quantity == 0 ? QString() : QString::number(row.quantity),
        row.method};
    for (std::size_t i = 0; i < texts.size(); ++i)
        insert.bind(int(i) + 1, texts[i]);
    insert.step();
    insert.reset();
}

} // namespace

DemoEntries::DemoEntries(Connection &connection, Random &random, const DemoOptions &options)
    : m_connection(connection),
      m_random(random),
      m_options(options),
      m_days(options.today),
      m_stockChange(demoshop::products().size())
{
    for (qint64 i = 0; i < options.accounts; ++i)
        m_accounts << demoshop::account(i).name;
    for (Statement methods = connection.prepareNative("select pagamento from fpagamento order by rowid");
         methods.step();)
        m_paymentMethods << methods.text(0);
}

void DemoEntries::writePayables(const DemoContacts &suppliers)
{
    Statement insert = m_connection.prepareNative(
        "insert into pagar (estatus, origem, fornecedor, data, vencimento, descricao, documento, "
        "informacoes, valor,"
        " moeda, produto, qtde, pagamento) values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    const qint64 count = (m_options.entries + 1) / 2;
    for (qint64 i = 0; i < count; ++i) {
        DemoRow payable = row(i, count);
        const demoshop::Centre &centre = m_random.weighted(demoshop::costCentres());
        payable.centre = centre.name.toString();
        payable.contact = centre.supplier ? suppliers.house(*centre.supplier) : suppliers.anyName(m_random);
        if (centre.movesGoods)
            buyGoods(payable);
        else
            payable.value = m_random.mostlySmall(centre.low, centre.high);
        insertRow(insert, payable);
    }
}

void DemoEntries::writeReceivables(const DemoContacts &clients)
{
    Statement insert = m_connection.prepareNative(
        "insert into receber (estatus, origem, cliente, data, vencimento, descricao, documento, informacoes, "
        "valor,"
        " moeda, produto, qtde, pagamento, custo) values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    const qint64 count = m_options.entries / 2;
    for (qint64 i = 0; i < count; ++i) {
        DemoRow receivable = row(i, count);
        const demoshop::Centre &centre = m_random.weighted(demoshop::profitCentres());
        receivable.centre = centre.name.toString();
        receivable.contact = clients.anyName(m_random);
        if (centre.movesGoods)
            sellGoods(receivable);
        else
            receivable.value = m_random.mostlySmall(centre.low, centre.high);
        insert.bind(14, demoshop::amount(receivable.cost));
        insertRow(insert, receivable);
    }
}

DemoRow DemoEntries::row(qint64 index, qint64 count)
{
    static constexpr QStringView foreign[] = {u"$", u"$", u"€", u"€", u"£", u"¥"};
    const QDate day = m_days.day(index, count, m_random);
    DemoRow row;
    row.account = anyAccount();
    row.day = dates::stored(day);
    row.document = freeText(anyDocument());
    row.remark = freeText(anyRemark(30));
    row.currency = m_random.percent(4) ? m_random.pick(foreign).toString() : u"R$"_s;
    if (!m_paymentMethods.isEmpty())
        row.method = m_paymentMethods[m_random.mostlySmall(0, m_paymentMethods.size() - 1)];
    settle(row, day);
    const qint64 recent = m_days.rowsUpToToday(count);
    if (index >= recent - 3 && index < recent) { // so that there is something to be alerted to
        row.status = status::pending.toString();
        row.due = dates::stored(m_options.today);
    }
    return row;
}

/// Decides the due date and whether the entry is settled. Settling writes the day of payment over the due
/// date: day first when done by the command for it, in the usual form when entered as settled.
void DemoEntries::settle(DemoRow &row, QDate day)
{
    static constexpr int terms[] = {0, 0, 0, 7, 10, 14, 21, 28, 30, 30, 30, 45, 60, 90};
    const QDate today = m_options.today;
    const QDate due = day.addDays(m_random.pick(terms));
    int chance = 10; // paid in advance
    if (day > today)
        chance = 0;
    else if (due < today.addDays(-45))
        chance = 97;
    else if (due < today)
        chance = 80;
    if (!m_random.percent(chance)) {
        row.status = status::pending.toString();
        row.due = dates::stored(due);
        return;
    }
    row.status = status::settled.toString();
    const QDate paid = std::clamp(due.addDays(m_random.between(-4, 9)), day, today);
    row.due = m_random.percent(60) ? dates::shown(paid) : dates::stored(paid);
}

void DemoEntries::buyGoods(DemoRow &row)
{
    const demoshop::Product &product = m_random.weighted(demoshop::products());
    row.product = product.name.toString();
    row.quantity = m_random.between(4, 24);
    row.value = product.cost * row.quantity * m_random.between(92, 104) / 100;
    m_stockChange[std::size_t(&product - demoshop::products().data())] += row.quantity;
}

void DemoEntries::sellGoods(DemoRow &row)
{
    const demoshop::Product &product = m_random.weighted(demoshop::products());
    row.product = product.name.toString();
    row.quantity = m_random.mostlySmall(2, 36);
    row.cost = product.cost * row.quantity;
    row.value = row.cost * m_random.between(145, 230) / 100;
    m_stockChange[std::size_t(&product - demoshop::products().data())] -= row.quantity;
}

QString DemoEntries::anyDocument()
{
    static constexpr QStringView kinds[] = {u"NF %1",        u"NF %1",     u"Boleto %1",
                                            u"Recibo nº %1", u"Pedido %1", u"Cheque %1"};
    if (m_random.percent(20))
        return QString();
    m_documents += m_random.between(1, 3);
    return m_random.pick(kinds).toString().arg(m_documents, 6, 10, QChar(u'0'));
}

QString DemoEntries::anyRemark(int chance)
{
    return m_random.percent(chance) ? m_random.pick(demoshop::remarks()).toString() : QString();
}

void DemoEntries::writeMovements()
{
    static constexpr struct Kind
    {
        QStringView name;
        int weight;
        qint64 high;
    } kinds[] = {
        {u"Depósito", 35, 350000}, {u"Retirada", 30, 150000}, {u"Transferência entre contas", 35, 400000}};
    const Kind &transfer = kinds[2];
    Statement insert = m_connection.prepareNative(
        "insert into bancario (estatus, movimento, origem, destino, data, valor, informacoes)"
        " values (?, ?, ?, ?, ?, ?, ?)");
    for (qint64 i = 0; i < m_options.movements; ++i) {
        const QDate day = m_days.day(i, m_options.movements, m_random);
        const Kind &kind = m_random.weighted(kinds);
        const qint64 origin = m_random.mostlySmall(0, m_accounts.size() - 1);
        const qint64 other =
            (origin + m_random.between(1, std::max<qint64>(m_accounts.size() - 1, 1))) % m_accounts.size();
        const bool done = day <= m_options.today && m_random.percent(95);
        insert.bind(1, (done ? status::settled : status::pending).toString());
        insert.bind(2, kind.name.toString());
        insert.bind(3, m_accounts[origin]);
        insert.bind(4, &kind == &transfer ? m_accounts[other] : u" - "_s);
        insert.bind(5, dates::stored(day));
        insert.bind(6, demoshop::amount(m_random.between(20, kind.high / 100) * 100));
        insert.bind(7, freeText(anyRemark(25)));
        insert.step();
        insert.reset();
    }
}
