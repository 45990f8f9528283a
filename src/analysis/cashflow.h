#pragma once

#include "entries/side.h"
#include "lists/figures.h"
#include "lists/storedtable.h"
#include "reports/report.h"

#include <QDate>

class Connection;
class Progress;

/// The forecast by due date: queries, figures and texts.
namespace cashflow {

enum class Mode : quint8 { Payables, Receivables, General };

/// What the user chose; the words are those of the boxes.
struct Choice
{
    QDate first, last; ///< due dates, both included
    QString account;   ///< "Todos os bancos" or an account's name
    QString status;    ///< one of statusWords()
};

/// The entries of one side and what they add up to.
struct Part
{
    const Side *side;
    std::shared_ptr<StoredTable> rows;
    Figures figures = {};
};

struct Result
{
    Mode mode;
    Choice choice;
    std::vector<Part> parts; ///< one, or in general mode payables and receivables
};

QString allAccounts();
QStringList statusWords();
std::vector<ListColumn> columns(const Side &side);
/// Throws Error::Kind::Query for an account whose name no SQL text can hold.
QString query(const Side &side, const Choice &choice);
Result read(Connection &connection, Mode mode, const Choice &choice, Progress *progress);

/// What is told about a part without rows.
QString emptyMessage(Mode mode, const Side &side);
/// "FLUXO DE CAIXA - GERAL".
QString caption(Mode mode);
/// "Previsão entre os vencimentos de 01/11/2026 até 30/11/2026 - Período de: 29 dias".
QString periodText(const Choice &choice);
QString totals(const Result &result);
qint64 count(const Result &result);
QString countText(const Result &result);
/// Choices and totals in lines, as they are printed.
QString summary(const Result &result);
/// The same with HTML tags.
QString htmlSummary(const Result &result);
/// Without its tables: the screen has them, as the user arranged them.
Report report(const Result &result);

} // namespace cashflow
