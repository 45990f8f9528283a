#include "reports/reporttext.h"

#include "data/error.h"
#include "reports/c_relatorios.h"
#include "reports/html.h"
#include "reports/modimpressao.h"
#include "reports/output.h"

using namespace Qt::StringLiterals;

namespace {

void writeLine(Output &output, QStringView text)
{
    output << text << "\n";
}

void writeHead(Output &output, const Report &report)
{
    const QString title =
        html::escaped(report.subtitle.isEmpty() ? report.title : report.title + u" - "_s + report.subtitle);
    writeLine(output, u"<html>");
    writeLine(output, u"<head>");
    writeLine(output, u"<title>"_s + title + u"</title>"_s);
    writeLine(output, u"<meta charset='utf-8'>");
    writeLine(output, u"<p><font face='Arial'>");
    writeLine(output, u"<center><b>"_s + title + u"</b>"_s);
    writeLine(output, u"<hr>");
    writeLine(output, html::lines(report.filterText));
    writeLine(output, u"<br>");
    writeLine(output, reporttext::productLine.toString() + u"<br><br>"_s);
    writeLine(output, u"</center></font></p>");
}

void writeClosing(Output &output)
{
    writeLine(output, modimpressao::generatedLine() + u"<br>"_s);
    writeLine(output, u"<br>");
    writeLine(output, u"<b>"_s + html::escaped(modimpressao::companyName()) + u"</b><br>"_s);
    writeLine(output, u"<br>");
    writeLine(output, html::escaped(modimpressao::slogan()) + u"<br>"_s);
    writeLine(output, modimpressao::closingHtml());
}

void writeTail(Output &output, const Report &report)
{
    const QString statistics =
        report.htmlStatistics.isEmpty() ? html::lines(report.statistics) : report.htmlStatistics;
    if (!report.lines.isEmpty())
        writeLine(output,
                  u"<p><font face='Arial'>"_s + html::lines(report.lines.join(u'\n')) + u"</font></p>"_s);
    writeLine(output, u"<p><font face='Arial'><center>");
    if (!report.htmlTail.isEmpty())
        writeLine(output, report.htmlTail);
    else if (!statistics.isEmpty())
        writeLine(output, u"<br><b>Estatísticas</b><hr>"_s + statistics + u"<hr><br>"_s);
    writeClosing(output);
    writeLine(output, u"</center></font></p>");
}

} // namespace

namespace reporttext {

void writeTextClosing(QIODevice &device)
{
    Output output(device);
    writeLine(output, modimpressao::generatedLine());
    writeLine(output, u"");
    writeLine(output, modimpressao::companyName());
    writeLine(output, modimpressao::slogan());
    writeLine(output, modimpressao::closingLine());
    output.flush();
}

void writeHtmlClosing(QIODevice &device)
{
    Output output(device);
    writeClosing(output);
    output.flush();
}

void writeText(QIODevice &device, const Report &report, Progress *progress)
{
    Output output(device);
    writeLine(output, report.textTitle.isEmpty() ? report.title : report.textTitle);
    writeLine(output, u"");
    writeLine(output, productLine);
    writeLine(output, u"");
    c_relatorios lists;
    lists.setProgress(progress);
    for (std::size_t i = 0; i < report.tables.size(); ++i) {
        const QString title = report.tableTitles.value(qsizetype(i));
        if (!title.isEmpty())
            output << title << "\n\n";
        output.flush();
        lists.listToText(device, *report.tables[i]);
    }
    for (const QString &line : report.lines)
        writeLine(output, line);
    if (!report.textStatistics.isEmpty())
        writeLine(output, report.textStatistics);
    output.flush();
    writeTextClosing(device);
}

void writeHtml(QIODevice &device, const Report &report, Progress *progress)
{
    Output output(device);
    writeHead(output, report);
    c_relatorios lists;
    lists.setProgress(progress);
    for (std::size_t i = 0; i < report.tables.size(); ++i) {
        const QString title = report.tableTitles.value(qsizetype(i));
        if (!title.isEmpty())
            writeLine(output, u"<br><b>"_s + html::escaped(title) + u"<br><br></b>"_s);
        output.flush();
        lists.listToHtml(device, *report.tables[i]);
    }
    writeTail(output, report);
    output.flush();
}

void saveText(const QString &path, const Report &report, Progress *progress)
{
    ::saveFile(
        path, [&](QIODevice &device, Progress *told) { writeText(device, report, told); }, progress);
}

void saveHtml(const QString &path, const Report &report, Progress *progress)
{
    ::saveFile(
        path, [&](QIODevice &device, Progress *told) { writeHtml(device, report, told); }, progress);
}

} // namespace reporttext
