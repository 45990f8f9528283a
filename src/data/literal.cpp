#include "data/literal.h"

#include "data/error.h"

using namespace Qt::StringLiterals;

namespace {

void refuseApostrophe(const QString &text)
{
    if (text.contains(u'\''))
        throw Error(
            Error::Kind::Query,
            u"o texto \"%1\" tem apóstrofo ('), e o banco de dados não aceita um comando com ele."_s.arg(
                text));
}

} // namespace

namespace sql {

QString literal(const QString &text)
{
    refuseApostrophe(text);
    return u'\'' + text + u'\'';
}

QString containing(const QString &text)
{
    refuseApostrophe(text);
    return u"'%"_s + text + u"%'"_s;
}

} // namespace sql
