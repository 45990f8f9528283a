#pragma once

#include "data/changes.h"
#include "lists/listcolumn.h"

#include <QString>

#include <optional>
#include <string>
#include <string_view>

/// The stored row that a row of a report shows.
struct RowOrigin
{
    Subject subject;
    qint64 key;
    quint64 file; ///< serial of the connection through which it was read
};

/// A list as reports read it: headings, and cells on demand, so that a long list is never copied.
class TableSource
{
public:
    virtual ~TableSource() = default;
    virtual int columnCount() const = 0;
    virtual int rowCount() const = 0;
    virtual QString heading(int column) const = 0;
    virtual CellKind kind(int column) const = 0;
    virtual QString cell(int row, int column) const = 0;
    /// cell() as UTF-8, for writing long lists; may use `buffer`, and stands until it is used again.
    virtual std::string_view utf8(int row, int column, std::string &buffer) const
    {
        buffer = cell(row, column).toStdString();
        return buffer;
    }
    /// Nothing for a row that stands for many, or when it is not known.
    virtual std::optional<RowOrigin> origin(int /*row*/) const { return {}; }
};
