#include "support/testprogram.h"

#include "data/schema.h"
#include "settings/database.h"
#include "settings/programfolder.h"
#include "settings/settings.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// A fresh database file; made once, for making one waits for the disk.
QByteArray emptyDatabase()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"vazio"_s));
    schema::createFile(file.fileName());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TestProgram::TestProgram()
{
    static const QByteArray empty = emptyDatabase();
    QDir(m_folder.path()).mkdir(u"settings"_s);
    settings::setFolder(file(u"settings"_s));
    programfolder::choose(m_folder.path());
    chooseDatabase();
    QFile database(databaseFile());
    if (!database.open(QIODevice::WriteOnly) || database.write(empty) != empty.size())
        qFatal("cannot make the database");
}

TestProgram::~TestProgram()
{
    closeDatabase();
}

QString TestProgram::databaseFile() const
{
    return m_folder.filePath(schema::fileName.toString());
}

Connection &TestProgram::database()
{
    return *openDatabase();
}

void TestProgram::run(const QString &sql)
{
    database().execute(sql);
}

QString TestProgram::rows(const QString &sql)
{
    QString text;
    for (Statement statement = database().prepare(sql); statement.step();) {
        for (int i = 0; i < statement.columnCount(); ++i)
            text += (i > 0 ? u" | "_s : QString()) + statement.text(i);
        text += u'\n';
    }
    return text;
}
