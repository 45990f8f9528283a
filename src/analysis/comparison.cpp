#include "analysis/comparison.h"

#include "data/connection.h"
#include "lists/readrows.h"
#include "reports/output.h"
#include "reports/reporttext.h"

#include <QDate>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace comparison {

namespace {

/// One of the figures: its words around the side's plural, the part of the rows, and whether it is their sum.
struct Measure
{
    QStringView before, after;
    Figures::Part (*part)(const Figures &figures);
    bool isSum;
};

Figures::Part all(const Figures &figures)
{
    return figures.total();
}
Figures::Part pending(const Figures &figures)
{
    return figures.pending;
}
Figures::Part settled(const Figures &figures)
{
    return figures.settled;
}

constexpr std::array measures{
    Measure{u"Total de ", u" cadastradas", all, false},
    Measure{u"Valor total de ", u"", all, true},
    Measure{u"Total de ", u" pendentes", pending, false},
    Measure{u"Valor total de ", u" pendentes", pending, true},
    Measure{u"Total de ", u" concluídas", settled, false},
    Measure{u"Valor total de ", u" concluídas", settled, true},
};

QString label(const Measure &measure, const Side &side)
{
    return measure.before.toString() + side.plural + measure.after.toString();
}

QString value(const Measure &measure, const Figures &figures)
{
    const Figures::Part part = measure.part(figures);
    return measure.isSum ? part.sum.inReais() : QString::number(part.count);
}

QString difference(const Measure &measure, const Result &result)
{
    const Figures::Part first = measure.part(result.figures[0]);
    const Figures::Part second = measure.part(result.figures[1]);
    return u"Diferença de "_s + (measure.isSum
                                     ? (second.sum - first.sum).inReais()
                                     : QString::number(second.count - first.count) + u" cadastros"_s);
}

QString word(Span span)
{
    return span == Span::Year ? u"ano"_s : u"mês"_s;
}

QString words(const Period &period)
{
    return word(period.span) + u" de "_s + name(period);
}

QString summaryHeading(const Period &period)
{
    return u"Resumo do "_s + word(period.span) + u" de: "_s + name(period);
}

QString both(const Measure &measure, const Result &result)
{
    return label(measure, *result.side) + u": "_s + words(result.periods[0]) + u" ("_s +
           value(measure, result.figures[0]) + u") - "_s + word(result.periods[1].span) + u" de: "_s +
           name(result.periods[1]) + u" ("_s + value(measure, result.figures[1]) + u")"_s;
}

QString fileTitle(const Result &result)
{
    return caption(*result.side, Span::Year);
}

} // namespace

QString name(const Period &period)
{
    const QString year = QString::number(period.year);
    if (period.span == Span::Year)
        return year;
    return QLocale(QLocale::Portuguese, QLocale::Brazil).standaloneMonthName(period.month) + u"/"_s + year;
}

QString caption(const Side &side, Span span)
{
    return u"Comparação de "_s + side.plural + (span == Span::Year ? u" entre anos"_s : u" entre meses"_s);
}

QString waitTitle(const Period &period)
{
    return u"Carregando "_s + words(period);
}

QString waitText(const Period &period)
{
    return u"Aguarde enquanto o software carrega todos os dados do "_s + words(period);
}

QString query(const Side &side, const Period &period)
{
    const QString key = period.span == Span::Year
                            ? QString::number(period.year)
                            : QDate(period.year, period.month, 1).toString(u"yyyy/MM"_s);
    return u"select * from "_s + side.table + u" where (data like '%"_s + key + u"%')"_s;
}

Figures read(Connection &connection, const Side &side, const Period &period, Progress *progress)
{
    FigureTotals totals(StatusRule::AnyCase);
    readrows::sum(connection, query(side, period), totals, progress);
    return totals.figures;
}

QString summaryTitle(const Period &period)
{
    return u"Resumo do "_s + words(period);
}

QString comparisonTitle(const Result &result)
{
    return u"Comparação entre o "_s + words(result.periods[0]) + u" e o "_s + words(result.periods[1]);
}

QString summary(const Result &result, std::size_t which)
{
    QString text = summaryHeading(result.periods[which]) + u"\r\n\r\n"_s;
    for (const Measure &measure : measures)
        text +=
            label(measure, *result.side) + u": "_s + value(measure, result.figures[which]) + u"\r\n\r\n"_s;
    return text;
}

QString htmlSummary(const Result &result, std::size_t which)
{
    QString text;
    for (const Measure &measure : measures)
        text +=
            u"<br><br>"_s + label(measure, *result.side) + u": "_s + value(measure, result.figures[which]);
    return text;
}

QString differences(const Result &result)
{
    QString text = comparisonTitle(result) + u"\r\n\r\n"_s;
    for (const Measure &measure : measures)
        text += both(measure, result) + u"\r\n"_s + difference(measure, result) + u"\r\n\r\n"_s;
    return text;
}

QString htmlDifferences(const Result &result)
{
    QString text;
    for (const Measure &measure : measures)
        text += u"<br><br>"_s + both(measure, result) + u"<br>"_s + difference(measure, result);
    return text;
}

void writeText(QIODevice &device, const Result &result)
{
    Output output(device);
    output << fileTitle(result) << "\n" << reporttext::productLine << "\n";
    output.repeat(128, '-');
    output << "\n" << summary(result, 0) << summary(result, 1) << differences(result);
    output.flush();
    reporttext::writeTextClosing(device);
}

void writeHtml(QIODevice &device, const Result &result)
{
    Output output(device);
    output << "<meta charset='utf-8'>\n<b><p><font face='Arial'><center>" << fileTitle(result) << "</b><hr>\n"
           << reporttext::productLine << "<br>\n</center><br>\n";
    const auto block = [&](const QString &heading, const QString &text) {
        output << "<b><center>" << heading << "</b></center>\n" << text << "\n";
    };
    block(summaryHeading(result.periods[0]), htmlSummary(result, 0));
    output << "<hr><br><br>\n";
    block(summaryHeading(result.periods[1]), htmlSummary(result, 1));
    output << "<hr><br><br>\n";
    block(comparisonTitle(result), htmlDifferences(result));
    output << "<hr><br><br>\n</font><p><font face='Arial'><center>\n";
    output.flush();
    reporttext::writeHtmlClosing(device);
    output << "</center></font></p>\n";
    output.flush();
}

Report printed(const Result &result)
{
    const QString text = summary(result, 0) + summary(result, 1) + differences(result);
    return {.title = caption(*result.side, result.periods[0].span),
            .subtitle = reporttext::productLine.toString(),
            .lines = text.split(u"\r\n"_s)};
}

QString saveTextTitle(const Side &side, Span span)
{
    return u"Salvar comparação de "_s + side.plural +
           (span == Span::Year ? u" entre anos em txt"_s : u" entre meses em txt"_s);
}

QString saveHtmlTitle(const Side &side, Span span)
{
    return u"Salvar comparação de "_s + side.plural + u" por "_s + word(span) + u" em html"_s;
}

} // namespace comparison
