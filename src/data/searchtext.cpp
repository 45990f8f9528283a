#include "data/searchtext.h"

#include <QStringTokenizer>

#include <algorithm>

namespace searchtext {

QString plain(QStringView text)
{
    const bool isPlain =
        std::ranges::all_of(text, [](QChar c) { return c.unicode() < 0x80 && !(c >= u'A' && c <= u'Z'); });
    if (isPlain)
        return text.toString();
    QString result;
    for (const QChar c : text.toString().normalized(QString::NormalizationForm_D))
        if (!c.isMark())
            result += c.toCaseFolded();
    return result;
}

bool containsWords(QStringView text, const QString &plainWords)
{
    const QString searched = plain(text);
    for (const QStringView word : QStringTokenizer(plainWords, u' ', Qt::SkipEmptyParts))
        if (!searched.contains(word))
            return false;
    return true;
}

} // namespace searchtext
