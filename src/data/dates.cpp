#include "data/dates.h"

#include <array>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct Parts
{
    int year, month, day;
};

/// Reads digits off the front of `text`: their value and how many there were (at most four are read).
template <typename Char>
std::pair<int, int> takeNumber(std::basic_string_view<Char> &text)
{
    int number = 0;
    int digits = 0;
    while (!text.empty() && text.front() >= Char('0') && text.front() <= Char('9') && digits < 4) {
        number = number * 10 + int(text.front() - Char('0'));
        ++digits;
        text.remove_prefix(1);
    }
    return {number, digits};
}

template <typename Char>
void trim(std::basic_string_view<Char> &text)
{
    while (!text.empty() && text.front() == Char(' '))
        text.remove_prefix(1);
    while (!text.empty() && text.back() == Char(' '))
        text.remove_suffix(1);
}

template <typename Char>
std::optional<Parts> split(std::basic_string_view<Char> text)
{
    trim(text);
    std::array<std::pair<int, int>, 3> numbers{};
    Char separator = 0;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        numbers[i] = takeNumber(text);
        if (i == 2)
            break;
        if (text.empty())
            return std::nullopt;
        const Char found = text.front();
        if (i == 0 && (found == Char('/') || found == Char('-') || found == Char('.')))
            separator = found;
        if (separator == 0 || found != separator)
            return std::nullopt;
        text.remove_prefix(1);
    }
    const auto [first, firstDigits] = numbers[0];
    const auto [month, monthDigits] = numbers[1];
    const auto [last, lastDigits] = numbers[2];
    const auto isShort = [](int digits) { return digits == 1 || digits == 2; };
    if (!text.empty() || !isShort(monthDigits))
        return std::nullopt;
    std::optional<Parts> parts;
    if (firstDigits == 4 && isShort(lastDigits))
        parts = Parts{first, month, last};
    else if (isShort(firstDigits) && lastDigits == 4)
        parts = Parts{last, month, first};
    if (parts && !QDate::isValid(parts->year, parts->month, parts->day))
        parts.reset();
    return parts;
}

std::array<char, 2> twoDigits(int number)
{
    return {char('0' + number / 10 % 10), char('0' + number % 10)};
}

constexpr std::size_t dateLength = 10;

std::array<char, dateLength> shownForm(const Parts &parts)
{
    const auto day = twoDigits(parts.day);
    const auto month = twoDigits(parts.month);
    const auto century = twoDigits(parts.year / 100);
    const auto year = twoDigits(parts.year);
    return {day[0], day[1], '/', month[0], month[1], '/', century[0], century[1], year[0], year[1]};
}

std::array<char, dateLength> storedForm(const Parts &parts)
{
    const auto day = twoDigits(parts.day);
    const auto month = twoDigits(parts.month);
    const auto century = twoDigits(parts.year / 100);
    const auto year = twoDigits(parts.year);
    return {century[0], century[1], year[0], year[1], '/', month[0], month[1], '/', day[0], day[1]};
}

QString toString(const std::array<char, dateLength> &form)
{
    return QString::fromLatin1(form.data(), qsizetype(form.size()));
}

} // namespace

namespace dates {

QString stored(QDate date)
{
    return date.isValid() ? toString(storedForm({date.year(), date.month(), date.day()})) : QString();
}

QString shown(QDate date)
{
    return date.isValid() ? toString(shownForm({date.year(), date.month(), date.day()})) : QString();
}

QDate read(QStringView text)
{
    const auto parts = split(std::u16string_view(text.utf16(), std::size_t(text.size())));
    return parts ? QDate(parts->year, parts->month, parts->day) : QDate();
}

QString shownFromStored(QStringView text)
{
    const QDate date = read(text);
    return date.isValid() ? shown(date) : text.toString();
}

void appendShown(std::string_view stored, std::string &out)
{
    if (const auto parts = split(stored)) {
        const auto form = shownForm(*parts);
        out.append(form.data(), form.size());
    } else {
        out += stored;
    }
}

QString longDate(QDate date)
{
    static constexpr std::array<QStringView, 7> days = {u"segunda-feira", u"terça-feira", u"quarta-feira",
                                                        u"quinta-feira",  u"sexta-feira", u"sábado",
                                                        u"domingo"};
    static constexpr std::array<QStringView, 12> months = {
        u"janeiro", u"fevereiro", u"março",    u"abril",   u"maio",     u"junho",
        u"julho",   u"agosto",    u"setembro", u"outubro", u"novembro", u"dezembro"};
    if (!date.isValid())
        return {};
    return u"%1, %2 de %3 de %4"_s.arg(days[std::size_t(date.dayOfWeek() - 1)])
        .arg(date.day())
        .arg(months[std::size_t(date.month() - 1)])
        .arg(date.year());
}

QString longTime(QTime time)
{
    return time.toString(u"HH:mm:ss"_s);
}

QDate rolledOver(int year, int month, int day)
{
    return QDate(year, 1, 1).addMonths(month - 1).addDays(day - 1);
}

} // namespace dates
