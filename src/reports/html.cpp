#include "reports/html.h"

using namespace Qt::StringLiterals;

std::string_view html::escaped(std::string_view utf8, std::string &buffer)
{
    constexpr std::string_view special = "&<>\"'";
    std::size_t found = utf8.find_first_of(special);
    if (found == std::string_view::npos)
        return utf8;
    std::string safe;
    std::size_t done = 0;
    for (; found != std::string_view::npos; found = utf8.find_first_of(special, done)) {
        safe += utf8.substr(done, found - done);
        switch (utf8[found]) {
        case '&':
            safe += "&amp;";
            break;
        case '<':
            safe += "&lt;";
            break;
        case '>':
            safe += "&gt;";
            break;
        case '"':
            safe += "&quot;";
            break;
        default:
            safe += "&#39;";
        }
        done = found + 1;
    }
    safe += utf8.substr(done);
    buffer = std::move(safe);
    return buffer;
}

QString html::escaped(QStringView text)
{
    std::string buffer;
    const std::string utf8 = text.toString().toStdString();
    const std::string_view safe = escaped(utf8, buffer);
    return QString::fromUtf8(safe.data(), qsizetype(safe.size()));
}

QString html::lines(QStringView text)
{
    return escaped(text).replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(u"\n"_s, u"<br>"_s);
}
