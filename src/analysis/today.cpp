#include "analysis/today.h"

#include "data/dates.h"
#include "data/dialect_dates.h"
#include "data/status.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int monthLetters = 8; ///< of a stored date: "2026/11/"

const Side &sideAt(std::size_t number)
{
    return number == 0 ? payable() : receivable();
}

std::vector<ListColumn> dueColumns()
{
    return {{u"quando"_s, u"Quando"_s},       {u"vencimento"_s, u"Vencimento"_s, CellKind::Date},
            {u"tipo"_s, u"Tipo"_s},           {u"valor"_s, u"Valor"_s, CellKind::Amount},
            {u"descricao"_s, u"Descrição"_s}, {u"contato"_s, u"Cliente ou fornecedor"_s}};
}

/// "vencida há 3 dias", "vence hoje", "em 2 dias"; the sign comes first, for who does not see the colour.
QString whenText(QDate due, QDate today)
{
    const qint64 days = today.daysTo(due);
    if (days == 0)
        return u"● vence hoje"_s;
    const QString count = std::abs(days) == 1 ? u"1 dia"_s : u"%1 dias"_s.arg(std::abs(days));
    return days < 0 ? u"▲ vencida há "_s + count : u"○ em "_s + count;
}

QString countAndSum(const Figures::Part &part)
{
    return part.count == 0 ? u"-"_s : u"%1  –  %2"_s.arg(part.count).arg(part.sum.inReais());
}

} // namespace

struct TodayLoad::Due
{
    const Side *side;
    qint64 code;
    QDate date;
};

TodayLoad::TodayLoad(std::shared_ptr<Connection> connection, QDate today)
    : m_connection(std::move(connection))
{
    m_facts.day = today;
    m_today = dates::stored(today).toStdString();
    m_thisMonth = dates::stored(today).left(monthLetters).toStdString();
    m_monthBefore = dates::stored(today.addMonths(-1)).left(monthLetters).toStdString();
    m_facts.due = std::make_shared<StoredTable>(dueColumns());
    startSide();
}

TodayLoad::~TodayLoad() = default;

quint64 TodayLoad::serial() const
{
    return m_connection->serial();
}

/// The index holds all that is read here.
void TodayLoad::startSide()
{
    const QString date = dialect::dateExpression(u"vencimento");
    m_rowsOfSide = 0;
    m_rows = m_connection->prepareNative(
        u"SELECT %1, código, estatus, valor FROM %2 WHERE %1 <= ? ORDER BY %1, código"_s
            .arg(date, sideAt(m_side).table)
            .toUtf8());
    m_rows->bind(1, dates::stored(m_facts.day.addDays(TodayFacts::days)));
}

bool TodayLoad::run(const QDeadlineTimer &until)
{
    constexpr int rowsBetweenLooks = 64;
    if (m_connection->inTransaction()) // what is written there may never be committed
        return false;
    for (int row = 1; m_rows; ++row) {
        if (m_rows->step())
            readRow();
        else if (++m_side < 2)
            startSide();
        else
            m_rows.reset();
        if (row % rowsBetweenLooks == 0 && until.hasExpired())
            return false;
    }
    readDueRows();
    return true;
}

/// The stored form of a date orders as the dates do, so most rows are told apart without reading it.
void TodayLoad::readRow()
{
    const std::string_view date = m_rows->utf8(0);
    TodayFacts::OfSide &side = m_facts.sides[m_side];
    const auto add = [this](Figures::Part &part) {
        ++part.count;
        part.sum += Money::stored(m_rows->utf8(3));
    };
    if (m_rows->utf8(2) != status::pendingUtf8) {
        if (date.starts_with(m_thisMonth) && date <= m_today)
            add(side.thisMonth);
        else if (date.starts_with(m_monthBefore))
            add(side.monthBefore);
        return;
    }
    const bool isOverdue = date < m_today;
    const QDate due = isOverdue ? QDate() : dates::read(m_rows->text(0));
    const qint64 days = isOverdue ? -1 : m_facts.day.daysTo(due);
    addSigned(m_facts.flow[std::size_t(std::max<qint64>(days, 0))], Money::stored(m_rows->utf8(3)),
              m_side == 0 ? -1 : 1);
    if (days > TodayFacts::soon)
        return;
    add(isOverdue ? side.overdue : days == 0 ? side.today : side.soon);
    if (m_rowsOfSide++ < today::mostRows)
        m_due.push_back({&sideAt(m_side), m_rows->integer(1), dates::read(m_rows->text(0))});
}

