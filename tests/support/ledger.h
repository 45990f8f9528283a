#pragma once

#include "lists/tablesource.h"
#include "reports/report.h"
#include "support/testprogram.h"

/// Adds a row to a table: "estatus=Pendente, valor=10,00" gives columns their values. Values may hold
/// anything but ", ".
inline void addRow(TestProgram &program, const QString &table, const QString &values)
{
    QStringList columns, marks, texts;
    for (const QString &pair : values.split(QStringLiteral(", "))) {
        columns << pair.section(u'=', 0, 0);
        marks << QStringLiteral("?");
        texts << pair.section(u'=', 1);
    }
    Statement insert = program.database().prepareNative(QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                                                            .arg(table, columns.join(u','), marks.join(u','))
                                                            .toUtf8());
    for (int i = 0; i < int(texts.size()); ++i)
        insert.bind(i + 1, texts[i]);
    insert.step();
}

/// One line a row, cells between " | ".
inline QString linesOf(const TableSource &table)
{
    QString text;
    for (int row = 0; row < table.rowCount(); ++row)
        for (int column = 0; column < table.columnCount(); ++column)
            text += table.cell(row, column) +
                    (column + 1 < table.columnCount() ? QStringLiteral(" | ") : QStringLiteral("\n"));
    return text;
}

/// What a report says: title, subtitle and filter, rows, lines and statistics.
inline QString textOf(const Report &report)
{
    QString text = report.title + u'\n';
    for (const QString &line : {report.subtitle, report.filterText})
        if (!line.isEmpty())
            text += line + u'\n';
    for (const auto &table : report.tables)
        text += linesOf(*table);
    for (const QString &line : report.lines)
        text += line + u'\n';
    return text + report.statistics;
}
