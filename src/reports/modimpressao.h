#pragma once

#include "lists/pagedocument.h"
#include "reports/report.h"

/// What reports have in common on paper and in files.
namespace modimpressao {

/// "Gerado domingo, 22 de novembro de 2026 às 14:05:09".
QString generatedLine();
/// The same after "Emitido em ".
QString issuedLine();
QString companyName();
QString slogan();
/// The last line of a text file.
QString closingLine();
/// The last line of an HTML page: the link to the company's site, or the closing line.
QString closingHtml();

QStringList pageHeader();
/// "TITLE     -    Página: 3".
QString pageFooter(const QString &title, int page);

/// The kinds of lists that have their own page headings.
enum class ListKind { ByDueDate, ByDate, Payables, Receivables, Movements };
QStringList headings(ListKind kind);

/// How a report becomes pages.
struct PageSetup
{
    int fontSize = 10;
    QStringList (*header)() = pageHeader;
    QString (*footer)(const QString &title, int page, int pages) = nullptr; ///< null for pageFooter()
    RowForm rows = {};
    int ruleLength = 0;                ///< of the rules around the statistics; 0 fills the width
    bool ruleBeforeStatistics = false; ///< the first rule stands over the heading, not under it
};

/// The kind's headings over the columns of `list` that have them, and the other columns labelled below each
/// row.
PageSetup listPages(ListKind kind, const TableSource &list);
/// Of the report designers `rlt_ListView`, `rlt_historico` and `rlt_impressao`: "Emitido em " at the top,
/// "Página atual: 1 de 9" at the bottom.
PageSetup designerPages();
/// Of the report of an entry's movements: date, description, document and party, then labelled values.
PageSetup movementPages();

/// Throws Error::Kind::Data when there is nothing to print.
PageDocument document(const Report &report, const PageSetup &setup = {});

} // namespace modimpressao
