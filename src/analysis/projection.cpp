#include "analysis/projection.h"

#include "data/connection.h"
#include "lists/readrows.h"
#include "reports/html.h"
#include "reports/output.h"

using namespace Qt::StringLiterals;

namespace projection {

namespace {

/// One line of the summary; `bold` is what the page sets in bold.
struct Line
{
    QString bold, text;
};

int days(const Result &result)
{
    return QDate(result.year, result.month, 1).daysInMonth();
}

QString daily(const Result &result, Money amount)
{
    return amount.dividedBy(Money::fromInteger(days(result))).value_or(Money()).inReais();
}

/// The figures, and after them the additional information.
std::pair<std::vector<Line>, std::vector<Line>> lines(const Result &result)
{
    return {{{u"Valor da projeção:"_s, result.goal.inReais()},
             {u"Meta diária:"_s, daily(result, result.goal)},
             {u"Valor Efetivado:"_s, result.settled.inReais()},
             {u"Média diária efetivada:"_s, daily(result, result.settled)},
             {u"Estatus:"_s, status(result)}},
            {{u"Informações Adicionais"_s, {}},
             {u"Data escolhida:"_s,
              u"Mês de "_s + monthNames().at(result.month - 1) + u" de "_s + QString::number(result.year)},
             {u"Dias no mês:"_s, QString::number(days(result)) + u" dias "_s}}};
}

QString closingNote(const Result &result)
{
    return u"* Está projeção é baseada apenas em "_s + result.side->plural + u" concluídas."_s;
}

} // namespace

QStringList monthNames()
{
    return {u"Janeiro"_s, u"Fevereiro"_s, u"Março"_s,    u"Abril"_s,   u"Maio"_s,     u"Junho"_s,
            u"julho"_s,   u"Agosto"_s,    u"Setembro"_s, u"Outubro"_s, u"Novembro"_s, u"Dezembro"_s};
}

QStringList years()
{
    QStringList years;
    for (int i = 0; i <= 150; ++i)
        years << QString::number(2000 + i);
    return years;
}

QString query(const Side &side, int year, int month)
{
    return u"Select * from "_s + side.table + u" where (estatus like 'Concluído') AND (data like '%"_s +
           QDate(year, month, 1).toString(u"yyyy/MM/"_s) + u"%')"_s;
}

Result compute(Connection &connection, const Side &side, int year, int month, const QString &goal)
{
    FigureTotals totals;
    readrows::sum(connection, query(side, year, month), totals);
    const std::optional<Decimal> settled = totals.figures.total().sum.value();
    if (!settled)
        throw Error(Error::Kind::Data, u"A soma do mês é grande demais."_s);
    return {&side, year, month, Money::parse(goal).value_or(Money()), *settled};
}

QString status(const Result &result)
{
    const Money difference = result.settled - result.goal;
    if (difference.isZero())
        return u"A meta foi atingida!"_s;
    if (difference.isNegative())
        return u"A meta foi atingida com sobra de "_s + difference.inReais();
    return u"Faltam "_s + difference.inReais() + u" para atingir sua meta!"_s;
}

QString summary(const Result &result)
{
    QString text;
    const auto [figures, information] = lines(result);
    for (const Line &line : figures)
        text += line.bold + u" "_s + line.text + u"\r\n"_s;
    text += u"\r\n"_s;
    for (const Line &line : information)
        text += line.bold + u" "_s + line.text + u"\r\n"_s;
    return text + closingNote(result);
}

QString htmlSummary(const Result &result)
{
    QString text;
    const auto [figures, information] = lines(result);
    for (const Line &line : figures)
        text += u"<b>"_s + line.bold + u"</b> "_s + line.text + u"<br>"_s;
    text += u"<br>"_s;
    for (const Line &line : information)
        text += u"<b>"_s + line.bold + u"</b> "_s + line.text + u"<br>"_s;
    return text + u"<b>"_s + closingNote(result) + u"</b><br>"_s;
}

QString title(const Side &side)
{
    return u"Projeções e Metas de "_s + side.plural;
}

void writeText(QIODevice &device, const Result &result)
{
    Output output(device);
    output << title(*result.side) << "\n";
    output.repeat(128, '-');
    output << "\n" << heading << "\n" << summary(result) << "\n";
    output.flush();
    reporttext::writeTextClosing(device);
}

void writeHtml(QIODevice &device, const Result &result)
{
    Output output(device);
    const QString title = projection::title(*result.side);
    output << "<html>\n<head>\n<title>" << title << "</title>\n<meta charset='utf-8'>\n</head>\n"
           << "<p><font face='Arial'><center><b>" << title << "</b><hr>\n"
           << reporttext::productLine << "<br><br>\n<b>" << heading << "</b><br><br>\n"
           << htmlSummary(result) << "\n<hr><br>\n";
    output.flush();
    reporttext::writeHtmlClosing(device);
    output << "</center></font></p>\n</html>\n";
    output.flush();
}

Report printed(const Result &result)
{
    return {.title = title(*result.side),
            .subtitle = heading.toString(),
            .lines = summary(result).split(u"\r\n"_s)};
}

} // namespace projection
