#pragma once

#include "lists/tablesource.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

/// One report, made by plain code; text, HTML and printed pages are renderers of it. All texts are plain
/// unless said otherwise: the renderers escape them. Texts of several lines separate them by "\n" or "\r\n".
struct Report
{
    QString title = {};
    QString subtitle = {};
    QString filterText = {}; ///< which rows these are, in words
    std::vector<std::shared_ptr<const TableSource>> tables = {};
    QStringList tableTitles = {}; ///< one over each table: "CONTAS A PAGAR:"; may be missing
    QStringList lines = {};       ///< text under the tables, such as a paragraph a row with labels
    QString statistics = {};      ///< totals; the text file leaves them out

    // Only for reports whose renderings differ in more than layout.
    QString textTitle = {};      ///< first line of the text file; empty for the title
    QString textStatistics = {}; ///< totals of the text file
    QString htmlStatistics = {}; ///< totals of the HTML page, as HTML; empty for `statistics`
    QString htmlTail = {};       ///< HTML that stands for the whole block of totals of the page
};
