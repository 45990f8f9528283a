#pragma once

#include <QString>

#include <string>
#include <string_view>

/// Values on their way into an HTML page, inside or outside of an attribute.
namespace html {

QString escaped(QStringView text);
/// The same over UTF-8; uses `buffer` only when there is something to escape.
std::string_view escaped(std::string_view utf8, std::string &buffer);
/// Escaped, with line breaks as "<br>".
QString lines(QStringView text);

} // namespace html
