#include "data/formtext.h"

#include "data/dates.h"
#include "data/error.h"

using namespace Qt::StringLiterals;

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
    return *value;
}

Money amountOrZero(const QString &field, const QString &text)
{
    return text.trimmed().isEmpty() ? Money() : amount(field, text);
}

QString storedDate(const QString &field, const QString &text)
{
    const QDate date = dates::read(text);
    if (!date.isValid())
        throw Error(Error::Kind::Data, u"a data \"%1\" do campo %2 não existe."_s.arg(text, field));
    return dates::stored(date);
}

} // namespace formtext
