#pragma once

#include "data/error.h"
#include "reports/modimpressao.h"
#include "reports/report.h"
#include "reports/reporttext.h"

class Pages;
class QPageLayout;
class QWidget;

/// Titles and filters of a screen's two save choosers.
struct ExportTexts
{
    QString textTitle, textFilter; ///< "Salvar relatório em txt", "Arquivos de Texto(*.txt)"
    QString htmlTitle, htmlFilter;
};

/// A chooser of a file to save.
struct SaveChooser
{
    QString title;  ///< "Salvar relatório em txt"
    QString filter; ///< "Arquivos de Texto(*.txt)"
    QString suffix; ///< "txt"
};

/// The three commands that every list screen has on its list. Each asks for a file or a printer, shows the
/// wait screen while a long list is written, and tells the user when it failed; an older file stays untouched
/// until the new one is complete.
namespace exportar {

/// Of lists and reports that have no texts of their own.
const ExportTexts &reportTexts();

/// Saves as fixed-width text and offers to open the file.
void saveText(QWidget *parent, const Report &report, const ExportTexts &texts);
/// Saves as an HTML page and offers to open the file.
void saveHtml(QWidget *parent, const Report &report, const ExportTexts &texts);
/// Saves what `write` writes, and offers to open the file.
void saveFile(QWidget *parent, const SaveChooser &chooser, const FileWriter &write);
/// Shows the pages, prints them or saves them as PDF.
void print(QWidget *parent, const Report &report, const modimpressao::PageSetup &setup = {});
/// The same for pages that are not made from a report, such as a receipt.
void printPages(QWidget *parent, const PageDocument &document);

bool hasPrinter();
/// The wait screen's text while pages are laid out or painted.
QString printingText();
/// Lets the user choose a printer and some of the pages, and prints them; a failure is told. Whether they
/// were printed.
bool printOnPrinter(QWidget *parent, Pages &pages, const QPageLayout &paper);
/// Asks for a file in a chooser of this title and writes the pages into it; a failure is told. Returns its
/// path, empty when there is none.
QString savePdf(QWidget *parent, const QString &title, Pages &pages, const QPageLayout &paper);

/// Tells why there are no pages.
void showPageError(QWidget *parent, const Error &error);
/// Tells that printing failed.
void showPrintError(QWidget *parent);

} // namespace exportar
