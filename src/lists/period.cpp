#include "lists/period.h"

#include "data/dates.h"

using namespace Qt::StringLiterals;

namespace period {

namespace {

std::pair<QString, QString> daysUpTo(QDate today, int days)
{
    return {dates::stored(today.addDays(-days)), dates::stored(today)};
}

std::pair<QString, QString> wholeMonth(int year, int month)
{
    return {dates::stored(dates::rolledOver(year, month, 1)),
            dates::stored(dates::rolledOver(year, month, 31))};
}

} // namespace

QStringList choices()
{
    return {u"Todos os dados"_s, u"apenas deste ano"_s, u"apenas deste mês"_s, u"apenas do dia"_s,
            u"ultimos 7 dias"_s, u"ultimos 15 dias"_s,  u"mês anterior"_s,     u"próximo mês"_s};
}

Choice fromText(const QString &text)
{
    const QStringList texts = choices();
    for (qsizetype i = 0; i < texts.size(); ++i) {
        if (texts[i].compare(text.trimmed(), Qt::CaseInsensitive) == 0)
            return Choice(i);
    }
    return Choice::All;
}

std::pair<QString, QString> range(Choice choice, QDate today)
{
    switch (choice) {
    case Choice::Last7Days:
        return daysUpTo(today, 7);
    case Choice::Last15Days:
        return daysUpTo(today, 15);
    case Choice::PreviousMonth:
        return wholeMonth(today.year(), today.month() - 1);
    case Choice::NextMonth:
        return wholeMonth(today.year(), today.month() + 1);
    case Choice::All:
    case Choice::ThisYear:
    case Choice::ThisMonth:
    case Choice::Today:
        break;
    }
    return {};
}

QString condition(Choice choice, const QString &column, const QString &dayColumn, QDate today)
{
    const QString year = today.toString(u"yyyy"_s);
    switch (choice) {
    case Choice::All:
        return {};
    case Choice::ThisYear:
        return u" where("_s + column + u" like '%"_s + year + u"/%') "_s;
    case Choice::ThisMonth:
        return u" where("_s + dayColumn + u" like '%/"_s + today.toString(u"MM"_s) +
               u"/%' AND data like '%"_s + year + u"/%') "_s;
    case Choice::Today:
        return u" where("_s + dayColumn + u" like '"_s + dates::stored(today) + u"') "_s;
    default:
        break;
    }
    const auto [first, last] = range(choice, today);
    return u" WHERE "_s + column + u" BETWEEN '"_s + first + u"' AND '"_s + last + u"' "_s;
}

} // namespace period
