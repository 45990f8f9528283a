#pragma once

#include "data/connection.h"

#include <QString>
#include <QTemporaryDir>

/// A program folder of its own for one test: a fresh database, its own settings, nothing of the user's.
class TestProgram
{
public:
    TestProgram();
    ~TestProgram();
    TestProgram(const TestProgram &) = delete;
    TestProgram &operator=(const TestProgram &) = delete;

    /// A path inside the folder.
    QString file(const QString &name) const { return m_folder.filePath(name); }
    QString databaseFile() const;
    /// The program's shared connection, opened as screens open it.
    Connection &database();
    /// Runs one statement of the program's dialect.
    void run(const QString &sql);
    /// What a query yields: one line a row, values between " | ".
    QString rows(const QString &sql);

private:
    QTemporaryDir m_folder;
};
