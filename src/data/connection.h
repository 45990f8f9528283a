#pragma once

#include "data/changes.h"
#include "data/dialect.h"
#include "data/error.h"
#include "data/rowrecorder.h"

#include <QByteArray>
#include <QJsonValue>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

/// A prepared statement: streams the rows of a query, or is run again and again with other values.
class Statement
{
public:
    Statement(Statement &&other) noexcept;
    Statement &operator=(Statement &&other) noexcept;
    ~Statement();

    /// Moves to the next row; false when there is none, or the statement yields no rows. Throws Error.
    bool step();
    /// Makes the statement ready to run again; bound values stay.
    void reset();
    /// Parameters count from 1.
    void bind(int parameter, const QString &value);
    void bind(int parameter, qint64 value);
    /// Null, text, whole number or number, as value() gave it.
    void bindValue(int parameter, const QJsonValue &value);

    int columnCount() const;
    /// Columns count from 0.
    QString columnName(int column) const;
    bool isNull(int column) const;
    /// The value as the program's text: a number with a fraction has a decimal comma. Null is empty.
    QString text(int column) const;
    /// The value in UTF-8, without a copy, as the store holds it. Valid until the next step().
    std::string_view utf8(int column) const;
    qint64 integer(int column) const;
    /// The value with its kind: null, text, whole number or number.
    QJsonValue value(int column) const;

private:
    friend class Connection;
    Statement(sqlite3 *database, sqlite3_stmt *handle);

    sqlite3 *m_database = nullptr;
    sqlite3_stmt *m_handle = nullptr;
};

/// The one door to the store: an open, keyed database file. Texts are in the program's dialect unless a
/// function says otherwise. Every failure is an Error with a text for the user.
class Connection
{
public:
    /// Opens an existing database file for reading and writing; never creates or changes anything on disk.
    /// Throws Error::Kind::Open when the file is missing, is a folder, is empty, truncated, or no database,
    /// when the password is wrong, or where the place does not allow writing.
    static std::unique_ptr<Connection> open(const QString &path, const QString &password);
    /// Creates a new, empty database file; throws when something is there already. For the delivered file and
    /// for tests.
    static std::unique_ptr<Connection> create(const QString &path, const QString &password);
    /// Opens a file for reading only, also where the place allows no writing, as on a disc. Throws as open().
    static std::unique_ptr<Connection> openForReading(const QString &path, const QString &password);
    ~Connection();

    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    QString path() const { return m_path; }
    /// Different for every file opened in this run: what was read through one serial is void under another.
    quint64 serial() const { return m_serial; }
    /// True while the path still leads to the file that was opened, and no other database was copied over it.
    bool isCurrent() const;

    /// Runs one statement and returns how many rows it changed.
    int execute(const QString &sql);
    /// Prepares one statement of the program's dialect.
    Statement prepare(const QString &sql, dialect::RowOrder order = dialect::RowOrder::Insertion);
    /// Prepares one statement of the store's own dialect, with "?" parameters.
    Statement prepareNative(const QByteArray &sql);
    /// Runs any number of statements of the store's own dialect.
    void executeNative(const QByteArray &sql);

    /// Another number whenever another connection or process has committed a change; what this one commits
    /// makes no difference. Waits, like every read, while another process commits.
    quint64 dataVersion();
    bool inTransaction() const;
    /// From here on the rows of these tables that a Transaction changes are written down; its commit calls
    /// `beforeCommit` while it can still write.
    void recordRows(const QStringList &tables, std::function<void()> beforeCommit);
    /// What the open transaction changed since the last call; each row stands there as often as it changed.
    std::vector<RecordedRow> takeRecordedRows();
    qint64 lastInsertedRow() const;
    /// The bytes of the file as they are on the disk, read through the store's own handle: closing another
    /// one would let go of the locks that this process holds. Within a ReadLock that has read something they
    /// stay as they are. Throws Error::Kind::Storage.
    qint64 fileSize() const;
    void readFile(qint64 offset, char *bytes, int length) const;
    /// Reads every page; throws Error::Kind::Storage when one is damaged or is not where it belongs.
    void checkIntegrity();

    /// How long a write waits for another process before it gives up; 10 s unless set.
    void setBusyTimeout(int milliseconds);
    void setDefaultBusyTimeout();

private:
    friend class Transaction;
    enum class Access { Write, Read };

    explicit Connection(QString path);
    void openFile(const QString &password, Access access = Access::Write);
    void registerFunctions();
    void checkUsable();
    void completeTransaction()
    {
        if (m_beforeCommit)
            m_beforeCommit();
    }

    QString m_path;
    quint64 m_serial;
    sqlite3 *m_database = nullptr;
    quint64 m_device = 0;
    quint64 m_inode = 0;
    mutable QByteArray m_salt;     ///< of the file: another one is another database, also under the same name
    mutable qint64 m_modified = 0; ///< nanoseconds, when the salt was last looked at
    mutable qint64 m_size = 0;
    std::unique_ptr<RowRecorder> m_recorder;
    std::function<void()> m_beforeCommit;
    std::optional<Statement> m_dataVersion; ///< prepared once: it is asked for before every look at the data
};

/// While one lives, several queries read one state of the file, and the lock is taken once for all of them.
/// Within a transaction it does nothing.
class ReadLock
{
public:
    explicit ReadLock(Connection &connection);
    ~ReadLock();
    Q_DISABLE_COPY_MOVE(ReadLock)

private:
    Connection &m_connection;
    bool m_own;
};

/// Takes the write lock at once and rolls back unless commit() was reached. What was noted is announced after
/// the commit. Throws Error::Kind::Data, and writes nothing, when another file has taken the place of the one
/// that is open: what was written would go down with the old one.
class Transaction
{
public:
    explicit Transaction(Connection &connection);
    ~Transaction();
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;

    void note(Subject subject, RowChange row);
    /// Any row of the subject may have changed.
    void note(Subject subject);
    void commit();

private:
    Connection &m_connection;
    std::vector<Change> m_noted;
    bool m_open = true;
};
