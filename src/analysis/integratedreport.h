#pragma once

#include "data/connection.h"
#include "data/progress.h"
#include "lists/storedtable.h"
#include "reports/modimpressao.h"
#include "reports/report.h"

#include <QDate>

#include <array>
#include <memory>
#include <vector>

/// The integrated report: payables, receivables and movements, each filtered by choices of its own, in one
/// list. Texts of several lines separate them by "\r\n".
namespace integratedreport {

/// One of a section's lists of names.
struct NameList
{
    QString column;                  ///< of the table: "fornecedor"
    QString open, close;             ///< around each quoted name in the query: "(" and ")"
    QString allWords;                ///< header line when nothing is filtered
    QString chosenWords;             ///< before the names
    bool boxDecides;                 ///< its box "all" wins over a list that has names
    QString caption;                 ///< "&Fornecedores"
    QString all;                     ///< the box: "Todos os fornecedores"
    QString list, box, add, clear;   ///< object names: "lstfornecedor", "chkfornecedor", ...
    QString namesQuery, namesColumn; ///< what the add button offers
};

enum class Status : quint8 { All, Pending, Settled };

/// Everything in which the sections differ.
struct Section
{
    Subject subject;
    QString table;               ///< "pagar"
    QString suffix;              ///< of the object names: "p"
    QString textName;            ///< object name of its text on the report: "txtpagar"
    QString caption;             ///< "Contas a pagar - débitos"
    bool hasDueDate;             ///< the date that is filtered is chosen
    QString dateOpen, dateClose; ///< around quoted dates: "('" and "')"
    QString afterDate;           ///< what closes the date's condition
    QString statusOpen, statusClose;
    QString settledWord; ///< the value that the third choice looks for
    QString totalWords;  ///< "Total de despesa: R$ "
    std::vector<NameList> names;
    std::vector<ListColumn> columns; ///< of the shared list, made from the section's rows
};

/// Payables, receivables, movements: the order of the report.
inline constexpr int sectionCount = 3;
const Section &section(int index);

struct Names
{
    bool all = true; ///< the box next to the list
    QStringList names = {};
};

struct SectionChoices
{
    bool included = true;
    bool allDates = true;
    QDate first = {}, last = {};
    std::array<Names, 3> names = {}; ///< as many as the section has
    Status status = Status::All;
    bool byDueDate = false;
};
using Choices = std::array<SectionChoices, sectionCount>;

/// What is asked, and the lines that tell the reader so, each ended by a line break.
struct Query
{
    QString sql, header;
};
/// Throws Error::Kind::Query when a name holds an apostrophe.
Query query(const Section &section, const SectionChoices &choices);

struct Result
{
    std::shared_ptr<StoredTable> table;
    std::array<QString, sectionCount> texts; ///< header lines and total of each section
    QString finances;                        ///< what the included sections come to
};
/// Throws Error; passes on what `progress` throws.
Result read(Connection &connection, const Choices &choices, Progress *progress = nullptr);

/// The result as it is saved: text and HTML, with the list as it is shown.
Report saved(const Result &result, std::shared_ptr<const TableSource> list);
/// The result as it is printed.
Report printed(const Result &result, std::shared_ptr<const TableSource> list);
modimpressao::PageSetup pages();

} // namespace integratedreport
