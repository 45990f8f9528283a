#include "settings/listlayout.h"

#include "data/error.h"
#include "settings/inifile.h"
#include "settings/programfolder.h"

#include <QFileInfo>

#include <cmath>
#include <numeric>
#include <optional>

using namespace Qt::StringLiterals;

namespace listlayout {

namespace {

const QString &widthSection()
{
    static const QString name = u"TAMANHO"_s;
    return name;
}

const QString &positionSection()
{
    static const QString name = u"POSICAO"_s;
    return name;
}

QString positionKey(std::size_t column)
{
    return u"posicao%1"_s.arg(column + 1);
}

/// No width of a screen comes near it.
constexpr double widest = 1e6;

double width(QString text, const QString &defaultText)
{
    bool isNumber = false;
    const double read = text.replace(u',', u'.').toDouble(&isNumber); // QString reads numbers in the C locale
    if (isNumber && read >= 0 && read <= widest)
        return read;
    return QString(defaultText).replace(u',', u'.').toDouble();
}

QString widthText(double width)
{
    QString text = QString::number(width, 'f', 4);
    while (text.endsWith(u'0'))
        text.chop(1);
    if (text.endsWith(u'.'))
        text.chop(1);
    return text.replace(u'.', u',');
}

bool isPermutation(const std::vector<int> &positions)
{
    std::vector<bool> taken(positions.size());
    for (const int position : positions) {
        if (position < 1 || std::size_t(position) > positions.size() || taken[std::size_t(position - 1)])
            return false;
        taken[std::size_t(position - 1)] = true;
    }
    return true;
}

} // namespace

ListLayout load(const ListLayoutFile &file)
{
    const IniFile ini(programfolder::file(file.fileName));
    ListLayout layout;
    for (std::size_t i = 0; i < file.columns.size(); ++i) {
        const ListColumn &column = file.columns[i];
        layout.widths.push_back(width(ini.value(widthSection(), column.key, {}), column.layoutWidth));
        layout.positions.push_back(
            ini.value(positionSection(), positionKey(i), QString::number(i + 1)).toInt());
    }
    if (!isPermutation(layout.positions))
        std::iota(layout.positions.begin(), layout.positions.end(), 1);
    return layout;
}

void save(const ListLayoutFile &file, const ListLayout &layout)
{
    const ListLayout stored = load(file);
    const bool same = stored.widths == layout.widths && stored.positions == layout.positions;
    if (same && QFileInfo::exists(programfolder::file(file.fileName)))
        return;
    IniFile ini(programfolder::file(file.fileName));
    for (std::size_t i = 0; i < file.columns.size(); ++i)
        ini.setValue(widthSection(), file.columns[i].key, widthText(layout.widths.at(i)));
    for (std::size_t i = 0; i < file.columns.size(); ++i)
        ini.setValue(positionSection(), positionKey(i), QString::number(layout.positions.at(i)));
    ini.save(IniFile::Readers::Everyone);
}

void saveAll(const std::vector<std::pair<ListLayoutFile, ListLayout>> &layouts)
{
    std::optional<Error> first;
    for (const auto &[file, layout] : layouts) {
        try {
            save(file, layout);
        } catch (const Error &error) {
            if (!first)
                first = error;
        }
    }
    if (first)
        throw *first;
}

} // namespace listlayout
