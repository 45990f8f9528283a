#pragma once

#include <QString>
#include <QStringView>

/// Text as people look for it: letter case and accents do not count, "acai" finds "AÇAÍ".
namespace searchtext {

/// What is compared: small letters without marks.
QString plain(QStringView text);
/// Whether every word of `plainWords`, which plain() gave, stands somewhere in the text.
bool containsWords(QStringView text, const QString &plainWords);

} // namespace searchtext
