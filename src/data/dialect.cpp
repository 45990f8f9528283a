#include "data/dialect.h"

#include "data/dialect_tokens.h"
#include "data/error.h"
#include "data/like.h"

#include <QRegularExpression>
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

bool isDateColumn(QStringView name)
{
    return isOneOf(name, {u"data", u"vencimento", u"nascimento"});
}

/// Columns whose stored order is the order wanted.
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

/// A comparison of the date that a column means.
struct DateCondition
{
    QString operand, condition;
};

/// "2026/11/23" for a date in either stored form; empty for any other text.
QString dateIn(const QString &text)
{
    static const QRegularExpression yearFirst(uR"(^\d{4}/[01]\d/[0-3]\d$)"_s);
    static const QRegularExpression dayFirst(uR"(^([0-3]\d)/([01]\d)/(\d{4})$)"_s);
    if (yearFirst.match(text).hasMatch())
        return text;
    const QRegularExpressionMatch match = dayFirst.match(text);
    return match.hasMatch() ? match.captured(3) + u'/' + match.captured(2) + u'/' + match.captured(1)
                            : QString();
}

/// `column like 'pattern'` for a date column; nothing for a pattern that is not made of a date's characters.
std::optional<DateCondition> dateCondition(const QString &column, const QString &pattern, bool negated)
{
    static const QRegularExpression ofDate(uR"(^[\d/%_]+$)"_s);
    static const QRegularExpression yearOrMonth(uR"(^%?(\d{4}/(\d\d/)?)%$)"_s);
    static const QRegularExpression anyYearsMonth(uR"(^%/(\d\d)/%$)"_s);
    if (LikePattern(pattern).matchesEverything() || !ofDate.match(pattern).hasMatch())
        return std::nullopt;
    const QString expression = dateExpression(column);
    const QString not_ = negated ? u"NOT "_s : QString();
    if (const QString date = dateIn(pattern); !date.isEmpty())
        return DateCondition{expression, (negated ? u"<> "_s : u"= "_s) + quoted(date)};
    if (const auto match = yearOrMonth.match(pattern); match.hasMatch()) {
        const QString first = match.captured(1);
        return DateCondition{expression,
                             not_ + u"BETWEEN "_s + quoted(first) + u" AND "_s + quoted(first + u"99/99"_s)};
    }
    if (const auto match = anyYearsMonth.match(pattern); match.hasMatch())
        return DateCondition{u"substr("_s + expression + u", 6, 2)"_s,
                             (negated ? u"<> "_s : u"= "_s) + quoted(match.captured(1))};
    return DateCondition{expression, not_ + u"LIKE "_s + quoted(pattern)};
}

/// The different values of an indexed column, one step of the index each, however many rows have them.
QString steppedValues(const QString &table, const QString &column)
{
    return u"WITH RECURSIVE step(%2) AS (SELECT min(%2) FROM %1 UNION ALL "
           "SELECT (SELECT min(%2) FROM %1 WHERE %2 > step.%2) FROM step WHERE step.%2 IS NOT NULL) "
           "SELECT %2 FROM step WHERE %2 IS NOT NULL "
           "UNION ALL SELECT NULL WHERE EXISTS (SELECT 1 FROM %1 WHERE %2 IS NULL)"_s.arg(table, column);
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
        rewriteLikes();
        rewriteDateComparisons();
        if (m_tokens.front().is(u"select"))
            return select(rowKey, rowOrder);
        if (m_tokens.front().is(u"delete") && m_tokens.size() > 1 && m_tokens[1].isSymbol(u'*'))
            m_tokens.erase(m_tokens.begin() + 1);
        if (m_tokens.front().is(u"update"))
            keepFourDecimals();
        return {join(0, m_tokens.size()), {}, {}, false};
    }

