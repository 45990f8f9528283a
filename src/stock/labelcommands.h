#pragma once

#include "stock/labels.h"

class QPageLayout;
class QPrinter;
class QWidget;

/// What becomes of sheets of labels: a preview, paper, a PDF file.
namespace labelcommands {

/// The texts of every sheet.
using Sheets = std::vector<std::vector<LabelText>>;

/// The sheet from edge to edge: the labels' own places keep clear of what printers cannot reach.
QPageLayout paper();
/// Paints the sheets with the labels' edges, for the screen alone. Throws Error.
void preview(QPrinter &printer, Sheets sheets);
/// Lets the user choose a printer; saves as PDF where there is none. A failure is told.
void print(QWidget *parent, Sheets sheets);
/// A failure is told.
void savePdf(QWidget *parent, Sheets sheets);

} // namespace labelcommands
