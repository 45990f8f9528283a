#include "data/clock.h"
#include "data/storedtable.h"
#include "reports/c_relatorios.h"
#include "reports/displaywidth.h"
#include "reports/modimpressao.h"
#include "reports/reporttext.h"
#include "settings/settings.h"
#include "support/testprogram.h"
#include "widgets/pageprinter.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

#include <sys/resource.h>

#include <csignal>

using namespace Qt::StringLiterals;

namespace {

std::shared_ptr<const TableSource> table(const QList<QStringList> &lines)
{
    std::vector<Column> columns;
    for (const QString &title : lines.constFirst())
        columns.push_back({title, title, title == u"Valor" ? CellKind::Money : CellKind::Text});
    RowStore rows(int(columns.size()));
    for (const QStringList &line : lines.sliced(1)) {
        std::vector<std::string> texts;
        for (const QString &cell : line)
            texts.push_back(cell.toStdString());
        rows.append({texts.begin(), texts.end()});
    }
    return std::make_shared<StoredTable>(std::move(columns), std::move(rows));
}

using ListWriter = void (c_relatorios::*)(QIODevice &, const TableSource &) const;

QString written(const c_relatorios &lists, ListWriter write, const TableSource &list)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    (lists.*write)(buffer, list);
    return QString::fromUtf8(buffer.data());
}

QString content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

Report sample()
{
    Report report;
    report.title = u"CONTAS A PAGAR"_s;
    report.subtitle = u"Abril & maio"_s;
    report.filterText = u"Relatório <geral>"_s;
    report.tables = {table({{u"Descrição"_s, u"Valor"_s}, {u"Luz"_s, u"R$ 10,00"_s}})};
    report.statistics = u"Total: 1\r\nValor: \"10\""_s;
    return report;
}

/// What a PDF shows, as text.
QString pdfText(const QString &path)
{
    QProcess process;
    process.start(u"pdftotext"_s, {u"-layout"_s, u"-enc"_s, u"UTF-8"_s, path, u"-"_s});
    return process.waitForFinished() ? QString::fromUtf8(process.readAllStandardOutput()) : QString();
}

QPageLayout paper(QPageLayout::Orientation orientation = QPageLayout::Portrait)
{
    return QPageLayout(QPageSize(QPageSize::A4), orientation, QMarginsF(12, 12, 12, 12),
                       QPageLayout::Millimeter);
}

} // namespace

class tst_reports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void text_data();
    void text();
    void html();
    void textReport();
    void htmlReport();
    void aFailedWriteKeepsTheOlderFile_data();
    void aFailedWriteKeepsTheOlderFile();
    void pages();

private:
    std::unique_ptr<TestProgram> m_program;
};

void tst_reports::init()
{
    m_program = std::make_unique<TestProgram>();
    programclock::set(QDateTime(QDate(2026, 11, 22), QTime(14, 5, 9)));
}

void tst_reports::text_data()
{
    QTest::addColumn<QList<QStringList>>("lines");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QString>("expected");
    using Lines = QList<QStringList>;
    QTest::newRow("accents and wide characters take their width")
        << Lines{{u"Descrição"_s, u"X"_s},
                 {u"e\u0301 ação"_s, u"中文"_s},
                 {u"👨‍👩‍👧 🇧🇷"_s, u"a"_s}}
        << 9999
        << u"Descrição  X     \n*********  ****  \n\ne\u0301 ação     中文  \n👨‍👩‍👧 🇧🇷      a     \n\n"_s;
    QTest::newRow("no rows") << Lines{{u"Data"_s, u"Valor"_s}} << 9999 << u"Data  Valor  \n****  *****  \n"_s;
    QTest::newRow("empty cells and line breaks")
        << Lines{{u"A"_s, u"B"_s}, {u""_s, u"um\r\ndois\n\ttrês"_s}} << 9999
        << u"A  B              \n*  *************  \n\n   um dois  três  \n\n"_s;
    QTest::newRow("cut, not wrapped")
        << Lines{{u"Nome"_s}, {u"abcdef"_s}, {u"ação"_s}, {u"ab中文"_s}, {u"xe\u0301\u0302z!"_s}} << 3
        << u"Nom  \n***  \n\nabc  \naçã  \nab   \nxe\u0301\u0302z  \n\n"_s;
}

void tst_reports::text()
{
    QFETCH(QList<QStringList>, lines);
    QFETCH(int, maximum);
    QFETCH(QString, expected);
    c_relatorios lists;
    lists.setMaximumColumnWidth(qint16(maximum));
    QCOMPARE(written(lists, &c_relatorios::listToText, *table(lines)), expected);
}

void tst_reports::html()
{
    QCOMPARE(written({}, &c_relatorios::listToHtml,
                     *table({{u"Nome"_s, u"Obs. <1>"_s},
                             {u"João & Cia"_s, u""_s},
                             {u"😀 \"a\" 'b'"_s, u"<b>1\n2</b>"_s}})),
             u"<table border='2' align='center'>\n<tr>\n<TH nowrap bgcolor='#FFFFCC'>Nome</th>\n"
             "<TH nowrap bgcolor='#FFFFCC'>Obs. &lt;1&gt;</th>\n</tr>\n"
             "<tr>\n<td nowrap>João &amp; Cia&nbsp;</td>\n<td nowrap>&nbsp;</td>\n</tr>\n"
             "<tr>\n<td nowrap>😀 &quot;a&quot; &#39;b&#39;&nbsp;</td>\n<td nowrap>&lt;b&gt;1 "
             "2&lt;/b&gt;&nbsp;</td>\n"
             "</tr>\n</table>\n"_s);
    QCOMPARE(
        written({}, &c_relatorios::listToHtml, *table({{u"Nome"_s}})),
        u"<table border='2' align='center'>\n<tr>\n<TH nowrap bgcolor='#FFFFCC'>Nome</th>\n</tr>\n</table>\n"_s);
}

