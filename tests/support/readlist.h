#pragma once

#include "lists/keyedlist.h"
#include "settings/database.h"

/// The rows and totals of a query, read to the end.
inline KeyedList readList(std::vector<ListColumn> columns, const RowTotals &noTotals, const QString &sql,
                          const std::optional<HeadingSort> &sort = {})
{
    KeyedList list(std::move(columns), noTotals.clone(), [] { return openDatabase(); });
    ListLoad load(openDatabase(), ListQuery(sql, sort), noTotals);
    while (!load.run(QDeadlineTimer(1))) {
    }
    list.take(load);
    return list;
}

inline QString cellOf(const KeyedList &list, int row, int column)
{
    const std::string_view text = list.rows().cell(row, column);
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

/// One line a row, cells between `separator`.
inline QString linesOf(const KeyedList &list, const QString &separator = QStringLiteral(" | "))
{
    QString text;
    for (int row = 0; row < list.rows().rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < int(list.columns().size()); ++column)
            cells << cellOf(list, row, column);
        text += cells.join(separator) + u'\n';
    }
    return text;
}
