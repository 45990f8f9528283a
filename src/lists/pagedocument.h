#pragma once

#include "lists/tablesource.h"

#include <QRectF>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <variant>
#include <vector>

class QPainter;

/// Text over the width of the page; long lines are wrapped. An empty one is an empty line.
struct PageText
{
    QString text = {};
    int size = 0; ///< points; 0 for the document's
    bool bold = false;
};

/// A line of "_".
struct PageRule
{
    int length = 0; ///< characters, made smaller if they do not fit; 0 for as many as fit
};

/// A value printed under its row: "Valor: 10,00".
struct RowLabel
{
    QString label;
    int column;
};

/// How the rows of a list stand on the page: cells side by side, then labelled values below them. A column
/// that the list does not have counts as empty; empty values are printed as "-".
struct RowForm
{
    std::vector<int> cells = {}; ///< columns side by side, left to right; empty for all of the list
    QStringList headings = {};   ///< over the cells; empty for the list's own
    bool showHeadings = true;
    std::vector<RowLabel> labels = {};
    bool labelsShareLine = false; ///< otherwise one line each, and an empty line after the row
};

/// A list, with its headings on every page that it reaches.
struct PageTable
{
    std::shared_ptr<const TableSource> list;
    RowForm form = {};
};

/// A drawing over the width of the page.
struct PagePicture
{
    int lines = 0; ///< height in lines of the document's letters; less on a lower page
    /// Draws into the rectangle, on any device.
    std::function<void(QPainter &painter, const QRectF &where)> paint = {};
};

using PageBlock = std::variant<PageText, PageRule, PageTable, PagePicture>;

/// What is to be printed, without knowing the paper.
struct PageDocument
{
    QString name = {}; ///< of the print job
    QString fontFamily = QStringLiteral("Arial");
    int fontSize = 10;
    QStringList header = {}; ///< lines at the top of every page
    std::function<QString(int page, int pages)> footer = {};
    std::vector<PageBlock> blocks = {};
};
