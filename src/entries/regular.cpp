#include "entries/regular.h"

#include "data/dates.h"
#include "data/formtext.h"
#include "data/journal.h"
#include "data/recordset.h"
#include "data/schema.h"
#include "data/status.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

constexpr int mostAtOnce = 1'000;   ///< entries of one rule
constexpr int mostDaysBehind = 400; ///< that the next due date may lie in the past
constexpr int mostDaysAhead = 366;

void requireTables(Connection &connection)
{
    if (!schema::hasLaterTables(connection))
        throw Error(
            Error::Kind::Data,
            u"este banco de dados é de uma versão anterior e ainda não pôde ser atualizado. Feche o programa "
            "nos outros computadores e abra-o de novo."_s);
}

const Side &sideOf(const QString &table)
{
    return table == payable().table ? payable() : receivable();
}

QString dueText(const QString &field, const QString &text)
{
    return text.trimmed().isEmpty() ? QString() : formtext::storedDate(field, text);
}

QString ruleSql(qint64 code)
{
    return u"SELECT * FROM recorrencia WHERE codigo = %1"_s.arg(code);
}

/// Sets what a rule's entries have of it.
void setEntryColumns(Recordset &row, const Side &side, const RegularForm &form)
{
    row.set(u"origem", form.account);
    row.set(side.contactColumn, form.contact);
    row.set(u"descricao", form.description);
    row.set(u"documento", formtext::freeText(form.document));
    row.set(u"informacoes", formtext::freeText(form.notes));
    row.set(u"valor", formtext::amount(u"Valor"_s, form.value).grouped());
    row.set(u"moeda", form.currency);
}

/// Those of a rule's entries that it may still change.
QString pendingSql(const Side &side, qint64 code, QDate from)
{
    return u"SELECT * FROM %1 WHERE estatus = 'Pendente' AND vencimento >= '%2' AND código IN "
           "(SELECT lancamento FROM recorrencia_lancada WHERE recorrencia = %3)"_s
               .arg(side.table, dates::stored(from))
               .arg(code);
}

struct State
{
    QDate next, until;
    std::optional<int> times;
    int ahead = 0;

    bool isDue(QDate today) const
    {
        return next.isValid() && next <= today.addDays(ahead) && (!until.isValid() || next <= until) &&
               (!times || *times > 0);
    }
};

constexpr char stateSql[] =
    "SELECT s.proximo, r.fim, s.restantes, r.adiante, r.codigo FROM recorrencia r JOIN recorrencia_estado s "
    "ON s.codigo = r.codigo ORDER BY r.codigo";

State stateOf(const Statement &row)
{
    State state{dates::read(row.text(0)), dates::read(row.text(1)), {}, row.text(3).toInt()};
    if (!row.isNull(2))
        state.times = int(row.integer(2));
    return state;
}

void writeState(Connection &connection, qint64 code, const QString &next, const QString &times)
{
    Statement write = connection.prepareNative("INSERT OR REPLACE INTO recorrencia_estado (codigo, proximo, "
                                               "restantes) VALUES (?, ?, nullif(?, ''))");
    write.bind(1, code);
    write.bind(2, next);
    write.bind(3, times);
    write.step();
}

/// Puts in the entries of one rule, and moves its state on.
int postRule(Connection &connection, Transaction &transaction, qint64 code, State state, QDate today)
{
    const std::optional<RegularForm> rule = regular::load(connection, code);
    if (!rule)
        return 0;
    Recordset table(connection, rule->side->table);
    Statement link =
        connection.prepareNative("INSERT INTO recorrencia_lancada (recorrencia, lancamento) VALUES (?, ?)");
    int posted = 0;
    for (; state.isDue(today) && posted < mostAtOnce; ++posted) {
        table.addNew();
        table.set(u"estatus", status::pending.toString());
        table.set(u"data", dates::stored(today));
        table.set(u"vencimento", dates::stored(state.next));
        table.set(u"produto", u"-"_s);
        table.set(u"qtde", QString());
        setEntryColumns(table, *rule->side, *rule);
        const RowChange added = table.update();
        transaction.note(rule->side->subject, added);
        link.bind(1, code);
        link.bind(2, added.key);
        link.step();
        link.reset();
        state.next = regular::nextDue(state.next, rule->rhythm);
        if (state.times)
            --*state.times;
    }
    if (posted > 0)
        writeState(connection, code, dates::stored(state.next),
                   state.times ? QString::number(*state.times) : QString());
    return posted;
}

} // namespace

