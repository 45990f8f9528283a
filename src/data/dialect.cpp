#include "data/dialect.h"

#include "data/dialect_dates.h"
#include "data/dialect_tokens.h"
#include "data/error.h"
#include "data/like.h"

#include <QStringList>

#include <algorithm>
#include <initializer_list>
#include <optional>

using namespace Qt::StringLiterals;

namespace dialect {

namespace {

bool isOneOf(QStringView word, std::initializer_list<QStringView> words)
{
    return std::find(words.begin(), words.end(), word) != words.end();
}

bool isOneOf(const Token &token, std::initializer_list<QStringView> words)
{
    return token.kind == Token::Kind::Word && isOneOf(QStringView(token.value), words);
}

bool isKeyColumn(QStringView name)
{
    return isOneOf(name, {u"código", u"codigo"});
}

bool isAmountColumn(QStringView name)
{
    return isOneOf(name, {u"valor", u"saldo", u"custo", u"qtde"});
}

/// Columns whose order in the store is the order wanted.
bool isOrderedAsStored(QStringView name)
{
    return isKeyColumn(name) || isOneOf(name, {u"hora", u"index"});
}

/// Columns of the large tables that have an index of their own.
bool isIndexed(QStringView table, QStringView column)
{
    return isOneOf(table, {u"pagar", u"receber"}) &&
           isOneOf(column, {u"origem", u"descricao", table == u"pagar" ? u"fornecedor" : u"cliente"});
}

QString quoted(const QString &text)
{
    return u'\'' + QString(text).replace(u'\'', "''"_L1) + u'\'';
}

/// True for the text that the store itself would show for a whole number.
bool isWholeNumber(const QString &text)
{
    bool ok = false;
    const qlonglong number = text.toLongLong(&ok);
    return ok && QString::number(number) == text;
}

/// `column like 'pattern'` in a form that an index serves; nothing when it takes a real pattern comparison.
std::optional<QString> indexedCondition(const QString &column, bool isKey, const QString &pattern,
                                        bool negated)
{
    const LikePattern like(pattern);
    // A comparison of the column with itself: what "never" and "always" are, unless the value is null.
    const QString never = u"<> "_s + column;
    const QString always = u"= "_s + column;
    if (like.matchesEverything())
        return negated ? never : u"IS NOT NULL"_s;
    if (like.hasWildcards())
        return std::nullopt;
    if (isKey) {
        if (!isWholeNumber(pattern))
            return negated ? always : never;
        return (negated ? u"<> "_s : u"= "_s) + pattern;
    }
    const std::optional<QStringList> variants = textorder::caseVariants(pattern);
    if (!variants)
        return std::nullopt;
    QStringList texts;
    for (const QString &variant : *variants)
        texts << quoted(variant);
    if (texts.size() == 1)
        return (negated ? u"<> "_s : u"= "_s) + texts.first();
    return (negated ? u"NOT IN ("_s : u"IN ("_s) + texts.join(u", ") + u')';
}

/// The different values of an indexed column, one step of the index each, however many rows have them.
QString steppedValues(const QString &table, const QString &column)
{
    return u"WITH RECURSIVE step(%2) AS (SELECT min(%2) FROM %1 UNION ALL "
           "SELECT (SELECT min(%2) FROM %1 WHERE %2 > step.%2) FROM step WHERE step.%2 IS NOT NULL) "
           "SELECT %2 FROM step WHERE %2 IS NOT NULL "
           "UNION ALL SELECT NULL WHERE EXISTS (SELECT 1 FROM %1 WHERE %2 IS NULL)"_s.arg(table, column);
}

QStringList texts(const std::vector<OrderTerm> &terms)
{
    QStringList result;
    for (const OrderTerm &term : terms)
        result << term.text();
    return result;
}

class Translator
{
public:
    explicit Translator(QStringView sql) : m_tokens(tokenize(sql))
    {
        if (m_tokens.empty())
            throw Error(Error::Kind::Query, u"O comando ao banco de dados está vazio."_s);
    }

    Translation run(RowKey rowKey, RowOrder rowOrder)
    {
        rewriteLooseConditions();
        rewriteLikes();
        rewriteDateComparisons();
        if (m_tokens.front().is(u"select"))
            return select(rowKey, rowOrder);
        if (m_tokens.front().is(u"delete") && m_tokens.size() > 1 && m_tokens[1].isSymbol(u'*'))
            m_tokens.erase(m_tokens.begin() + 1);
        if (m_tokens.front().is(u"update"))
            keepFourDecimals();
        return {.sql = join(0, m_tokens.size())};
    }

private:
    struct Column
    {
        QString text;      ///< as written, with its table if that is named
        QString name;      ///< folded
        std::size_t begin; ///< its first token, with the parentheses around it
    };

