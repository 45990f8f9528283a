#pragma once

#include "data/progress.h"
#include "lists/tablesource.h"

#include <QIODevice>
#include <QString>

/// Writes a list to an open device as text in columns or as an HTML table, row by row and with bounded
/// memory. Throws Error::Kind::File when the device does not take all of it.
class c_relatorios
{
public:
    /// Draws the rule under the headings.
    QString fillCharacter() const { return m_fill; }
    void setFillCharacter(const QString &text);
    /// For delimited output.
    QString separator() const { return m_separator; }
    void setSeparator(const QString &text);
    /// For delimited output; may be empty.
    QString qualifier() const { return m_qualifier; }
    void setQualifier(const QString &text);
    /// No text column is wider; longer values are cut.
    qint16 maximumColumnWidth() const { return m_maximumWidth; }
    void setMaximumColumnWidth(qint16 width);
    /// Advances by one for each row written; null for none.
    Progress *progress() const { return m_progress; }
    void setProgress(Progress *progress) { m_progress = progress; }

    /// Headings, a rule, an empty line, a line for each row, an empty line; an empty list ends with its rule.
    /// Columns are as wide as their widest text.
    void listToText(QIODevice &device, const TableSource &list) const;
    void listToHtml(QIODevice &device, const TableSource &list) const;

private:
    void beginProgress(const TableSource &list) const;

    QString m_fill = QStringLiteral("*");
    QString m_separator = QStringLiteral(";");
    QString m_qualifier;
    qint16 m_maximumWidth = 9999;
    Progress *m_progress = nullptr;
};