private:
    struct Column
    {
        QString text; ///< as written, with its table if that is named
        QString name; ///< folded
    };

    struct Operand
    {
        Column column;
        std::size_t begin, end; ///< its tokens
    };

    struct Pattern
    {
        QString text;
        std::size_t end;
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
        return Column{join(begin, end).trimmed(), m_tokens[end - 1].value};
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

    void rewriteLikes();
    std::optional<Operand> likeOperand(std::size_t end) const;
    void rewriteDateComparisons();
    bool rewriteBetween(std::size_t column);
    void rewriteComparison(std::size_t column);
    void replace(std::size_t begin, std::size_t end, const QString &text);
    std::optional<Pattern> likePattern(std::size_t begin) const;
    void keepFourDecimals();

    Clauses clauses() const;
    QString singleTable(const Clauses &at) const;
    bool aggregates(const Clauses &at) const;
    Translation select(RowKey rowKey, RowOrder rowOrder) const;
    OrderTerm orderTerm(std::size_t begin, std::size_t end, bool compound) const;
    std::vector<OrderTerm> orderTerms(const Clauses &at) const;
    QStringList orderTexts(const Clauses &at) const;
    QString distinctRows(const Clauses &at) const;
    QString distinctValues(const Clauses &at, const Column &column) const;

    std::vector<Token> m_tokens;
};

void Translator::rewriteLikes()
{
    for (std::size_t i = 1; i < m_tokens.size(); ++i) {
        if (!m_tokens[i].is(u"like"))
            continue;
        const bool negated = m_tokens[i - 1].is(u"not");
        const std::size_t begin = negated ? i - 1 : i;
        const std::optional<Operand> operand = likeOperand(begin);
        const std::optional<Pattern> pattern = likePattern(i + 1);
        if (!operand || !pattern)
            continue;
        const auto &[text, name] = operand->column;
        std::optional<QString> condition;
        if (const auto ofDate =
                isDateColumn(name) ? dateCondition(text, pattern->text, negated) : std::nullopt) {
            replace(operand->begin, operand->end, ofDate->operand);
            condition = ofDate->condition;
        } else {
            condition = indexedCondition(text, isKeyColumn(name), pattern->text, negated);
        }
        if (!condition)
            continue;
        m_tokens[begin] = {Token::Kind::Symbol, u" "_s, *condition, {}, m_tokens[i].depth};
        m_tokens.erase(m_tokens.begin() + qsizetype(begin) + 1, m_tokens.begin() + qsizetype(pattern->end));
        i = begin;
    }
}

/// The column, in parentheses or not, that stands before `end` and is the whole left side of the comparison.
std::optional<Translator::Operand> Translator::likeOperand(std::size_t end) const
{
    int parentheses = 0;
    for (; end > 0 && m_tokens[end - 1].isSymbol(u')'); --end)
        ++parentheses;
    if (end == 0)
        return std::nullopt;
    std::size_t begin = end > 2 && m_tokens[end - 2].isSymbol(u'.') ? end - 3 : end - 1;
    const std::optional<Column> found = column(begin, end);
    const Operand operand{found.value_or(Column()), begin, end};
    for (; parentheses > 0; --parentheses, --begin) {
        if (begin == 0 || !m_tokens[begin - 1].isSymbol(u'('))
            return std::nullopt;
    }
    if (!found || begin == 0)
        return std::nullopt;
    const Token &before = m_tokens[begin - 1];
    const bool whole =
        before.isSymbol(u'(') || before.isSymbol(u',') ||
        isOneOf(before, {u"where", u"and", u"or", u"not", u"on", u"having", u"when", u"select"});
    return whole ? std::optional(operand) : std::nullopt;
}

/// The literal, in parentheses or not, that begins at `begin` and is the whole right side of the comparison.
std::optional<Translator::Pattern> Translator::likePattern(std::size_t begin) const
{
    std::size_t at = begin;
    while (at < m_tokens.size() && m_tokens[at].isSymbol(u'('))
        ++at;
    if (at == m_tokens.size() ||
        (m_tokens[at].kind != Token::Kind::Text && m_tokens[at].kind != Token::Kind::Number))
        return std::nullopt;
    Pattern pattern{m_tokens[at].value, 0};
    const std::size_t parentheses = at - begin;
    ++at;
    for (std::size_t i = 0; i < parentheses; ++i, ++at) {
        if (at == m_tokens.size() || !m_tokens[at].isSymbol(u')'))
            return std::nullopt;
    }
    pattern.end = at;
    if (at == m_tokens.size())
        return pattern;
    const Token &after = m_tokens[at];
    const bool whole =
        after.isSymbol(u')') || after.isSymbol(u',') ||
        isOneOf(after, {u"and", u"or", u"order", u"group", u"having", u"limit", u"union", u"then"});
    return whole ? std::optional(pattern) : std::nullopt;
}

/// Lets the first of some tokens say it all.
void Translator::replace(std::size_t begin, std::size_t end, const QString &text)
{
    m_tokens[begin].text = text;
    for (std::size_t i = begin + 1; i < end; ++i)
        m_tokens[i].text.clear();
}

