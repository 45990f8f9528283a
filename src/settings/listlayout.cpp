#include "settings/listlayout.h"

#include "settings/inifile.h"
#include "settings/programfolder.h"

#include <cmath>
#include <initializer_list>
#include <utility>

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

QString positionKey(qsizetype column)
{
    return u"posicao%1"_s.arg(column + 1);
}

ListLayoutFile layoutFile(QStringView fileName,
                          std::initializer_list<std::pair<QStringView, QStringView>> columns)
{
    ListLayoutFile file{fileName.toString(), {}, {}};
    for (const auto &[key, width] : columns) {
        file.keys << key.toString();
        file.defaultWidths << width.toString();
    }
    return file;
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

const ListLayoutFile &payables()
{
    static const ListLayoutFile file = layoutFile(u"pagar.ini", {{u"id", u"0"},
                                                                 {u"data", u"1319,8111"},
                                                                 {u"descricao", u"4190,1734"},
                                                                 {u"documento", u"1839,6852"},
                                                                 {u"fornecedor", u"2340,2837"},
                                                                 {u"vencimento", u"1320,3781"},
                                                                 {u"valor", u"1239,3072"},
                                                                 {u"produto", u"2539,3072"},
                                                                 {u"qtde", u"939,3072"},
                                                                 {u"estatus", u"1319,8111"},
                                                                 {u"origem", u"2140,1575"},
                                                                 {u"informacoes", u"3240,0003"}});
    return file;
}

const ListLayoutFile &receivables()
{
    static const ListLayoutFile file = layoutFile(u"receber.ini", {{u"id", u"0"},
                                                                   {u"data", u"1319,8111"},
                                                                   {u"descricao", u"4190,1734"},
                                                                   {u"documento", u"1839,6852"},
                                                                   {u"cliente", u"2340,2837"},
                                                                   {u"vencimento", u"1320,3781"},
                                                                   {u"valor", u"1239,3072"},
                                                                   {u"custo", u"1239,3072"},
                                                                   {u"produto", u"2539,3072"},
                                                                   {u"qtde", u"939,3072"},
                                                                   {u"estatus", u"1319,8111"},
                                                                   {u"origem", u"2140,1575"},
                                                                   {u"informacoes", u"3240,0003"}});
    return file;
}

const ListLayoutFile &movements()
{
    static const ListLayoutFile file = layoutFile(u"bancario.ini", {{u"id", u"0"},
                                                                    {u"data", u"1319,8111"},
                                                                    {u"tipo", u"2940,0948"},
                                                                    {u"origem", u"2140,1575"},
                                                                    {u"destino", u"2140,1575"},
                                                                    {u"valor", u"1339,6536"},
                                                                    {u"estatus", u"1340,2206"},
                                                                    {u"info", u"2839,7483"}});
    return file;
}

ListLayout load(const ListLayoutFile &file)
{
    const IniFile ini(programfolder::file(file.fileName));
    ListLayout layout;
    for (qsizetype i = 0; i < file.keys.size(); ++i) {
        layout.widths.push_back(width(ini.value(widthSection(), file.keys[i], {}), file.defaultWidths[i]));
        layout.positions.push_back(
            ini.value(positionSection(), positionKey(i), QString::number(i + 1)).toInt());
    }
    if (!isPermutation(layout.positions)) {
        for (std::size_t i = 0; i < layout.positions.size(); ++i)
            layout.positions[i] = int(i) + 1;
    }
    return layout;
}

void save(const ListLayoutFile &file, const ListLayout &layout)
{
    IniFile ini(programfolder::file(file.fileName));
    for (qsizetype i = 0; i < file.keys.size(); ++i)
        ini.setValue(widthSection(), file.keys[i], widthText(layout.widths.at(std::size_t(i))));
    for (qsizetype i = 0; i < file.keys.size(); ++i)
        ini.setValue(positionSection(), positionKey(i), QString::number(layout.positions.at(std::size_t(i))));
    ini.save(IniFile::Readers::Everyone);
}

} // namespace listlayout