void TodayLoad::readDueRows()
{
    std::vector<Statement> rowOf;
    for (std::size_t side = 0; side < 2; ++side)
        rowOf.push_back(m_connection->prepareNative(u"SELECT valor, descricao, %1 FROM %2 WHERE código = ?"_s
                                                        .arg(sideAt(side).contactColumn, sideAt(side).table)
                                                        .toUtf8()));
    std::ranges::stable_sort(m_due, {}, &Due::date);
    for (const Due &due : std::exchange(m_due, {})) {
        const bool isPayable = due.side == &payable();
        Statement &row = rowOf[isPayable ? 0 : 1];
        row.reset();
        row.bind(1, due.code);
        if (!row.step())
            continue;
        const QByteArray cells[] = {whenText(due.date, m_facts.day).toUtf8(),
                                    dates::shown(due.date).toUtf8(),
                                    isPayable ? "Pagar" : "Receber",
                                    Money::stored(row.utf8(0)).inReais().toUtf8(),
                                    row.text(1).toUtf8(),
                                    row.text(2).toUtf8()};
        m_facts.due->append(std::vector<std::string_view>(std::begin(cells), std::end(cells)),
                            {due.side->subject, due.code, m_connection->serial()});
    }
}

namespace today {

std::shared_ptr<StoredTable> summary(const TodayFacts &facts)
{
    auto table = std::make_shared<StoredTable>(std::vector<ListColumn>{
        {u"prazo"_s, u"Prazo"_s}, {u"pagar"_s, u"A pagar"_s}, {u"receber"_s, u"A receber"_s}});
    const std::pair<QString, Figures::Part TodayFacts::OfSide::*> lines[] = {
        {u"▲ Vencidas"_s, &TodayFacts::OfSide::overdue},
        {u"● Vencem hoje"_s, &TodayFacts::OfSide::today},
        {u"○ Próximos %1 dias"_s.arg(TodayFacts::soon), &TodayFacts::OfSide::soon}};
    for (const auto &[name, part] : lines)
        table->append(QStringList{name, countAndSum(facts.of(payable()).*part),
                                  countAndSum(facts.of(receivable()).*part)});
    return table;
}

std::shared_ptr<StoredTable> months(const TodayFacts &facts)
{
    auto table = std::make_shared<StoredTable>(
        std::vector<ListColumn>{{u"dado"_s, u"Concluído"_s},
                                {u"mes"_s, u"Este mês"_s, CellKind::Amount},
                                {u"anterior"_s, u"Mês anterior"_s, CellKind::Amount}});
    const TodayFacts::OfSide &out = facts.of(payable()), &in = facts.of(receivable());
    table->append(QStringList{u"Recebido"_s, in.thisMonth.sum.inReais(), in.monthBefore.sum.inReais()});
    table->append(QStringList{u"Pago"_s, out.thisMonth.sum.inReais(), out.monthBefore.sum.inReais()});
    table->append(QStringList{u"Resultado"_s, (in.thisMonth.sum - out.thisMonth.sum).inReais(),
                              (in.monthBefore.sum - out.monthBefore.sum).inReais()});
    return table;
}

std::shared_ptr<StoredTable> balances(const std::vector<AccountBalance> &accounts)
{
    auto table = std::make_shared<StoredTable>(std::vector<ListColumn>{
        {u"banco"_s, u"Caixa ou banco"_s}, {u"saldo"_s, u"Saldo atual"_s, CellKind::Amount}});
    for (const AccountBalance &account : accounts)
        table->append(QStringList{account.name, account.current().inReais()});
    table->append(QStringList{u"Total"_s, total(accounts).inReais()});
    return table;
}

Sum total(const std::vector<AccountBalance> &accounts)
{
    Sum total;
    for (const AccountBalance &account : accounts)
        total += account.current();
    return total;
}

std::vector<Sum> projection(const TodayFacts &facts, Sum cash)
{
    std::vector<Sum> result;
    for (const Sum &flow : facts.flow)
        result.push_back(cash += flow);
    return result;
}

bool isNegative(const Sum &sum)
{
    const std::optional<Decimal> value = sum.value();
    return value && value->isNegative();
}

QString projectionText(const TodayFacts &facts, const std::vector<Sum> &cash)
{
    const auto dayOf = [&](std::vector<Sum>::const_iterator day) {
        return dates::shown(facts.day.addDays(day - cash.begin()));
    };
    const auto lowest =
        std::ranges::min_element(cash, [](const Sum &a, const Sum &b) { return isNegative(a - b); });
    const auto negative = std::ranges::find_if(cash, isNegative);
    if (negative == cash.end())
        return u"O caixa não fica negativo nos próximos %1 dias; o menor saldo é %2, em %3."_s.arg(
            QString::number(TodayFacts::days), lowest->inReais(), dayOf(lowest));
    return u"▼ O caixa fica negativo em %1 (%2); o menor saldo é %3, em %4."_s.arg(
        dayOf(negative), negative->inReais(), lowest->inReais(), dayOf(lowest));
}

} // namespace today
