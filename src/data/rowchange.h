#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// The values of one row by column, as the program's texts. A row that is not there has no columns.
class RowImage
{
public:
    RowImage() = default;
    RowImage(QStringList columns, QStringList values)
        : m_columns(std::move(columns)), m_values(std::move(values))
    {
    }

    bool exists() const { return !m_columns.isEmpty(); }
    /// The value of a column, in any letter case; empty for one that the row does not have.
    QString text(QStringView column) const
    {
        for (qsizetype i = 0; i < m_columns.size(); ++i)
            if (column.compare(m_columns[i], Qt::CaseInsensitive) == 0)
                return m_values[i];
        return {};
    }
    const QStringList &columns() const { return m_columns; }

private:
    QStringList m_columns, m_values; ///< of equal length
};

/// One row as a write found it and left it.
struct RowChange
{
    qint64 key = 0;  ///< the store's row number: `código` where the table has one
    RowImage before; ///< not there for a row that is new
    RowImage after;  ///< not there for a row that is gone
};