/// What an UPDATE sets stays as it is; conditions compare dates.
void Translator::rewriteDateComparisons()
{
    const auto isWhere = [](const Token &token) { return token.is(u"where"); };
    const auto where = std::find_if(m_tokens.begin(), m_tokens.end(), isWhere);
    for (std::size_t i = std::size_t(where - m_tokens.begin()); i + 2 < m_tokens.size(); ++i) {
        const Token &token = m_tokens[i];
        if (token.isName() && isDateColumn(token.value) && token.text.size() <= token.value.size() + 2 &&
            !m_tokens[i - 1].isSymbol(u'.') && !rewriteBetween(i))
            rewriteComparison(i);
    }
}

bool Translator::rewriteBetween(std::size_t column)
{
    std::size_t at = column + 1;
    if (m_tokens[at].is(u"not"))
        ++at;
    if (at + 3 >= m_tokens.size() || !m_tokens[at].is(u"between") || !m_tokens[at + 2].is(u"and"))
        return false;
    const QString first = dateIn(m_tokens[at + 1].value), last = dateIn(m_tokens[at + 3].value);
    if (first.isEmpty() || last.isEmpty())
        return true;
    m_tokens[column].text = dateExpression(m_tokens[column].text);
    m_tokens[at + 1].text = quoted(first);
    m_tokens[at + 3].text = quoted(last);
    return true;
}

void Translator::rewriteComparison(std::size_t column)
{
    std::size_t at = column + 1;
    while (at < m_tokens.size() && m_tokens[at].kind == Token::Kind::Symbol &&
           u"<>=!"_s.contains(m_tokens[at].text))
        ++at;
    if (at == column + 1 || at == m_tokens.size() || m_tokens[at].kind != Token::Kind::Text)
        return;
    if (const QString date = dateIn(m_tokens[at].value); !date.isEmpty()) {
        m_tokens[column].text = dateExpression(m_tokens[column].text);
        m_tokens[at].text = quoted(date);
    }
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
    const bool directed = end > begin && isOneOf(m_tokens[end - 1], {u"asc", u"desc"});
    const bool descending = directed && m_tokens[end - 1].is(u"desc");
    const std::size_t nameEnd = directed ? end - 1 : end;
    const std::optional<Column> term = column(begin, nameEnd);
    const QString text = join(begin, nameEnd).trimmed();
    if (!term || isOrderedAsStored(term->name))
        return {text, descending, OrderTerm::Kind::Plain};
    const bool isDate = isDateColumn(term->name);
    if (compound && (isDate || isAmountColumn(term->name))) // the store takes no expression there
        return {text, descending, OrderTerm::Kind::Plain};
    if (isDate)
        return {dateExpression(text), descending, OrderTerm::Kind::Date};
    if (isAmountColumn(term->name))
        return {u"%1(%2)"_s.arg(QLatin1StringView(amountFunction), text), descending,
                OrderTerm::Kind::Amount};
    return {u"%1 COLLATE %2"_s.arg(text, QLatin1StringView(nameOrder)), descending, OrderTerm::Kind::Name};
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

QStringList Translator::orderTexts(const Clauses &at) const
{
    QStringList texts;
    for (const OrderTerm &term : orderTerms(at))
        texts << (term.descending ? term.expression + u" DESC"_s : term.expression);
    return texts;
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
            return {rows, counted(rows), {}, true};
    }

    QStringList terms = orderTexts(at);
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
    const std::size_t where = find({u"where"}, at.from, at.group);
    return {sql,  countable ? u"SELECT count(*)"_s + body : counted(sql),   wholeRows ? table : QString(),
            true, where < at.group ? join(where + 1, at.group) : QString(), orderTerms(at)};
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
    const QStringList terms = orderTexts(at) << u"min(rowid)"_s;
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
                                                                orderTexts(at).join(u", ")) +
           limit;
}

} // namespace

QString dateExpression(const QString &column)
{
    return u"CASE WHEN %1 GLOB '[0-9][0-9][0-9][0-9]/[01][0-9]/[0-3][0-9]' THEN %1 "
           "WHEN %1 GLOB '[0-3][0-9]/[01][0-9]/[0-9][0-9][0-9][0-9]' "
           "THEN substr(%1, 7) || substr(%1, 3, 4) || substr(%1, 1, 2) END"_s.arg(column);
}

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