    struct Literal
    {
        QString text;
        std::size_t end; ///< behind its last token, with the parentheses around it
    };

    /// Where the parts of a SELECT begin; each ends where the next begins.
    struct Clauses
    {
        std::size_t list, from, group, order, limit, end;
        bool distinct, compound;
    };

    QString join(std::size_t begin, std::size_t end) const
    {
        QString text;
        for (std::size_t i = begin; i < end; ++i)
            text += m_tokens[i].blanks + m_tokens[i].text;
        return text;
    }

    /// The first such word outside parentheses; `end` when there is none.
    std::size_t find(std::initializer_list<QStringView> words, std::size_t begin, std::size_t end) const
    {
        while (begin < end && (m_tokens[begin].depth > 0 || !isOneOf(m_tokens[begin], words)))
            ++begin;
        return begin;
    }

    std::optional<Column> column(std::size_t begin, std::size_t end) const
    {
        const bool qualified =
            end - begin == 3 && m_tokens[begin].isName() && m_tokens[begin + 1].isSymbol(u'.');
        if ((end - begin != 1 && !qualified) || !m_tokens[end - 1].isName())
            return std::nullopt;
        return Column{join(begin, end).trimmed(), m_tokens[end - 1].value, begin};
    }

    /// The parts of a list between commas outside inner parentheses.
    std::vector<std::pair<std::size_t, std::size_t>> split(std::size_t begin, std::size_t end) const
    {
        std::vector<std::pair<std::size_t, std::size_t>> parts;
        for (std::size_t i = begin; i <= end; ++i) {
            if (i == end || (m_tokens[i].isSymbol(u',') && m_tokens[i].depth == 0)) {
                parts.emplace_back(begin, i);
                begin = i + 1;
            }
        }
        return parts;
    }

    /// One piece of the finished statement in the place of the tokens from `begin` to `end`.
    void replace(std::size_t begin, std::size_t end, const QString &text)
    {
        const bool opens = begin > 0 && m_tokens[begin - 1].isSymbol(u'(');
        m_tokens[begin] = {Token::Kind::Symbol, opens ? QString() : u" "_s, text, {}, m_tokens[begin].depth};
        m_tokens.erase(m_tokens.begin() + qsizetype(begin) + 1, m_tokens.begin() + qsizetype(end));
    }

    void rewriteLooseConditions();
    void rewriteLikes();
    void rewriteDateComparisons();
    std::optional<std::size_t> rewriteDateComparison(std::size_t at);
    std::optional<Column> leftOperand(std::size_t end) const;
    std::optional<Literal> rightOperand(std::size_t begin) const;
    void keepFourDecimals();

    Clauses clauses() const;
    QString singleTable(const Clauses &at) const;
    bool aggregates(const Clauses &at) const;
    Translation select(RowKey rowKey, RowOrder rowOrder) const;
    OrderTerm orderTerm(std::size_t begin, std::size_t end, bool compound) const;
    std::vector<OrderTerm> orderTerms(const Clauses &at) const;
    QString condition(const Clauses &at) const;
    QString distinctRows(const Clauses &at) const;
    QString distinctValues(const Clauses &at, const Column &column) const;

