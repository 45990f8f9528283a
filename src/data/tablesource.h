#pragma once

#include "data/rowstore.h"

#include <QString>

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
};
