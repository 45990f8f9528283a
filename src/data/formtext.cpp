#include "data/formtext.h"

#include "data/dates.h"
#include "data/error.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

Decimal withinLimit(const QString &field, const QString &text, Decimal number)
{
    if (!formtext::isWithinLimit(number))
        throw Error(
            Error::Kind::Data,
            u"o texto \"%1\" do campo %2 é um valor grande demais; o maior é 999.999.999.999,99."_s.arg(
                text, field));
    return number;
}

} // namespace

namespace formtext {

QString freeText(const QString &text)
{
    return text.trimmed() + u' ';
}

Money amount(const QString &field, const QString &text)
{
    const std::optional<Money> value = Money::parse(text);
    if (!value)
        throw Error(Error::Kind::Data,
                    u"o texto \"%1\" do campo %2 não é um valor válido."_s.arg(text, field));
    return withinLimit(field, text, *value);
}

Money amountOrZero(const QString &field, const QString &text)
{
    return text.trimmed().isEmpty() ? Money() : amount(field, text);
}

Quantity quantity(const QString &field, const QString &text)
{
    static const QRegularExpression beginning(uR"(^\s*-?[\d.,]*)"_s),
        misplacedPoint(uR"(\.(?!\d{3}(?!\d)))"_s);
    if (text.trimmed().isEmpty())
        return {};
    const QString number = beginning.match(text).captured();
    if (number.contains(misplacedPoint))
        throw Error(Error::Kind::Data,
                    u"o texto \"%1\" do campo %2 não é um valor válido: o ponto separa milhares (1.000) e a "
                    "vírgula, decimais (1,5)."_s.arg(text, field));
    const std::optional<Quantity> value = Quantity::parse(number);
    if (!value)
        throw Error(Error::Kind::Data,
                    u"o texto \"%1\" do campo %2 não é um valor válido."_s.arg(text, field));
    return withinLimit(field, text, *value);
}

QString storedDate(const QString &field, const QString &text)
{
    const QDate date = dates::read(text);
    if (!date.isValid())
        throw Error(Error::Kind::Data, u"a data \"%1\" do campo %2 não existe."_s.arg(text, field));
    return dates::stored(date);
}

} // namespace formtext
