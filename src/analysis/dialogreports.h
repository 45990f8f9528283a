#pragma once

#include "data/connection.h"
#include "data/progress.h"
#include "reports/report.h"

#include <QDate>

#include <memory>
#include <optional>
#include <vector>

/// The reports of one table that the two report dialogs make.
namespace dialogreports {

/// A name that filters, and where it stands in the query.
struct NameFilter
{
    QString open, close;   ///< "AND fornecedor like(" and ") "; the quoted name is between them
    QString control;       ///< object name of its box, without the page's suffix: "cbofornecedor"
    QString label;         ///< "&Fornecedor:"
    QString query, column; ///< what the box offers
};

struct Ordering
{
    QString caption, sql; ///< "Data", "order by Data"
};

enum class Rows : quint8 { Entries, Movements, Stock };

/// A page of `frmConfRelatorio`, for one table.
struct Page
{
    QString caption; ///< of the tab: "Contas a &pagar"
    QString suffix;  ///< of the object names: "p"
    Subject subject;
    Rows rows;
    QString table;      ///< "pagar"
    bool hasDueDate;    ///< the date that is filtered is chosen
    QString statusOpen; ///< "estatus like ("
    std::vector<NameFilter> names;
    std::vector<Ordering> orderings;
    QString title;                    ///< "CONTAS A PAGAR"
    QString totalWords, settledWords; ///< "Total de despesas: R$ ", " - Total pago: R$ "
};

enum class Kind : quint8 { Payables, Receivables, Movements, Purchases, Sales };
const Page &page(Kind kind);

struct Choices
{
    bool datesWanted = true;
    bool byDueDate = false;
    QDate first = {}, last = {};
    QString status = {};    ///< "Pendente", "Concluído"; empty for both
    QStringList names = {}; ///< one for each of the page's filters; empty for all
    int ordering = 0;
    bool descending = false;
};

/// What stands in the way, as the message says it; empty when there is nothing.
QString problem(const Choices &choices);
/// Throws Error::Kind::Query when a name holds an apostrophe.
QString query(const Page &page, const Choices &choices);
QString filterText(const Choices &choices);

/// A command of `frmConfRelatorio2`, for one table.
struct Command
{
    Kind kind;             ///< whose rows it shows
    QString table;         ///< as it begins the query: "Select * from receber"
    QString filter;        ///< column: "cliente"
    QString title;         ///< "CLIENTE - RECEITAS"
    QString totalWords;    ///< "Total de receitas: R$ "
    QString missing;       ///< "O cliente deve ser selecionado!"
    QString control;       ///< of the object names: "cliente"
    QString label;         ///< "&Cliente:"
    QString names, column; ///< what its box offers
};
enum class Choice : quint8 { Client, Supplier, CostCentre, ProfitCentre, Payment, PaymentReceived };
/// PaymentReceived is the payment method's command on receivables.
const Command &command(Choice choice);

QString problem(const Command &command, const Choices &choices);
QString query(const Command &command, const Choices &choices);

inline constexpr QStringView nothingFound = u"A pesquisa não retornou resultados";

/// The report; nothing when there are no rows. Throws Error, and passes on what `progress` throws.
std::optional<Report> read(Connection &connection, const Page &page, const Choices &choices,
                           Progress *progress = nullptr);
std::optional<Report> read(Connection &connection, const Command &command, const Choices &choices,
                           Progress *progress = nullptr);

} // namespace dialogreports
