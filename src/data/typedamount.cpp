#include "data/typedamount.h"

#include "data/error.h"

using namespace Qt::StringLiterals;

Money typedAmount(const QString &field, const QString &text)
{
    const std::optional<Money> value = Money::parse(text);
    if (!value)
        throw Error(Error::Kind::Data,
                    u"o texto \"%1\" do campo %2 não é um valor válido."_s.arg(text, field));
    return *value;
}

Money typedAmountOrZero(const QString &field, const QString &text)
{
    return text.trimmed().isEmpty() ? Money() : typedAmount(field, text);
}