namespace regular {

QStringList rhythms()
{
    return {u"Toda semana"_s, u"Todo mês"_s, u"Todo ano"_s};
}

QDate nextDue(QDate due, Rhythm rhythm)
{
    switch (rhythm) {
    case Rhythm::Weekly:
        return due.addDays(7);
    case Rhythm::Monthly:
        return due.addMonths(1);
    case Rhythm::Yearly:
        break;
    }
    return due.addYears(1);
}

std::shared_ptr<StoredTable> list(Connection &connection)
{
    auto table = std::make_shared<StoredTable>(
        std::vector<ListColumn>{{u"codigo"_s, u"Código"_s, CellKind::Number, 0},
                                {u"tipo"_s, u"Tipo"_s},
                                {u"descricao"_s, u"Descrição"_s},
                                {u"contato"_s, u"Fornecedor ou cliente"_s},
                                {u"valor"_s, u"Valor"_s, CellKind::Amount},
                                {u"ritmo"_s, u"Quando"_s},
                                {u"proximo"_s, u"Próximo vencimento"_s, CellKind::Date},
                                {u"fim"_s, u"Termina"_s}});
    if (!schema::hasLaterTables(connection))
        return table;
    const ReadLock oneState(connection);
    Statement codes = connection.prepareNative(stateSql);
    while (codes.step()) {
        const State state = stateOf(codes);
        const std::optional<RegularForm> rule = load(connection, codes.integer(4));
        if (!rule)
            continue;
        const bool isOver = (state.until.isValid() && state.next > state.until) || state.times == 0;
        QString end = state.until.isValid() ? u"em "_s + dates::shown(state.until) : QString();
        if (state.times && !isOver)
            end += (end.isEmpty() ? QString() : u", "_s) + u"depois de mais %1"_s.arg(*state.times);
        table->append(QStringList{QString::number(codes.integer(4)),
                                  rule->side == &payable() ? u"Despesa"_s : u"Receita"_s, rule->description,
                                  rule->contact, rule->currency + u' ' + rule->value,
                                  rhythms()[int(rule->rhythm)], isOver ? QString() : dates::shown(state.next),
                                  isOver          ? u"terminada"_s
                                  : end.isEmpty() ? u"sem fim"_s
                                                  : end});
    }
    return table;
}

std::optional<RegularForm> load(Connection &connection, qint64 code)
{
    requireTables(connection);
    Recordset row(connection, ruleSql(code));
    if (!row.next())
        return std::nullopt;
    Recordset state(connection, u"SELECT * FROM recorrencia_estado WHERE codigo = %1"_s.arg(code));
    const bool hasState = state.next();
    return RegularForm{.side = &sideOf(row.text(u"tabela")),
                       .account = row.text(u"origem"),
                       .contact = row.text(u"contato"),
                       .description = row.text(u"descricao"),
                       .document = row.text(u"documento"),
                       .notes = row.text(u"informacoes"),
                       .value = row.text(u"valor"),
                       .currency = row.text(u"moeda"),
                       .rhythm = Rhythm(std::clamp(row.text(u"ritmo").toInt(), 0, 2)),
                       .next = hasState ? dates::shownFromStored(state.text(u"proximo")) : QString(),
                       .until = dates::shownFromStored(row.text(u"fim")),
                       .times = hasState ? state.text(u"restantes") : QString(),
                       .ahead = row.text(u"adiante")};
}

QStringList blankFields(const RegularForm &form)
{
    const std::pair<const QString &, QString> fields[] = {{form.description, u"Descrição"_s},
                                                          {form.contact, u"Fornecedor/cliente"_s},
                                                          {form.value, u"Valor"_s},
                                                          {form.next, u"Próximo vencimento"_s}};
    QStringList blank;
    for (const auto &[text, name] : fields)
        if (text.trimmed().isEmpty())
            blank << name;
    return blank;
}

std::optional<QString> problem(const RegularForm &form, QDate today)
{
    const QDate next = dates::read(form.next);
    if (!next.isValid() || next < today.addDays(-mostDaysBehind))
        return u"O próximo vencimento deve ser uma data de hoje em diante ou do último ano."_s;
    if (!form.until.trimmed().isEmpty() && !dates::read(form.until).isValid())
        return u"A data final não existe. Digite dia/mês/ano, por exemplo 31/12/2026."_s;
    bool isNumber = true;
    const int times = form.times.trimmed().isEmpty() ? 1 : form.times.trimmed().toInt(&isNumber);
    if (!isNumber || times < 1 || times > mostAtOnce)
        return u"O número de vezes deve ser de 1 a %1, ou ficar vazio."_s.arg(mostAtOnce);
    const int ahead = form.ahead.trimmed().toInt(&isNumber);
    if (!isNumber || ahead < 0 || ahead > mostDaysAhead)
        return u"Os dias de antecedência devem ser de 0 a %1."_s.arg(mostDaysAhead);
    return std::nullopt;
}

int pendingFrom(Connection &connection, qint64 code, QDate today)
{
    const std::optional<RegularForm> rule = load(connection, code);
    return rule ? int(Recordset(connection, pendingSql(*rule->side, code, today)).count()) : 0;
}

void save(Connection &connection, qint64 code, const RegularForm &form, std::optional<QDate> from)
{
    requireTables(connection);
    const QString next = formtext::storedDate(u"Próximo vencimento"_s, form.next);
    Transaction transaction(connection);
    Recordset row(connection, code == 0 ? u"recorrencia"_s : ruleSql(code));
    if (code == 0)
        row.addNew();
    else if (!row.next())
        throw Error(Error::Kind::Data, u"esta conta regular não existe mais."_s);
    row.set(u"tabela", form.side->table);
    row.set(u"ritmo", QString::number(int(form.rhythm)));
    row.set(u"origem", form.account);
    row.set(u"contato", form.contact);
    row.set(u"descricao", form.description);
    row.set(u"documento", form.document);
    row.set(u"informacoes", form.notes);
    row.set(u"valor", formtext::amount(u"Valor"_s, form.value).grouped());
    row.set(u"moeda", form.currency);
    row.set(u"fim", dueText(u"Até"_s, form.until));
    row.set(u"adiante", form.ahead.trimmed());
    const RowChange change = row.update();
    transaction.note(Subject::Regulars, change);
    writeState(connection, change.key, next, form.times.trimmed());
    if (code != 0 && from)
        for (Recordset posted(connection, pendingSql(*form.side, code, *from)); posted.next();) {
            setEntryColumns(posted, *form.side, form);
            transaction.note(form.side->subject, posted.update());
        }
    transaction.commit();
}

void remove(Connection &connection, qint64 code, std::optional<QDate> from)
{
    requireTables(connection);
    Transaction transaction(connection);
    Recordset row(connection, ruleSql(code));
    if (!row.next())
        throw Error(Error::Kind::Data, u"esta conta regular não existe mais."_s);
    if (from) {
        const Side &side = sideOf(row.text(u"tabela"));
        for (Recordset posted(connection, pendingSql(side, code, *from)); posted.next();)
            transaction.note(side.subject, posted.remove());
    }
    transaction.note(Subject::Regulars, row.remove());
    transaction.commit();
}

int post(Connection &connection, QDate today)
{
    if (!schema::hasLaterTables(connection))
        return 0;
    const auto due = [&] {
        std::vector<std::pair<qint64, State>> rules;
        Statement rows = connection.prepareNative(stateSql);
        while (rows.step())
            if (const State state = stateOf(rows); state.isDue(today))
                rules.emplace_back(rows.integer(4), state);
        return rules;
    };
    if (due().empty()) // mostly so, and then nobody is kept waiting
        return 0;
    journal::Author person = journal::author(); // a copy: it is put back
    const auto back = qScopeGuard([&person] { journal::setAuthor(person); });
    journal::setAuthor({u"Contas regulares"_s, person.machine, {}});
    Transaction transaction(connection);
    int posted = 0;
    for (const auto &[code, state] : due()) // again: another machine may have been faster
        posted += postRule(connection, transaction, code, state, today);
    if (posted > 0)
        transaction.note(Subject::Regulars);
    transaction.commit();
    return posted;
}

} // namespace regular