    std::vector<Token> m_tokens;
};

/// `column(like 'text')` as `column like('text')`, and a WHERE that follows AND or OR left out.
void Translator::rewriteLooseConditions()
{
    for (std::size_t i = 1; i + 1 < m_tokens.size(); ++i) {
        const bool loose = m_tokens[i].isSymbol(u'(') && m_tokens[i + 1].is(u"like") &&
                           i + 3 < m_tokens.size() && m_tokens[i + 2].kind == Token::Kind::Text &&
                           m_tokens[i + 3].isSymbol(u')');
        if (loose && m_tokens[i - 1].isName()) {
            std::swap(m_tokens[i], m_tokens[i + 1]);
            std::swap(m_tokens[i].depth, m_tokens[i + 1].depth);
            m_tokens[i].blanks = u" "_s;
        } else if (m_tokens[i].is(u"where") && isOneOf(m_tokens[i - 1], {u"and", u"or"})) {
            m_tokens.erase(m_tokens.begin() + qsizetype(i));
        }
    }
}

void Translator::rewriteLikes()
{
    for (std::size_t i = 1; i < m_tokens.size(); ++i) {
        if (!m_tokens[i].is(u"like"))
            continue;
        const bool negated = m_tokens[i - 1].is(u"not");
        const std::size_t begin = negated ? i - 1 : i;
        const std::optional<Column> operand = leftOperand(begin);
        const std::optional<Literal> pattern = rightOperand(i + 1);
        if (!operand || !pattern)
            continue;
        if (isDateColumn(operand->name)) {
            if (const std::optional<QString> date = dateLike(operand->text, pattern->text, negated)) {
                replace(operand->begin, pattern->end, *date);
                i = operand->begin;
                continue;
            }
        }
        const std::optional<QString> condition =
            indexedCondition(operand->text, isKeyColumn(operand->name), pattern->text, negated);
        if (!condition)
            continue;
        replace(begin, pattern->end, *condition);
        i = begin;
    }
}

/// What an UPDATE assigns looks like a comparison and is none.
void Translator::rewriteDateComparisons()
{
    const std::size_t end = m_tokens.size();
    for (std::size_t i = m_tokens.front().is(u"update") ? find({u"where"}, 0, end) : 1; i < m_tokens.size();
         ++i)
        i = rewriteDateComparison(i).value_or(i);
}

/// Rewrites the comparison whose operator begins at `at`, of a date column with a date; says where it then
/// is.
std::optional<std::size_t> Translator::rewriteDateComparison(std::size_t at)
{
    const bool range = m_tokens[at].is(u"between");
    if (!range && !(m_tokens[at].kind == Token::Kind::Symbol && u"<>=!"_s.contains(m_tokens[at].text)))
        return std::nullopt;
    const bool negated = range && m_tokens[at - 1].is(u"not");
    const bool twoSigns = !range && at + 1 < m_tokens.size() &&
                          (m_tokens[at + 1].isSymbol(u'=') || m_tokens[at + 1].isSymbol(u'>'));
    const std::optional<Column> operand = leftOperand(negated ? at - 1 : at);
    const std::optional<Literal> first = rightOperand(at + (twoSigns ? 2 : 1));
    if (!operand || !isDateColumn(operand->name) || !first)
        return std::nullopt;
    const std::optional<QString> firstDate = dateOperand(first->text);
    if (!firstDate)
        return std::nullopt;
    const QString date = dateExpression(operand->text);
    if (!range) {
        const QString sign = m_tokens[at].text + (twoSigns ? m_tokens[at + 1].text : QString());
        replace(operand->begin, first->end, date + u' ' + sign + u' ' + quoted(*firstDate));
        return operand->begin;
    }
    const bool continued = first->end < m_tokens.size() && m_tokens[first->end].is(u"and");
    const std::optional<Literal> second = continued ? rightOperand(first->end + 1) : std::nullopt;
    const std::optional<QString> secondDate = second ? dateOperand(second->text) : std::nullopt;
    if (!secondDate)
        return std::nullopt;
    replace(operand->begin, second->end,
            date + (negated ? u" NOT BETWEEN "_s : u" BETWEEN "_s) + quoted(*firstDate) + u" AND "_s +
                quoted(*secondDate));
    return operand->begin;
}

/// The column, in parentheses or not, that stands before `end` and is the whole left side of the comparison.
std::optional<Translator::Column> Translator::leftOperand(std::size_t end) const
{
    int parentheses = 0;
    for (; end > 0 && m_tokens[end - 1].isSymbol(u')'); --end)
        ++parentheses;
    if (end == 0)
        return std::nullopt;
    std::size_t begin = end > 2 && m_tokens[end - 2].isSymbol(u'.') ? end - 3 : end - 1;
    std::optional<Column> found = column(begin, end);
    for (; parentheses > 0; --parentheses, --begin) {
        if (begin == 0 || !m_tokens[begin - 1].isSymbol(u'('))
            return std::nullopt;
    }
    if (!found || begin == 0)
        return std::nullopt;
    found->begin = begin;
    const Token &before = m_tokens[begin - 1];
    const bool whole =
        before.isSymbol(u'(') || before.isSymbol(u',') ||
        isOneOf(before, {u"where", u"and", u"or", u"not", u"on", u"having", u"when", u"select"});
    return whole ? found : std::nullopt;
}

/// The literal, in parentheses or not, that begins at `begin` and is the whole right side of the comparison.
std::optional<Translator::Literal> Translator::rightOperand(std::size_t begin) const
{
    std::size_t at = begin;
    while (at < m_tokens.size() && m_tokens[at].isSymbol(u'('))
        ++at;
    if (at == m_tokens.size() ||
        (m_tokens[at].kind != Token::Kind::Text && m_tokens[at].kind != Token::Kind::Number))
        return std::nullopt;
    Literal literal{m_tokens[at].value, 0};
    const std::size_t parentheses = at - begin;
    ++at;
    for (std::size_t i = 0; i < parentheses; ++i, ++at) {
        if (at == m_tokens.size() || !m_tokens[at].isSymbol(u')'))
            return std::nullopt;
    }
    literal.end = at;
    if (at == m_tokens.size())
        return literal;
    const Token &after = m_tokens[at];
    const bool whole =
        after.isSymbol(u')') || after.isSymbol(u',') ||
        isOneOf(after, {u"and", u"or", u"order", u"group", u"having", u"limit", u"union", u"then"});
    return whole ? std::optional(literal) : std::nullopt;
}

/// `SET a = a + 0.1` adds binary fractions; rounding what comes out keeps the decimal number exact.
void Translator::keepFourDecimals()
{
    const std::size_t set = find({u"set"}, 0, m_tokens.size());
    const std::size_t end = find({u"where"}, set, m_tokens.size());
    if (set == m_tokens.size())
        return;
    for (const auto &[first, last] : split(set + 1, end)) {
        const bool relative = last - first > 4 && m_tokens[first].isName() &&
                              m_tokens[first + 1].isSymbol(u'=') && m_tokens[first + 2].isName() &&
                              m_tokens[first].value == m_tokens[first + 2].value &&
                              (m_tokens[first + 3].isSymbol(u'+') || m_tokens[first + 3].isSymbol(u'-'));
        if (!relative)
            continue;
        m_tokens[first + 2].text.prepend("round("_L1);
        m_tokens[last - 1].text.append(", 4)"_L1);
    }
}

Translator::Clauses Translator::clauses() const
{
    Clauses at{};
    at.end = m_tokens.size();
    at.distinct = at.end > 1 && m_tokens[1].is(u"distinct");
    at.list = at.distinct ? 2 : 1;
    at.from = find({u"from"}, at.list, at.end);
    at.compound = find({u"union", u"intersect", u"except"}, at.list, at.end) != at.end;
    at.limit = find({u"limit"}, at.from, at.end);
    at.order = find({u"order"}, at.from, at.limit);
    at.group = find({u"group", u"having"}, at.from, at.order);
    return at;
}

/// The table's name when it is the only source of the rows; empty otherwise.
QString Translator::singleTable(const Clauses &at) const
{
    if (at.compound || at.from == at.end)
        return {};
    const std::size_t end = find({u"where"}, at.from, at.group);
    const std::size_t words = end - at.from - 1;
    const bool names =
        std::all_of(m_tokens.begin() + qsizetype(at.from) + 1, m_tokens.begin() + qsizetype(end),
                    [](const Token &token) { return token.isName(); });
    const bool aliased = words == 2 || (words == 3 && m_tokens[at.from + 2].is(u"as"));
    return names && (words == 1 || aliased) ? m_tokens[at.from + 1].text : QString();
}

bool Translator::aggregates(const Clauses &at) const
{
    for (std::size_t i = at.list; i + 1 < at.from; ++i) {
        if (isOneOf(m_tokens[i], {u"count", u"sum", u"avg", u"min", u"max", u"total", u"group_concat"}) &&
            m_tokens[i + 1].isSymbol(u'('))
            return true;
    }
    return false;
}

OrderTerm Translator::orderTerm(std::size_t begin, std::size_t end, bool compound) const
{
    using Kind = OrderTerm::Kind;
    const bool directed = end > begin && isOneOf(m_tokens[end - 1], {u"asc", u"desc"});
    const bool descending = directed && m_tokens[end - 1].is(u"desc");
    const std::size_t nameEnd = directed ? end - 1 : end;
    const std::optional<Column> term = column(begin, nameEnd);
    if (!term || isOrderedAsStored(term->name))
        return {join(begin, nameEnd).trimmed(), descending, Kind::Plain};
    const bool date = isDateColumn(term->name);
    const bool amount = isAmountColumn(term->name);
    if (compound && (date || amount)) // the store takes no expression there
        return {term->text, descending, Kind::Plain};
    if (date)
        return {dateExpression(term->text), descending, Kind::Date, term->text};
    if (amount)
        return {u"%1(%2)"_s.arg(QLatin1StringView(amountFunction), term->text), descending, Kind::Amount};
    return {u"%1 COLLATE %2"_s.arg(term->text, QLatin1StringView(nameOrder)), descending, Kind::Name};
}

std::vector<OrderTerm> Translator::orderTerms(const Clauses &at) const
{
    std::vector<OrderTerm> terms;
    if (at.order + 2 < at.limit) {
        for (const auto &[begin, end] : split(at.order + 2, at.limit))
            terms.push_back(orderTerm(begin, end, at.compound));
    }
    return terms;
}

QString Translator::condition(const Clauses &at) const
{
    const std::size_t where = find({u"where"}, at.from, at.group);
    return where < at.group ? join(where + 1, at.group).trimmed() : QString();
}

Translation Translator::select(RowKey rowKey, RowOrder rowOrder) const
{
    const Clauses at = clauses();
    const QString table = singleTable(at);
    const bool grouped = at.group != at.order || aggregates(at);
    const auto counted = [](const QString &sql) { return u"SELECT count(*) FROM ("_s + sql + u')'; };
    if (!table.isEmpty() && at.distinct && !grouped) {
        const QString rows = distinctRows(at);
        if (!rows.isEmpty())
            return {.sql = rows, .countSql = counted(rows), .isSelect = true};
    }

    std::vector<OrderTerm> order = orderTerms(at);
    QStringList terms = texts(order);
    const bool plainRows = !table.isEmpty() && !at.distinct && !grouped;
    if (plainRows && rowOrder == RowOrder::Insertion)
        terms << u"rowid"_s;
    const bool wholeRows = plainRows && at.from - at.list == 1 && m_tokens[at.list].isSymbol(u'*');
    const bool withKey = wholeRows && rowKey == RowKey::Appended;
    const QString body = join(at.from, at.order);
    QString sql = join(0, at.from) + (withKey ? ", rowid"_L1 : ""_L1) + body;
    if (!terms.isEmpty())
        sql += u" ORDER BY "_s + terms.join(u", ");
    sql += join(at.limit, at.end);
    const bool countable = plainRows && at.limit == at.end;
    Translation translation{.sql = sql,
                            .countSql = countable ? u"SELECT count(*)"_s + body : counted(sql),
                            .table = wholeRows ? table : QString(),
                            .isSelect = true};
    if (plainRows) {
        translation.where = condition(at);
        translation.orderTerms = std::move(order);
    }
    return translation;
}

/// DISTINCT over plain columns of one table; empty when the statement is of another form. Values that differ
/// only in letter case are one, and without ORDER BY a value stands where the table first has it.
QString Translator::distinctRows(const Clauses &at) const
{
    std::vector<Column> columns;
    QStringList names;
    for (const auto &[begin, end] : split(at.list, at.from)) {
        const std::optional<Column> one = column(begin, end);
        if (!one)
            return {};
        columns.push_back(*one);
        names << one->text;
    }
    if (columns.size() == 1)
        return distinctValues(at, columns.front());
    const QStringList terms = texts(orderTerms(at)) << u"min(rowid)"_s;
    return u"SELECT"_s + join(at.list, at.order) + u" GROUP BY "_s + names.join(u", ") + u" ORDER BY "_s +
           terms.join(u", ") + join(at.limit, at.end);
}

/// The inner query, which an index of the column serves, leaves few values for the outer one to compare.
QString Translator::distinctValues(const Clauses &at, const Column &column) const
{
    const QString source = join(at.from, at.order);
    const QString limit = join(at.limit, at.end);
    const QString name = u'[' + column.name + u']';
    const QString folded = u"%1(%2)"_s.arg(QLatin1StringView(foldedFunction), name);
    const QString table = singleTable(at);
    const bool everyRow = find({u"where"}, at.from, at.order) == at.order;
    const bool steps = everyRow && column.text.size() <= column.name.size() + 2 &&
                       isIndexed(textorder::folded(table), column.name);
    if (at.order == at.limit)
        return u"SELECT %1 FROM (SELECT %2, min(rowid) AS first_row%3 GROUP BY %2) GROUP BY %4 ORDER BY min(first_row)"_s
                   .arg(name, column.text, source, folded) +
               limit;
    for (std::size_t i = at.order + 2; i < at.limit; ++i) {
        if (m_tokens[i].value != column.name && !isOneOf(m_tokens[i], {u"asc", u"desc"}))
            return {};
    }
    const QString values = steps ? steppedValues(table, name) : u"SELECT DISTINCT "_s + column.text + source;
    return u"SELECT %1 FROM (%2) GROUP BY %3 ORDER BY %4"_s.arg(name, values, folded,
                                                                texts(orderTerms(at)).join(u", ")) +
           limit;
}

} // namespace

Translation translate(QStringView sql, RowKey rowKey, RowOrder rowOrder)
{
    return Translator(sql).run(rowKey, rowOrder);
}

QString bareTableName(QStringView text)
{
    const std::vector<Token> tokens = tokenize(text);
    return tokens.size() == 1 && tokens.front().isName() ? tokens.front().text : QString();
}

} // namespace dialect
