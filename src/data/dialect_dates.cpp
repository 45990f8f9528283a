#include "data/dialect_dates.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace dialect {

namespace {

/// The whole text is of the form.
class Form
{
public:
    explicit Form(const QString &pattern) : m_expression(QRegularExpression::anchoredPattern(pattern)) {}
    bool fits(const QString &text) const { return m_expression.match(text).hasMatch(); }

private:
    QRegularExpression m_expression;
};

/// A whole date, in either form, as "yyyy/mm/dd".
std::optional<QString> wholeDate(const QString &text)
{
    static const Form yearFirst(u"[0-9]{4}/[01][0-9]/[0-3][0-9]"_s);
    static const Form dayFirst(u"[0-3][0-9]/[01][0-9]/[0-9]{4}"_s);
    if (yearFirst.fits(text))
        return text;
    if (dayFirst.fits(text))
        return text.sliced(6) + text.sliced(2, 4) + text.first(2);
    return std::nullopt;
}

/// Whether dates of that year, month or ten days begin so: "2026", "2026/", "2026/1", "2026/11/0".
bool isBeginning(const QString &text)
{
    static const Form form(u"[0-9]{4}(/([01]([0-9](/([0-3][0-9]?)?)?)?)?)?"_s);
    return form.fits(text);
}

/// All dates that begin with a text are those from it up to, without, the text with its last character moved
/// on by one.
QString range(const QString &date, const QString &first)
{
    QString last = first;
    last.back() = QChar(last.back().unicode() + 1);
    return u'(' + date + u" >= '"_s + first + u"' AND "_s + date + u" < '"_s + last + u"')"_s;
}

/// One comparison, or one in parentheses.
QString likeCondition(const QString &date, const QString &pattern)
{
    static const Form month(u"%+/[01][0-9]/%+"_s);
    static const QRegularExpression outerWildcards(u"^%+|%+$"_s);
    const QString core = QString(pattern).remove(outerWildcards);
    if (const std::optional<QString> day = wholeDate(core))
        return date + u" = '"_s + *day + u'\'';
    if (pattern.endsWith(u'%') && isBeginning(core)) // four digits in a row are the year
        return range(date, core);
    if (month.fits(pattern))
        return u"substr("_s + date + u", 6, 2) = '"_s + core.sliced(1, 2) + u'\'';
    return date + u" LIKE '"_s + pattern + u'\'';
}

} // namespace

bool isDateColumn(QStringView folded)
{
    return folded == u"data" || folded == u"vencimento" || folded == u"nascimento";
}

QString dateExpression(QStringView column)
{
    if (column.startsWith(u'[') && column.indexOf(u']') == column.size() - 1)
        column = column.sliced(1, column.size() - 2);
    const QString name = column.toString().toLower();
    return u"CASE WHEN %1 GLOB '[0-9][0-9][0-9][0-9]/[01][0-9]/[0-3][0-9]' THEN %1 "
           "WHEN %1 GLOB '[0-3][0-9]/[01][0-9]/[0-9][0-9][0-9][0-9]' "
           "THEN substr(%1, 7) || substr(%1, 3, 4) || substr(%1, 1, 2) END"_s.arg(name);
}

std::optional<QString> dateOperand(const QString &literal)
{
    if (const std::optional<QString> day = wholeDate(literal))
        return day;
    return isBeginning(literal) ? std::optional(literal) : std::nullopt;
}

std::optional<QString> dateLike(QStringView column, const QString &pattern, bool negated)
{
    static const Form dateText(u"[0-9/%_]*[0-9][0-9/%_]*"_s);
    if (!dateText.fits(pattern))
        return std::nullopt;
    const QString positive = likeCondition(dateExpression(column), pattern);
    return negated ? u"NOT "_s + positive : positive;
}

} // namespace dialect
