#pragma once

#include "entries/side.h"
#include "lists/figures.h"
#include "reports/report.h"

#include <array>

class Connection;
class Progress;
class QIODevice;

/// Two years, or two months, of one side against each other.
namespace comparison {

enum class Span : quint8 { Year, Month };

struct Period
{
    Span span;
    int year;
    int month = 1; ///< of Span::Month, from 1
};

struct Result
{
    const Side *side;
    std::array<Period, 2> periods;
    std::array<Figures, 2> figures;
};

/// "2026" or "novembro/2026".
QString name(const Period &period);
/// "Comparação de despesas entre anos".
QString caption(const Side &side, Span span);
/// "Carregando ano de 2026", and the text below it.
QString waitTitle(const Period &period);
QString waitText(const Period &period);
QString query(const Side &side, const Period &period);
Figures read(Connection &connection, const Side &side, const Period &period, Progress *progress);

/// "Resumo do ano de 2026".
QString summaryTitle(const Period &period);
/// "Comparação entre o ano de 2025 e o ano de 2026".
QString comparisonTitle(const Result &result);
/// The six figures of the first (0) or second (1) period, under their heading.
QString summary(const Result &result, std::size_t which);
QString htmlSummary(const Result &result, std::size_t which);
/// The six figures side by side; the differences are second minus first.
QString differences(const Result &result);
QString htmlDifferences(const Result &result);

/// The file's title is that of the years for months, too.
void writeText(QIODevice &device, const Result &result);
void writeHtml(QIODevice &device, const Result &result);
Report printed(const Result &result);

/// "Salvar comparação de despesas entre anos em txt".
QString saveTextTitle(const Side &side, Span span);
/// "Salvar comparação de despesas por ano em html".
QString saveHtmlTitle(const Side &side, Span span);

} // namespace comparison
