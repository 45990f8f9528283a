#pragma once

#include <QFile>
#include <QProcess>
#include <QString>

/// The text of a PDF file, lines as they stand on the page.
inline QString pdfText(const QString &path, const QString &form = QStringLiteral("-layout"))
{
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"),
                 {form, QStringLiteral("-enc"), QStringLiteral("UTF-8"), path, QStringLiteral("-")});
    return reader.waitForFinished() ? QString::fromUtf8(reader.readAllStandardOutput())
                                    : reader.errorString();
}

inline QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