void tst_reports::textReport()
{
    settings::setValue(settings::companySite, u"loja.example"_s);
    Report report = sample();
    report.lines = {u"Filtrado por: hoje"_s};
    const QString path = m_program->file(u"r.txt"_s);
    reporttext::saveText(path, report, nullptr);
    QCOMPARE(content(path), u"CONTAS A PAGAR\n\nTavaro organizando a sua vida financeira!\n\n"
                            "Descrição  Valor     \n*********  ********  \n\nLuz        R$ 10,00  \n\n"
                            "Filtrado por: hoje\n"
                            "Gerado domingo, 22 de novembro de 2026 às 14:05:09\n\nTavaro\n"
                            "© Tavaro - controle financeiro e de estoque\nloja.example\n"_s);
}

void tst_reports::htmlReport()
{
    settings::setValue(settings::companyName, u"Loja <da> Ana"_s);
    settings::setValue(settings::companySite, u"loja.example/?a='b"_s);
    Report report = sample();
    report.tableTitles = {u"DESPESAS:"_s};
    report.lines = {u"um"_s, u"dois & três"_s};
    const QString path = m_program->file(u"r.html"_s);
    reporttext::saveHtml(path, report, nullptr);
    QCOMPARE(
        content(path),
        u"<html>\n<head>\n<title>CONTAS A PAGAR - Abril &amp; "
        u"maio</title>\n<meta charset='utf-8'>\n"
        "<p><font face='Arial'>\n<center><b>CONTAS A PAGAR - Abril &amp; maio</b>\n<hr>\n"
        "Relatório &lt;geral&gt;\n<br>\nTavaro organizando a sua vida "
        "financeira!<br><br>\n</center></font></p>\n"
        "<br><b>DESPESAS:<br><br></b>\n"
        "<table border='2' align='center'>\n<tr>\n<TH nowrap bgcolor='#FFFFCC'>Descrição</th>\n"
        "<TH nowrap bgcolor='#FFFFCC'>Valor</th>\n</tr>\n"
        "<tr>\n<td nowrap>Luz&nbsp;</td>\n<td nowrap>R$ 10,00&nbsp;</td>\n</tr>\n</table>\n"
        "<p><font face='Arial'>um<br>dois &amp; três</font></p>\n"
        "<p><font face='Arial'><center>\n"
        "<br><b>Estatísticas</b><hr>Total: 1<br>Valor: &quot;10&quot;<hr><br>\n"
        "Gerado domingo, 22 de novembro de 2026 às 14:05:09<br>\n<br>\n<b>Loja &lt;da&gt; Ana</b><br>\n<br>\n"
        "© Tavaro - controle financeiro e de estoque<br>\n"
        "<p><a href='https://loja.example/?a=&#39;b'>loja.example/?a=&#39;b</a></p>\n</center></font></p>\n"_s);
}

void tst_reports::aFailedWriteKeepsTheOlderFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("text") << u"r.txt"_s;
    QTest::newRow("html") << u"r.html"_s;
    QTest::newRow("pdf") << u"r.pdf"_s;
}

void tst_reports::aFailedWriteKeepsTheOlderFile()
{
    QFETCH(QString, name);
    const QString path = m_program->file(name);
    QFile older(path);
    QVERIFY(older.open(QIODevice::WriteOnly) && older.write("antigo") == 6);
    older.close();
    QList<QStringList> lines{{u"Nome"_s}};
    for (int i = 0; i < 20000; ++i)
        lines << QStringList{u"linha %1"_s.arg(i)};
    Report report = sample();
    report.tables = {table(lines)};

    // A full disk, as the program sees one.
    rlimit before = {};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small = {50000, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    QString error;
    try {
        if (name == u"r.txt")
            reporttext::saveText(path, report, nullptr);
        else if (name == u"r.html")
            reporttext::saveHtml(path, report, nullptr);
        else
            savePdf(path, modimpressao::document(report), paper(), nullptr);
    } catch (const Error &failure) {
        error = failure.text();
    }
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);

    QVERIFY2(error.startsWith(u"Não foi possível gravar o arquivo \"%1\": "_s.arg(path)), qPrintable(error));
    QCOMPARE(content(path), u"antigo"_s);
    QCOMPARE(QFileInfo(path).dir().entryList({u"r.*"_s}), QStringList{name});
}

void tst_reports::pages()
{
    QList<QStringList> lines{{u"Data"_s, u"Descrição"_s, u"Documento"_s, u"Valor"_s}};
    for (int i = 1; i <= 120; ++i)
        lines << QStringList{u"22/11/2026"_s, u"Item %1"_s.arg(i), u""_s, u"R$ %1,00"_s.arg(i)};
    Report report = sample();
    report.tables = {table(lines)};
    const QString path = m_program->file(u"r.pdf"_s);
    savePdf(path, modimpressao::document(report), paper(), nullptr);
    qDebug().noquote() << pdfText(path);
}

QTEST_MAIN(tst_reports)
#include "tst_reports.moc"
