#include "data/databasecopy.h"

#include "data/connection.h"
#include "data/schema.h"
#include "data/sharedconnection.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <functional>
#include <future>

using namespace Qt::StringLiterals;

namespace {

constexpr int pieceSize = 1024 * 1024;
constexpr mode_t newFileMode = 0666; ///< less what the user's mask takes away

Error fileError(const QString &path)
{
    if (errno == ENOSPC || errno == EDQUOT || errno == EFBIG)
        return {Error::Kind::File, u"o disco está cheio: \"%1\" não pôde ser gravado."_s.arg(path)};
    return {Error::Kind::File,
            u"\"%1\" não pôde ser gravado: %2."_s.arg(path, QString::fromLocal8Bit(strerror(errno)))};
}

QByteArray native(const QString &path)
{
    return QFile::encodeName(path);
}

QString journalOf(const QString &path)
{
    return path + u"-journal"_s;
}

bool exists(const QString &path)
{
    struct stat file = {};
    return lstat(native(path).constData(), &file) == 0;
}

bool areSame(const QString &one, const QString &other)
{
    struct stat first = {}, second = {};
    return stat(native(one).constData(), &first) == 0 && stat(native(other).constData(), &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

void removeFile(const QString &path)
{
    if (unlink(native(path).constData()) != 0 && errno != ENOENT)
        throw fileError(path);
}

void moveFile(const QString &from, const QString &to)
{
    if (rename(native(from).constData(), native(to).constData()) != 0)
        throw fileError(to);
}

/// What happened to the names of a folder is on the disk too.
void syncFolder(const QString &file)
{
    const int folder =
        open(native(QFileInfo(file).absolutePath()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return; // some network folders cannot be opened; nothing more can be done there
    fsync(folder);
    close(folder);
}

/// A file that is being written; it goes again unless it was finished.
class NewFile
{
public:
    NewFile(QString path, mode_t mode) : m_path(std::move(path))
    {
        removeFile(m_path); // what an earlier attempt left
        removeFile(journalOf(m_path));
        m_file = open(native(m_path).constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, mode);
        if (m_file < 0)
            throw fileError(m_path);
    }
    ~NewFile()
    {
        if (m_file >= 0)
            close(m_file);
        if (!m_path.isEmpty())
            unlink(native(m_path).constData());
    }
    Q_DISABLE_COPY_MOVE(NewFile)

    void write(const char *bytes, qint64 length)
    {
        while (length > 0) {
            const ssize_t written = ::write(m_file, bytes, std::size_t(length));
            if (written < 0 && errno == EINTR)
                continue;
            if (written <= 0)
                throw fileError(m_path);
            bytes += written;
            length -= written;
        }
    }
    /// It is on the disk.
    void sync()
    {
        if (fsync(m_file) != 0)
            throw fileError(m_path);
        const int file = std::exchange(m_file, -1);
        if (close(file) != 0)
            throw fileError(m_path);
    }
    /// It stays.
    void keep() { m_path.clear(); }

private:
    QString m_path;
    int m_file = -1;
};

/// Both the program's password and its tables.
std::unique_ptr<Connection> openDatabaseFile(const QString &path)
{
    const QFileInfo file(path);
    const bool mayWrite = file.isWritable() && QFileInfo(file.canonicalPath()).isWritable();
    std::unique_ptr<Connection> connection =
        mayWrite ? Connection::open(path, schema::password.toString())
                 : Connection::openForReading(path, schema::password.toString());
    if (!schema::isComplete(*connection))
        throw Error(Error::Kind::File,
                    u"\"%1\" é um banco de dados, mas não tem as tabelas do Tavaro."_s.arg(path));
    return connection;
}

/// The file in pieces, to `use`, which is told where each begins.
void eachPiece(Connection &source, const std::function<void(qint64 offset, const QByteArray &piece)> &use)
{
    const qint64 size = source.fileSize();
    QByteArray piece;
    for (qint64 offset = 0; offset < size; offset += piece.size()) {
        piece.resize(int(std::min<qint64>(pieceSize, size - offset)));
        source.readFile(offset, piece.data(), int(piece.size()));
        use(offset, piece);
    }
}

/// Throws unless the file at `path` holds the bytes of `source`.
void compare(Connection &source, const QString &path)
{
    QFile copy(path);
    bool same = copy.open(QIODevice::ReadOnly | QIODevice::Unbuffered) && copy.size() == source.fileSize();
    QByteArray written(pieceSize, '\0');
    eachPiece(source, [&](qint64, const QByteArray &piece) {
        same = same && copy.read(written.data(), piece.size()) == piece.size() &&
               memcmp(written.constData(), piece.constData(), std::size_t(piece.size())) == 0;
    });
    if (!same)
        throw Error(Error::Kind::File, u"\"%1\" não foi gravado como devia."_s.arg(path));
}

/// Writes the bytes of `source`, in one state of it, to a new file `path`. Meanwhile the source is checked;
/// the copy, whose bytes are compared with it while the disk takes them, is then as good.
void copyChecked(Connection &source, NewFile &target, const QString &path, Progress &progress)
{
    const ReadLock oneState(source);
    schema::isComplete(source); // the first query is what keeps others from changing the file
    const std::unique_ptr<Connection> checked = openDatabaseFile(source.path());
    std::future<void> isWhole = std::async(std::launch::async, [&checked] { checked->checkIntegrity(); });
    const qint64 size = source.fileSize();
    progress.begin([size] { return size / pieceSize + 1; });
    eachPiece(source, [&](qint64 offset, const QByteArray &piece) {
        target.write(piece.constData(), piece.size());
        progress.advance(offset / pieceSize + 1);
    });
    std::future<void> onDisk = std::async(std::launch::async, [&target] { target.sync(); });
    compare(source, path);
    isWhole.get();
    onDisk.get();
    openDatabaseFile(path);
}

/// Keeps others from reading and writing the database; null when it is not there, or is none that opens.
std::unique_ptr<Connection> lockOut(const QString &live)
{
    std::unique_ptr<Connection> connection;
    try {
        connection = Connection::open(live, schema::password.toString());
    } catch (const Error &error) {
        if (error.kind() == Error::Kind::Open)
            return nullptr;
        throw;
    }
    connection->executeNative("BEGIN EXCLUSIVE");
    return connection;
}

/// A second name for the file, or, where the folder knows no such thing, a copy of it.
void keepAs(const QString &kept, const QString &live, Connection *locked)
{
    if (link(native(live).constData(), native(kept).constData()) == 0)
        return;
    NewFile copy(kept, newFileMode);
    QFile file(live);
    if (!locked && !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw Error(Error::Kind::File, u"\"%1\" não pôde ser lido: %2."_s.arg(live, file.errorString()));
    QByteArray piece;
    const qint64 size = locked ? locked->fileSize() : file.size();
    for (qint64 offset = 0; offset < size; offset += piece.size()) {
        piece.resize(int(std::min<qint64>(pieceSize, size - offset)));
        if (locked) // closing another handle of the file would let the lock go
            locked->readFile(offset, piece.data(), int(piece.size()));
        else if (file.read(piece.data(), piece.size()) != piece.size())
            throw Error(Error::Kind::File, u"\"%1\" não pôde ser lido: %2."_s.arg(live, file.errorString()));
        copy.write(piece.constData(), piece.size());
    }
    copy.sync();
    copy.keep();
}

/// Puts the checked file `fresh` in the place of `live`.
void install(const QString &fresh, const QString &live)
{
    const QString kept = live + u".anterior"_s;
    removeFile(kept);
    removeFile(journalOf(kept));
    std::unique_ptr<Connection> old = lockOut(live);
    const bool replaces = exists(live);
    if (replaces)
        keepAs(kept, live, old.get());
    // A journal that was left behind belongs to the old file and must not be played into the new one.
    const bool hasJournal = exists(journalOf(live));
    if (hasJournal)
        moveFile(journalOf(live), journalOf(kept));
    moveFile(fresh, live);
    syncFolder(live);
    old.reset();
    try {
        SharedConnection().open(live);
    } catch (const Error &) {
        if (replaces)
            moveFile(kept, live);
        if (hasJournal)
            moveFile(journalOf(kept), journalOf(live));
        syncFolder(live);
        throw;
    }
    removeFile(kept);
    removeFile(journalOf(kept));
}

} // namespace

namespace databasecopy {

void backUp(const QString &live, const QString &target, Progress &progress)
{
    const std::unique_ptr<Connection> source = openDatabaseFile(live);
    if (areSame(live, target)) {
        source->checkIntegrity();
        return;
    }
    const QString fresh = target + u".novo"_s;
    NewFile file(fresh, newFileMode);
    copyChecked(*source, file, fresh, progress);
    removeFile(journalOf(target)); // of the older backup
    moveFile(fresh, target);
    file.keep();
    syncFolder(target);
}

void restore(const QString &chosen, const QString &live, Progress &progress)
{
    if (areSame(chosen, live))
        throw Error(
            Error::Kind::File,
            u"\"%1\" é o próprio arquivo em uso, e não um backup dele. Nada foi alterado."_s.arg(chosen));
    const QString fresh = live + u".novo"_s;
    struct stat replaced = {};
    const mode_t mode =
        stat(native(live).constData(), &replaced) == 0 ? replaced.st_mode & 0777 : newFileMode;
    NewFile file(fresh, mode);
    copyChecked(*openDatabaseFile(chosen), file, fresh, progress);
    install(fresh, live);
    file.keep();
}

} // namespace databasecopy
