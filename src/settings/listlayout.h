#pragma once

#include "lists/listcolumn.h"

#include <QString>

#include <utility>
#include <vector>

/// Widths and positions of a list's columns, kept in a small file in the program folder. Widths are in twips
/// (15 to the pixel), written with a decimal comma in every locale; positions count from 1.
struct ListLayout
{
    std::vector<double> widths;
    std::vector<int> positions;
};

/// A list's layout file: "pagar.ini", and the columns that it lays out.
struct ListLayoutFile
{
    QString fileName;
    std::vector<ListColumn> columns;
};

namespace listlayout {

/// Unreadable or missing values give the defaults; positions that are no permutation give the column order.
ListLayout load(const ListLayoutFile &file);
/// Writes nothing when load() gives the same already. Throws Error::Kind::File.
void save(const ListLayoutFile &file, const ListLayout &layout);
/// Saves every one that can be saved, and then throws the first error there was.
void saveAll(const std::vector<std::pair<ListLayoutFile, ListLayout>> &layouts);

} // namespace listlayout
