#include "settings/settings.h"

#include "data/error.h"
#include "settings/inifile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QStandardPaths>
#include <QThread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <optional>

using namespace Qt::StringLiterals;

namespace settings {

namespace {

/// Tells one state of a file from another, across replacement as well as rewriting.
struct Stamp
{
    quint64 inode = 0;
    qint64 seconds = 0, nanoseconds = 0, size = -1;

    bool operator==(const Stamp &) const = default;

    static Stamp of(const QString &path)
    {
        struct stat status = {};
        if (::stat(QFile::encodeName(path).constData(), &status) != 0)
            return {};
        return {status.st_ino, status.st_mtim.tv_sec, status.st_mtim.tv_nsec, status.st_size};
    }
};

struct Loaded
{
    IniFile file;
    Stamp stamp;
};

struct Store
{
    QString folder;
    QHash<QString, std::optional<Loaded>> applications; ///< by folded name
};

Store &store()
{
    static Store instance{
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + u"/tavaro"_s, {}};
    return instance;
}

/// Taken while settings change, so that two running programs keep each other's keys. Unlike a lock file it
/// needs no write to the disk and ends with its program.
class FolderLock
{
public:
    FolderLock() : m_folder(::open(QFile::encodeName(store().folder).constData(), O_RDONLY | O_CLOEXEC))
    {
        // Saving matters more than waiting: after two seconds it goes on without.
        for (int i = 0; i < 200 && ::flock(m_folder, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK; ++i)
            QThread::msleep(10);
    }
    ~FolderLock() { ::close(m_folder); }
    Q_DISABLE_COPY_MOVE(FolderLock)

private:
    int m_folder;
};

QString pathFor(const QString &application)
{
    const QString wanted = application + u".ini"_s;
    const QDir folder(store().folder);
    for (const QString &name : folder.entryList(QDir::Files | QDir::Hidden)) {
        if (name.compare(wanted, Qt::CaseInsensitive) == 0)
            return folder.filePath(name);
    }
    return folder.filePath(wanted);
}

/// The application's settings as the file has them now.
Loaded &current(const QString &application)
{
    std::optional<Loaded> &loaded = store().applications[application.toCaseFolded()];
    const QString path = loaded ? loaded->file.path() : pathFor(application);
    const Stamp stamp = Stamp::of(path);
    if (!loaded || loaded->stamp != stamp)
        loaded = Loaded{IniFile(path), stamp};
    return *loaded;
}

void makeFolder()
{
    const QDir folder(store().folder);
    if (folder.exists())
        return;
    const QDir above(QFileInfo(folder.absolutePath()).path());
    const bool made =
        above.mkpath(u"."_s) &&
        QDir(above).mkdir(folder.absolutePath(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    if (!made && !folder.exists())
        throw Error(Error::Kind::File,
                    u"Não foi possível criar a pasta \"%1\"."_s.arg(folder.absolutePath()));
}

struct Entry
{
    QString section, key, value;
};

/// A write waits for the disk: entries that are there already are left out, the others written together.
void change(const QString &appName, std::vector<Entry> entries)
{
    std::erase_if(entries, [&](const Entry &entry) {
        return !entry.value.isEmpty() &&
               current(appName).file.value(entry.section, entry.key, QString()) == entry.value;
    });
    if (entries.empty())
        return;
    makeFolder();
    const FolderLock lock;
    Loaded &loaded = current(appName);
    IniFile changed = loaded.file;
    for (const Entry &entry : entries)
        changed.setValue(entry.section, entry.key, entry.value);
    changed.save();
    loaded = Loaded{std::move(changed), Stamp::of(loaded.file.path())};
}

} // namespace

QString read(const QString &appName, const QString &section, const QString &key, const QString &defaultValue)
{
    return current(appName).file.value(section, key, defaultValue);
}

void write(const QString &appName, const QString &section, const QString &key, const QString &value)
{
    change(appName, {{section, key, value}});
}

QString value(const Key &key)
{
    return read(application.toString(), key.section.toString(), key.name.toString(),
                key.defaultValue.toString());
}

void setValue(const Key &key, const QString &value)
{
    write(application.toString(), key.section.toString(), key.name.toString(), value);
}

void setValues(const std::vector<std::pair<Key, QString>> &values)
{
    std::vector<Entry> entries;
    for (const auto &[key, value] : values)
        entries.push_back({key.section.toString(), key.name.toString(), value});
    change(application.toString(), std::move(entries));
}

void setFolder(const QString &folder)
{
    store() = Store{folder, {}};
}

} // namespace settings
