#pragma once

#include "data/tablesource.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

/// One report, made by plain code; text, HTML and printed pages are renderers of it.
struct Report
{
    QString title;
    QString subtitle;
    QString filterText; ///< which rows these are, in words
    std::vector<std::shared_ptr<const TableSource>> tables;
    QStringList lines;  ///< text under the tables, such as a paragraph a row with labels
    QString statistics; ///< totals; lines separated by "\n"
};
