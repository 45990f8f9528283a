#include "settings/autostart.h"

#include "data/error.h"
#include "settings/inifile.h"
#include "settings/programfolder.h"
#include "settings/settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace autostart {

namespace {

/// The system's numbers for failures of its registry.
enum Code {
    AccessDenied = 5,
    OutOfMemory = 14,
    InvalidParameter = 87,
    MoreData = 234,
    CorruptDatabase = 1009,
    BadKey = 1010,
    CannotOpen = 1011,
    CannotRead = 1012,
    CannotWrite = 1013
};

bool isRoot(QStringView name)
{
    static constexpr std::array<QStringView, 7> roots = {
        u"HKEY_CLASSES_ROOT",     u"HKEY_CURRENT_USER",   u"HKEY_LOCAL_MACHINE", u"HKEY_USERS",
        u"HKEY_PERFORMANCE_DATA", u"HKEY_CURRENT_CONFIG", u"HKEY_DYN_DATA"};
    return std::find(roots.begin(), roots.end(), name) != roots.end();
}

void writeEntry(const QString &command)
{
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/autostart"_s;
    QDir().mkpath(folder);
    IniFile entry(folder + u"/tavaro.desktop"_s);
    const QString section = u"Desktop Entry"_s;
    entry.setValue(section, u"Type"_s, u"Application"_s);
    entry.setValue(section, u"Name"_s, settings::application.toString());
    entry.setValue(section, u"Comment"_s, u"Controle financeiro e de estoque"_s);
    entry.setValue(section, u"Exec"_s, command);
    entry.setValue(section, u"Hidden"_s, command.isEmpty() ? u"true"_s : u"false"_s);
    entry.save();
}

/// One word of a desktop entry's command, whatever characters it has.
QString quoted(const QString &argument)
{
    QString word;
    for (const QChar c : argument) {
        if (u"\"`$\\"_s.contains(c))
            word += u'\\';
        word += c == u'%' ? u"%%"_s : QString(c);
    }
    return u'"' + word + u'"';
}

/// The running program, with its folder unless that is the one it would find by itself.
QString command()
{
    const QString program = quoted(QCoreApplication::applicationFilePath());
    const QString folder = programfolder::path();
    return folder == QCoreApplication::applicationDirPath() ? program
                                                            : program + u" --pasta "_s + quoted(folder);
}

} // namespace

QString writeValue(const QString &fullKeyPath, const QString &name, const QString &data)
{
    const QString root = fullKeyPath.section(u'\\', 0, 0);
    if (!isRoot(root))
        return u"Incorrect Format:"_s + fullKeyPath;
    if (fullKeyPath.compare(keyPath, Qt::CaseInsensitive) != 0)
        return errorText(CannotOpen); // keys are opened, never made, and this is the only one there is
    if (name.compare(valueName, Qt::CaseInsensitive) != 0)
        return errorText(CannotWrite);
    try {
        writeEntry(data);
    } catch (const Error &) {
        return errorText(CannotWrite);
    }
    return {};
}

QString errorText(int code)
{
    switch (code) {
    case BadKey:
        return u"Bad Key Name"_s;
    case CannotOpen:
        return u"Can't Open Key"_s;
    case CannotRead:
        return u"Can't Read Key"_s;
    case CannotWrite:
        return u"Can't Write Key"_s;
    case CorruptDatabase:
        return u"The Registry Database is corrupt!"_s;
    case MoreData:
        return u"There is more data than the buffer has been allocated to hold."_s;
    case AccessDenied:
        return u"Access to this key is denied"_s;
    case OutOfMemory:
        return u"Out of memory"_s;
    case InvalidParameter:
        return u"Invalid Parameter"_s;
    default:
        return u"Undefined Error Code:  "_s + QString::number(code);
    }
}

QString setEnabled(bool on)
{
    const QString message = writeValue(keyPath.toString(), valueName.toString(), on ? command() : QString());
    settings::setValue(settings::startWithSystem, on ? u"1"_s : u"0"_s);
    return message;
}

} // namespace autostart
