#include "settings/tips.h"

#include "settings/programfolder.h"
#include "settings/settings.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace tips {

bool areShown()
{
    return settings::value(settings::tipOfTheDay) != "0"_L1;
}

QString file()
{
    return programfolder::file(u"dicas.txt"_s);
}

std::optional<QStringList> read()
{
    QFile text(file());
    if (!text.open(QIODevice::ReadOnly | QIODevice::Text))
        return std::nullopt;
    QStringList lines;
    QTextStream stream(&text);
    for (QString line; stream.readLineInto(&line);)
        lines << line;
    return lines;
}

QString missingText()
{
    return u"não foi possível encontrar o arquivo de dicas "_s + file() +
           u"\na reinstalação do software pode corrigir o problema. "_s;
}

QString pick(const QStringList &tips)
{
    return tips.isEmpty() ? QString() : tips.at(QRandomGenerator::global()->bounded(tips.size()));
}

} // namespace tips
