#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class Connection;

/// One field of an address label. Lengths are in millimetres; the place counts from the label's upper left
/// corner.
struct LabelField
{
    QString column; ///< of the contact: "nome"
    double top = 0;
    double left = 0;
    double width = 0;
    QString format; ///< one of labels::formats()
};

/// One text of a printed page. Lengths are in millimetres from the paper's upper left corner.
struct LabelText
{
    double top = 0;
    double left = 0;
    double width = 0;
    bool bold = false;
    QString text;
};

/// The sheet that the labels are printed on: A4 with labels from edge to edge.
namespace labelsheet {

inline constexpr double paperWidth = 210, paperHeight = 297;
inline constexpr int columns = 3, rows = 10;
inline constexpr double labelWidth = paperWidth / columns, labelHeight = paperHeight / rows;
inline constexpr int labelsPerPage = columns * rows;

} // namespace labelsheet

namespace labels {

/// What a label can show: contact columns and their names for the user.
struct Source
{
    QString column, title;
};
const std::vector<Source> &sources();
/// "Normal", "Negrito" (bold), "Maiúsculas" (capitals).
QStringList formats();

/// Name, address, district, city and state, one under the other.
std::vector<LabelField> defaultFields();
/// The fields that are kept in CamposEtiqueta; the default ones when there are none. Throws Error.
std::vector<LabelField> load(Connection &connection);
/// Replaces the fields kept, in one transaction. Throws Error; then nothing has changed.
void save(Connection &connection, const std::vector<LabelField> &fields);

/// The texts of every page for the contacts of `query`, in its order, at most `maxPages` pages. The first
/// `skipped` labels of the first page stay free: they were used before. Throws Error.
std::vector<std::vector<LabelText>> pages(Connection &connection, const QString &query,
                                          const std::vector<LabelField> &fields, int skipped, int maxPages);

} // namespace labels
