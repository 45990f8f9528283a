#include "settings/inifile.h"

#include "data/error.h"

#include <QFile>
#include <QSaveFile>
#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool same(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

QString escaped(QString value)
{
    return value.replace(u'\\', u"\\\\"_s).replace(u'\n', u"\\n"_s).replace(u'\r', u"\\r"_s);
}

/// A backslash before any other character stands for itself.
QString unescaped(QStringView text)
{
    QString value;
    value.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar next = i + 1 < text.size() ? text[i + 1] : QChar();
        if (text[i] != u'\\' || (next != u'\\' && next != u'n' && next != u'r')) {
            value += text[i];
            continue;
        }
        value += next == u'n' ? QChar(u'\n') : next == u'r' ? QChar(u'\r') : next;
        ++i;
    }
    return value;
}

QString decoded(const QByteArray &bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString text = utf8(bytes);
    return utf8.hasError() ? QString::fromLatin1(bytes) : text;
}

} // namespace

IniFile::IniFile(QString path) : m_path(std::move(path))
{
    QFile file(m_path);
    if (file.open(QIODevice::ReadOnly))
        parse(decoded(file.readAll()));
}

void IniFile::parse(const QString &text)
{
    QString section;
    for (QStringView line : QStringView(text).split(u'\n')) {
        if (line.endsWith(u'\r'))
            line.chop(1);
        const QStringView trimmed = line.trimmed();
        const qsizetype equals = line.indexOf(u'=');
        if (trimmed.startsWith(u'[') && trimmed.endsWith(u']')) {
            section = trimmed.sliced(1, trimmed.size() - 2).toString();
        } else if (equals > 0 && !trimmed.startsWith(u';') && !trimmed.startsWith(u'#')) {
            const QString key = line.first(equals).trimmed().toString();
            if (!find(section, key)) // as everywhere, the first of two like-named keys counts
                sectionNamed(section).entries.push_back({key, unescaped(line.sliced(equals + 1))});
        }
    }
}

const IniFile::Entry *IniFile::find(const QString &section, const QString &key) const
{
    for (const Section &candidate : m_sections) {
        if (!same(candidate.name, section))
            continue;
        const auto found = std::find_if(candidate.entries.begin(), candidate.entries.end(),
                                        [&key](const Entry &entry) { return same(entry.key, key); });
        return found == candidate.entries.end() ? nullptr : &*found;
    }
    return nullptr;
}

IniFile::Section &IniFile::sectionNamed(const QString &name)
{
    const auto found = std::find_if(m_sections.begin(), m_sections.end(),
                                    [&name](const Section &section) { return same(section.name, name); });
    return found == m_sections.end() ? m_sections.emplace_back(Section{name, {}}) : *found;
}

QString IniFile::value(const QString &section, const QString &key, const QString &defaultValue) const
{
    const Entry *entry = find(section, key);
    return entry ? entry->value : defaultValue;
}

void IniFile::setValue(const QString &section, const QString &key, const QString &value)
{
    std::vector<Entry> &entries = sectionNamed(section).entries;
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&key](const Entry &entry) { return same(entry.key, key); });
    if (found == entries.end())
        entries.push_back({key, value});
    else
        found->value = value;
}

void IniFile::save(Readers readers) const
{
    QString text;
    for (const Section &section : m_sections) {
        if (!text.isEmpty())
            text += u'\n';
        if (!section.name.isEmpty())
            text += u'[' + section.name + u"]\n"_s;
        for (const Entry &entry : section.entries)
            text += entry.key + u'=' + escaped(entry.value) + u'\n';
    }

    QSaveFile file(m_path);
    const bool written =
        file.open(QIODevice::WriteOnly) &&
        (readers == Readers::Everyone || file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)) &&
        file.write(text.toUtf8()) >= 0 && file.commit();
    if (!written) {
        throw Error(Error::Kind::File,
                    u"Não foi possível gravar o arquivo \"%1\": %2"_s.arg(m_path, file.errorString()));
    }
}
