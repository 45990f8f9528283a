#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// Widths and positions of a list's columns, kept in a small file in the program folder. Widths are in twips
/// (15 to the pixel), written with a decimal comma in every locale; positions count from 1.
struct ListLayout
{
    std::vector<double> widths;
    std::vector<int> positions;
};

/// One of the main window's lists and its layout file.
struct ListLayoutFile
{
    QString fileName;          ///< "pagar.ini"
    QStringList keys;          ///< one per column, in column order
    QStringList defaultWidths; ///< "1319,8111"
};

namespace listlayout {

const ListLayoutFile &payables();
const ListLayoutFile &receivables();
const ListLayoutFile &movements();

/// Unreadable or missing values give the defaults; positions that are no permutation give the column order.
ListLayout load(const ListLayoutFile &file);
/// Throws Error::Kind::File.
void save(const ListLayoutFile &file, const ListLayout &layout);

} // namespace listlayout
