#pragma once

#include "lists/listcolumn.h"

#include <QString>

#include <string>
#include <string_view>

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
};
