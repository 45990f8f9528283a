#pragma once

#include <QString>
#include <QStringView>

#include <string>
#include <string_view>

/// Text as people look for it: letter case and accents do not count, "acai" finds "AÇAÍ".
namespace searchtext {

/// What is compared: small letters without marks.
QString plain(QStringView text);
/// plain() of UTF-8, appended to `out`; for lists of many rows.
void appendPlain(std::string_view utf8, std::string &out);
/// Whether every word of `plainWords`, which plain() gave, stands somewhere in the text.
bool containsWords(QStringView text, const QString &plainWords);

} // namespace searchtext
