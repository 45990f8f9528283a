#include "settings/programfolder.h"

#include "data/error.h"
#include "data/schema.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace programfolder {

namespace {

QString &chosen()
{
    static QString folder;
    return folder;
}

[[noreturn]] void fail(const QString &text, const QString &path)
{
    throw Error(Error::Kind::File, text.arg(QDir::toNativeSeparators(path)));
}

/// Copies what `target` lacks of the files in `source` that are no programs.
void addMissing(const QDir &source, const QDir &target, bool withDatabase)
{
    for (const QFileInfo &file : source.entryInfoList(QDir::Files)) {
        const QString copy = target.filePath(file.fileName());
        const bool isLeftOut = file.isExecutable() || (!withDatabase && file.fileName() == schema::fileName);
        if (isLeftOut || QFileInfo::exists(copy))
            continue;
        // The original may be read-only for everybody.
        if (!QFile::copy(file.filePath(), copy) ||
            !QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner))
            fail(u"Não foi possível copiar \"%1\"."_s, file.filePath());
    }
}

} // namespace

QString path()
{
    if (chosen().isEmpty())
        choose({});
    return chosen();
}

QString file(const QString &name)
{
    return path() + u'/' + name;
}

void choose(const QString &named)
{
    if (named.isEmpty()) {
        const QString beside = QCoreApplication::applicationDirPath();
        const QString installed = QDir::cleanPath(beside + u"/../share/tavaro"_s);
        if (QFileInfo(installed).isDir())
            chosen() = userFolder(installed); // also for who may write there: a package manager owns it
        else
            chosen() = QFileInfo(beside).isWritable() ? beside : userFolder(beside);
        return;
    }
    const QFileInfo folder(named);
    if (!folder.isDir())
        fail(u"A pasta \"%1\" não existe."_s, named);
    chosen() = QDir::cleanPath(folder.absoluteFilePath());
}

QString userFolder(const QString &delivered)
{
    const QString parent = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    QString folder = parent + u"/tavaro"_s;
    if (QFileInfo(folder).isDir()) {
        addMissing(QDir(delivered), QDir(folder), false);
        return folder;
    }
    if (!QDir().mkpath(parent))
        fail(u"Não foi possível criar a pasta \"%1\"."_s, parent);
    QTemporaryDir staging(folder + u"-XXXXXX"_s);
    if (!staging.isValid())
        fail(u"Não foi possível criar a pasta \"%1\"."_s, folder);
    addMissing(QDir(delivered), QDir(staging.path()), true);
    if (const QString database = staging.filePath(schema::fileName.toString()); !QFileInfo::exists(database))
        schema::createFile(database); // each shop its own, where none is delivered
    if (QDir().rename(staging.path(), folder))
        staging.setAutoRemove(false);
    else if (!QFileInfo(folder).isDir()) // unless another start was quicker
        fail(u"Não foi possível criar a pasta \"%1\"."_s, folder);
    return folder;
}

} // namespace programfolder
