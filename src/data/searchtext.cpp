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

void appendPlain(std::string_view utf8, std::string &out)
{
    if (std::ranges::all_of(utf8, [](char c) { return static_cast<unsigned char>(c) < 0x80; })) {
        for (const char c : utf8)
            out += c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
        return;
    }
    out += plain(QString::fromUtf8(utf8.data(), qsizetype(utf8.size()))).toStdString();
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
