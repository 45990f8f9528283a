#include "lists/listcolumn.h"

#include "data/dates.h"
#include "data/decimal.h"

namespace cellformat {

void date(std::span<const std::string_view> values, std::string &out)
{
    dates::appendShown(values[0], out);
}

void amount(std::span<const std::string_view> values, std::string &out)
{
    if (values[0].find_first_not_of(' ') != std::string_view::npos)
        Money::stored(values[0]).appendGrouped(out);
}

void reais(std::span<const std::string_view> values, std::string &out)
{
    out = "R$ ";
    Money::stored(values[0]).appendGrouped(out);
}

void withCurrency(std::span<const std::string_view> values, std::string &out)
{
    out = values[1];
    out += ' ';
    Money::stored(values[0]).appendGrouped(out);
}

void textAndBlank(std::span<const std::string_view> values, std::string &out)
{
    out = values[0];
    out += ' ';
}

void dateAndBlank(std::span<const std::string_view> values, std::string &out)
{
    date(values, out);
    out += ' ';
}

void withCurrencyAndBlank(std::span<const std::string_view> values, std::string &out)
{
    withCurrency(values, out);
    out += ' ';
}

} // namespace cellformat
