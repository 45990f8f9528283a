#include "lists/figures.h"

#include "data/like.h"
#include "data/status.h"

using namespace Qt::StringLiterals;

namespace {

bool isWord(std::string_view status, QStringView word)
{
    return textorder::equalFolded(QString::fromUtf8(status.data(), qsizetype(status.size())), word);
}

} // namespace

Figures::Part &Figures::partOf(std::string_view status, StatusRule rule)
{
    if (status == status::pendingUtf8)
        return pending;
    if (rule == StatusRule::Exact || status == status::settledUtf8)
        return settled;
    if (isWord(status, status::pending))
        return pending;
    return rule == StatusRule::AnyCase || isWord(status, status::settled) ? settled : other;
}

QStringList FigureTotals::columns() const
{
    return {u"estatus"_s, u"valor"_s};
}

void FigureTotals::add(std::span<const std::string_view> values, int sign)
{
    figures.add(values[0], Money::stored(values[1]), sign, m_rule);
}
