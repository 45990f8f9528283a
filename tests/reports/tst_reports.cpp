#include "analysis/frmrelatorio.h"
#include "data/clock.h"
#include "lists/storedtable.h"
#include "reports/c_relatorios.h"
#include "reports/modimpressao.h"
#include "reports/reporttext.h"
#include "settings/settings.h"
#include "support/boxes.h"
#include "support/desktop.h"
#include "support/paper.h"
#include "support/testprogram.h"
#include "widgets/documentpages.h"
#include "widgets/listview.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QPrintPreviewWidget>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <sys/resource.h>

#include <csignal>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

std::shared_ptr<const TableSource> table(const QList<QStringList> &lines)
{
    std::vector<ListColumn> columns;
    for (const QString &title : lines.constFirst())
        columns.push_back({title, title, title == u"Valor" ? CellKind::Amount : CellKind::Text});
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

std::shared_ptr<const TableSource> longTable()
{
    QList<QStringList> lines{{u"Data"_s, u"Descrição"_s, u"Documento"_s, u"Valor"_s}};
    for (int i = 1; i <= 120; ++i)
        lines << QStringList{u"22/11/2026"_s, u"Item %1"_s.arg(i), u""_s, u"R$ %1,00"_s.arg(i)};
    return table(lines);
}

QList<QStringList> numbered(int count)
{
    QList<QStringList> lines{{u"Nome"_s}};
    for (int i = 0; i < count; ++i)
        lines << QStringList{u"linha %1"_s.arg(i)};
    return lines;
}

QPageLayout paper(QPageLayout::Orientation orientation = QPageLayout::Portrait)
{
    return QPageLayout(QPageSize(QPageSize::A4), orientation, QMarginsF(12, 12, 12, 12),
                       QPageLayout::Millimeter);
}

void save(const QString &path, const PageDocument &document,
          QPageLayout::Orientation orientation = QPageLayout::Portrait)
{
    DocumentPages pages(document);
    pageprinter::savePdf(path, pages, paper(orientation), nullptr);
}

/// What a PDF of the document shows, page by page: lines with single blanks, without empty ones; a rule is
/// "RULE", with its length if it is not the width of the page.
QStringList pdfPages(const PageDocument &document)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"p.pdf"_s);
    save(path, document);
    QStringList pages;
    for (const QString &page : pdfText(path).split(u'\f', Qt::SkipEmptyParts)) {
        QStringList lines;
        for (const QString &line : page.split(u'\n')) {
            const QString text = line.simplified();
            const bool isRule = text.size() > 20 && text.count(u'_') == text.size();
            if (!text.isEmpty())
                lines << (!isRule ? text : text.size() == 132 ? u"RULE132"_s : u"RULE"_s);
        }
        pages << lines.join(u'\n');
    }
    return pages;
}

/// The words of a PDF where they stand.
struct PlacedWord
{
    QString text;
    QRectF place;
};

std::vector<PlacedWord> placedWords(const QString &path)
{
    static const QRegularExpression word(
        u"<word xMin=\"(.*?)\" yMin=\"(.*?)\" xMax=\"(.*?)\" yMax=\"(.*?)\">(.*?)</word>"_s);
    std::vector<PlacedWord> words;
    for (const auto &match : word.globalMatch(pdfText(path, u"-bbox"_s))) {
        const auto edge = [&](int i) { return match.captured(i).toDouble(); };
        words.push_back({match.captured(5), QRectF(QPointF(edge(1), edge(2)), QPointF(edge(3), edge(4)))});
    }
    return words;
}

/// The words that lie beyond the margins or over another.
QString misplaced(const std::vector<PlacedWord> &words, const QPageLayout &layout)
{
    const QRectF sheet = layout.paintRect(QPageLayout::Point).adjusted(-1, -1, 1, 1);
    QString texts;
    for (auto word = words.begin(); word != words.end(); ++word) {
        const bool isCovered = std::any_of(words.begin(), word, [&](const PlacedWord &other) {
            const QRectF common = word->place & other.place;
            return common.width() >= 1 && common.height() >= 2;
        });
        if (isCovered || !sheet.contains(word->place))
            texts += word->text + u'\n';
    }
    return texts;
}

/// What goes wrong while files cannot grow beyond some kilobytes, as on a disk that is nearly full.
QString failureOnFullDisk(const std::function<void()> &work)
{
    rlimit before = {};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small = {50000, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &small);
    QString failure;
    try {
        work();
    } catch (const Error &error) {
        failure = error.text();
    }
    ::setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    return failure;
}

} // namespace

class tst_reports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void text();
    void html();
    void textReport();
    void htmlReport();
    void aFailedWriteKeepsTheOlderFile();
    void pages();
    void otherPages();
    void printedListsSayAllOfTheirValues();
    void headingsStandOnEveryPageOfALongNote();
    void aLabelIsNotPartedFromItsValue();
    void pagesNeedNoHeaderAndNoFooter();
    void screenSavesWhatItShows();
    void printingScreen();

private:
    std::unique_ptr<TestProgram> m_program;
};

void tst_reports::init()
{
    m_program = std::make_unique<TestProgram>();
    programclock::set(QDateTime(QDate(2026, 11, 22), QTime(14, 5, 9)));
}

void tst_reports::text()
{
    struct Case
    {
        QList<QStringList> lines;
        qint16 maximum;
        QString expected;
    };
    const Case cases[] = {
        // accents and wide characters take their width
        {{{u"Descrição"_s, u"X"_s},
          {u"e\u0301 ação"_s, u"中文"_s},
          {u"“€” – z…"_s, u"a\u20DD"_s},
          {u"👨‍👩‍👧 🇧🇷"_s, u"a"_s}},
         9999,
         u"Descrição  X     \n*********  ****  \n\ne\u0301 ação     中文  \n“€” – z…   a\u20DD     \n👨‍👩‍👧 🇧🇷      a     \n\n"_s},
        {{{u"Data"_s, u"Valor"_s}}, 9999, u"Data  Valor  \n****  *****  \n"_s},
        {{{u"A"_s, u"B"_s}, {u""_s, u"um\r\ndois\n\ttrês"_s}},
         9999,
         u"A  B              \n*  *************  \n\n   um dois  três  \n\n"_s},
        // cut, not wrapped
        {{{u"Nome"_s}, {u"abcdef"_s}, {u"ação"_s}, {u"ab中文"_s}, {u"xe\u0301\u0302z!"_s}},
         3,
         u"Nom  \n***  \n\nabc  \naçã  \nab   \nxe\u0301\u0302z  \n\n"_s}};
    for (const Case &one : cases) {
        c_relatorios lists;
        lists.setMaximumColumnWidth(one.maximum);
        QCOMPARE(written(lists, &c_relatorios::listToText, *table(one.lines)), one.expected);
    }
}

void tst_reports::html()
{
    QCOMPARE(
        written({}, &c_relatorios::listToHtml,
                *table({{u"Obs. <1>"_s}, {u""_s}, {u"😀 \"a\" 'b'"_s}, {u"<b>1\n2</b> & c"_s}})),
        u"<table border='2' align='center'>\n<tr>\n<TH nowrap bgcolor='#FFFFCC'>Obs. &lt;1&gt;</th>\n</tr>\n"
        "<tr>\n<td nowrap>&nbsp;</td>\n</tr>\n"
        "<tr>\n<td nowrap>😀 &quot;a&quot; &#39;b&#39;&nbsp;</td>\n</tr>\n"
        "<tr>\n<td nowrap>&lt;b&gt;1 2&lt;/b&gt; &amp; c&nbsp;</td>\n</tr>\n</table>\n"_s);
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
        u"<html>\n<head>\n<title>CONTAS A PAGAR - Abril &amp; maio</title>\n<meta charset='utf-8'>\n"
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

void tst_reports::aFailedWriteKeepsTheOlderFile()
{
    Report report = sample();
    report.tables = {table(numbered(20000))};
    using Write = std::function<void(const QString &)>;
    for (const auto &[name, write] :
         {std::pair<QString, Write>(
              u"r.txt"_s, [&](const QString &path) { reporttext::saveText(path, report, nullptr); }),
          {u"r.html"_s, [&](const QString &path) { reporttext::saveHtml(path, report, nullptr); }},
          {u"r.pdf"_s, [&](const QString &path) { save(path, modimpressao::document(report)); }}}) {
        const QString path = m_program->file(name);
        QFile older(path);
        QVERIFY(older.open(QIODevice::WriteOnly) && older.write("antigo") == 6);
        older.close();
        const QString error = failureOnFullDisk([&] { write(path); });
        QVERIFY2(error.startsWith(u"Não foi possível gravar o arquivo \"%1\": "_s.arg(path)),
                 qPrintable(error));
        QCOMPARE(content(path), u"antigo"_s);
        QCOMPARE(QFileInfo(path).dir().entryList({name + u'*'}), QStringList{name});
    }
}

void tst_reports::pages()
{
    Report report = sample();
    report.tables = {longTable()};
    report.lines = {u"Filtrado por: hoje"_s};
    const QStringList pages = pdfPages(modimpressao::document(report));
    QCOMPARE(pages.size(), 3);
    const QString header =
        u"Gerado domingo, 22 de novembro de 2026 às 14:05:09\nTavaro\n© Tavaro - controle financeiro e de estoque\n"_s;
    QCOMPARE(pages[0].left(pages[0].indexOf(u"22/11/2026 Item 2 "_s)),
             header +
                 u"CONTAS A PAGAR\nAbril & maio\nRelatório <geral>\nRULE\nData Descrição Documento Valor\n"
                 "22/11/2026 Item 1 - R$ 1,00\n"_s);
    for (int i = 0; i < pages.size(); ++i)
        QVERIFY2(pages[i].endsWith(u"\nCONTAS A PAGAR - Página: %1"_s.arg(i + 1)), qPrintable(pages[i]));
    QVERIFY2(pages[1].startsWith(header + u"RULE\nData Descrição Documento Valor\n22/11/2026 Item "_s),
             qPrintable(pages[1]));
    QVERIFY2(pages[2].contains(u"22/11/2026 Item 120 - R$ 120,00\nFiltrado por: hoje\nEstatísticas\nRULE\n"
                               "Total: 1\nValor: \"10\"\nRULE\n"_s),
             qPrintable(pages[2]));
    for (int i = 1; i <= 120; ++i)
        QVERIFY(pages.join(u'\n').count(u" Item %1 - R$ %1,00\n"_s.arg(i)) == 1);
}

void tst_reports::otherPages()
{
    Report report = sample();
    const auto printed = [&](const modimpressao::PageSetup &setup) {
        return pdfPages(modimpressao::document(report, setup));
    };
    report.tables = {longTable()};
    const QString designed = printed(modimpressao::designerPages())[1];
    QVERIFY(designed.startsWith(u"Emitido em domingo, 22 de novembro de 2026 às 14:05:09\nRULE\nData "_s));
    QVERIFY(designed.endsWith(u"\nPágina atual: 2 de 3"_s));
    report.tables = {table({{u"Data"_s, u"Descrição"_s, u"Documento"_s, u"Fornecedor"_s, u"Vencimento"_s,
                             u"Valor"_s, u"Estatus"_s, u"Conta"_s, u"Informações"_s},
                            {u"22/11/2026"_s, u"Luz"_s, u""_s, u"Ana"_s, u"10/12/2026"_s, u"R$ 10,00"_s,
                             u"Pago"_s, u"Caixa"_s, u"à vista"_s}})};
    const QString moved = printed(modimpressao::movementPages()).join(u'\n');
    QVERIFY2(
        moved.contains(u"22/11/2026 Luz - Ana\nVencimento: 10/12/2026\nValor: R$ 10,00\nConta origem: Caixa\n"
                       "Estatus: Pago\nInformações: à vista\nRULE132\nEstatísticas\n"_s),
        qPrintable(moved));
    const QString due =
        printed(modimpressao::listPages(modimpressao::ListKind::ByDueDate, *report.tables[0])).join(u'\n');
    QVERIFY2(
        due.contains(
            u"RULE\nVENC. DESCRIÇÃO DOC. FORNECEDOR/CLIENTE\n10/12/2026 Luz - Ana\nData: 22/11/2026 Valor: R$ 10,00 Estatus: Pago Conta: Caixa Informações: à vista\n"_s),
        qPrintable(due));
}

void tst_reports::printedListsSayAllOfTheirValues()
{
    QStringList titles{u"Valor"_s, u"E-mail"_s, u"Observações gerais"_s}, words;
    QList<QStringList> lines;
    for (int i = 1; i <= 10; ++i)
        titles << u"Coluna %1"_s.arg(i);
    lines << titles;
    for (int row = 1; row <= 9; ++row) {
        lines << QStringList{u"R$ %1.456.789,00"_s.arg(row),
                             u"maria.aparecida.%1@correio.example"_s.arg(row)};
        for (int i = 2; i < titles.size(); ++i) {
            const QStringList value{u"r%1c%2a"_s.arg(row).arg(i), u"r%1c%2b"_s.arg(row).arg(i),
                                    u"comprida%1c%2"_s.arg(row).arg(i)};
            lines.last() << value.join(u' ');
            words << value;
        }
        words << lines.last().first(2).join(u' ').split(u' ').sliced(1);
    }
    lines.last().last() = QString(150, u'w');
    words.removeIf([](const QString &word) { return word.contains(u"9c12"); });
    Report report = sample();
    report.tables = {table(lines)};
    const PageDocument document = modimpressao::document(report);
    QCOMPARE(DocumentPages(document).fittingOrientation(paper()), QPageLayout::Landscape);
    QCOMPARE(DocumentPages(modimpressao::document(sample())).fittingOrientation(paper()),
             QPageLayout::Portrait);

    QString characters; // words are broken only on the narrower paper
    for (const auto orientation : {QPageLayout::Landscape, QPageLayout::Portrait}) {
        const QString path = m_program->file(u"p.pdf"_s);
        save(path, document, orientation);
        QStringList printed;
        const std::vector<PlacedWord> placed = placedWords(path);
        QCOMPARE(misplaced(placed, paper(orientation)), QString());
        for (const PlacedWord &word : placed)
            printed << word.text;
        for (const QString &word : words) {
            QVERIFY2(orientation == QPageLayout::Portrait || printed.contains(word), qPrintable(word));
            QVERIFY2(!word.endsWith(u",00"_s) || printed.contains(word), qPrintable(word));
        }
        QString all = printed.join(QString());
        QVERIFY(!all.contains(u'…'));
        std::ranges::sort(all.remove(u'_'));
        QCOMPARE(all.count(u'w'), 150);
        QCOMPARE(characters.isEmpty() ? all : characters, all);
        characters = all;
    }

    const QStringList amounts(40, u"R$ 123.456.789,00"_s);
    report.tables = {table({QStringList(40, u"Valor"_s), amounts})};
    const QString path = m_program->file(u"p.pdf"_s);
    save(path, modimpressao::document(report));
    QCOMPARE(misplaced(placedWords(path), paper()), QString());
    QCOMPARE(pdfText(path).count(amounts[0]), 40);

    DocumentPages pages(document);
    const QPageLayout slip(QPageSize(QSizeF(30, 20), QPageSize::Millimeter), QPageLayout::Portrait, {});
    QVERIFY_THROWS_EXCEPTION(Error, pages.layOut(slip, nullptr));
}

/// The note, or its list, begins at every place of a page.
void tst_reports::headingsStandOnEveryPageOfALongNote()
{
    QStringList words;
    for (int i = 1; i <= 900; ++i)
        words << u"palavra%1"_s.arg(i);
    // in its cell, below the row, or in the first row of the list
    for (int place = 0; place < 45 * 3; place += place < 90 ? 3 : 1) {
        const bool below = place >= 45, first = place >= 90;
        const int before = place % 45;
        QList<QStringList> lines{{u"Data"_s, u"Descrição"_s, u"Documento"_s, u"Informações"_s}};
        for (int i = 1; i <= before && !first; ++i)
            lines << QStringList{u"22/11/2026"_s, u"Item"_s, u"NF"_s, u"curta"_s};
        lines << QStringList{u"22/11/2026"_s, u"Item"_s, u"longo"_s, words.join(u' ')};
        Report report = sample();
        report.filterText = first ? u"filtro\n"_s.repeated(before) : QString();
        report.tables = {table(lines)};
        const auto setup = below ? modimpressao::listPages(modimpressao::ListKind::ByDate, *report.tables[0])
                                 : modimpressao::PageSetup();
        const QStringList pages = pdfPages(modimpressao::document(report, setup));
        QString note;
        for (const QString &page : pages) {
            const QString headings =
                below ? u"\nDATA DESCRIÇÃO DOC. CLI/FORN\n"_s : u"\nData Descrição Documento Informações\n"_s;
            const qsizetype list = page.indexOf(headings);
            QVERIFY2(list > 0 || !page.contains(u"palavra"), qPrintable(page));
            if (list > 0) {
                QVERIFY2(page.sliced(list + headings.size()).count(u'\n') > 0, qPrintable(page));
                note += u'\n' + page.sliced(list + headings.size());
            }
        }
        QVERIFY2(!below || note.contains(u"\nInformações: palavra1 palavra2 "), qPrintable(note));
        QStringList printed = note.split(QRegularExpression(u"\\s"_s)).filter(u"palavra"_s);
        QCOMPARE(printed, words);
    }
}

void tst_reports::aLabelIsNotPartedFromItsValue()
{
    constexpr int rows = 160;
    QList<QStringList> lines{{u"Data"_s, u"Conta"_s, u"Valor"_s, u"Produto"_s, u"Informações"_s}};
    for (int i = 0; i < rows; ++i)
        lines << QStringList{u"22/11/2026"_s, QString(i + 1, u'm'), u"R$ 1.234,56"_s, u"um produto"_s,
                             u"nota longa "_s.repeated(15)};
    Report report = sample();
    report.tables = {table(lines)};
    modimpressao::PageSetup setup =
        modimpressao::listPages(modimpressao::ListKind::ByDate, *report.tables[0]);
    for (const bool share : {true, false}) {
        setup.rows.labelsShareLine = share;
        const QString text = pdfPages(modimpressao::document(report, setup)).join(u'\n');
        for (const QString &pair :
             {u"Conta: m"_s, u"Valor: R$ 1.234,56"_s, u"Produto: um produto"_s, u"Informações: nota longa"_s})
            QCOMPARE(text.count(pair), rows);
    }
}

void tst_reports::pagesNeedNoHeaderAndNoFooter()
{
    PageDocument document{.blocks = {PageText{.text = u"um"_s}, PageTable{longTable()}}};
    QStringList pages = pdfPages(document);
    QCOMPARE(pages.size(), 3);
    QVERIFY2(pages[0].startsWith(u"um\nRULE\nData "), qPrintable(pages[0]));
    QVERIFY2(pages[2].endsWith(u"\n22/11/2026 Item 120 - R$ 120,00"), qPrintable(pages[2]));

    document.header = {u"cabeçalho "_s.repeated(30)};
    document.footer = [](int page, int) { return u"rodapé "_s.repeated(40) + QString::number(page); };
    pages = pdfPages(document);
    QCOMPARE(pages[1].count(u"cabeçalho"_s), 30);
    QVERIFY2(pages[1].endsWith(u"rodapé 2"), qPrintable(pages[1]));
}

void tst_reports::screenSavesWhatItShows()
{
    Boxes boxes;
    const UrlCatcher opened;
    Report report = sample();
    report.tables = {
        table({{u"Descrição"_s, u"Valor"_s}, {u"Luz"_s, u"R$ 10,00"_s}, {u"Água"_s, u"R$ 9,00"_s}})};
    const std::unique_ptr<frmRelatorio> screen(frmRelatorio::open(report, nullptr, reportscreen::movement()));
    QCOMPARE(screen->objectName(), u"frmMovimento"_s);
    screen->findChild<ListView *>(u"lstrelatorio"_s)->table().sort(1, Qt::AscendingOrder);

    const QString path = m_program->file(u"r.txt"_s);
    boxes.chooseFile(path);
    boxes.answer(QMessageBox::Yes);
    screen->findChild<QPushButton *>(u"cmdtxt"_s)->click();
    QCOMPARE(
        boxes.seen().join(u'\n'),
        u"file | Salvar relatório em txt | Arquivo de texto(*.txt)\n"
        "question | Visualizar | Os dados foram salvos com sucesso para arquivo, deseja abrir o arquivo agora?"_s);
    QVERIFY(content(path).contains(u"Água       R$ 9,00   \nLuz        R$ 10,00  \n"_s));
    QCOMPARE(opened.urls, QList<QUrl>{QUrl::fromLocalFile(path)});

    QCOMPARE(boxes.unanswered(), QStringList());
}

void tst_reports::printingScreen()
{
    Boxes boxes;
    const QString path = m_program->file(u"r.pdf"_s);
    QString shown;
    boxes.drive([&](QDialog &screen) {
        QTRY_VERIFY(screen.findChild<QPrintPreviewWidget *>()->pageCount() == 3);
        shown = screen.findChild<QLabel *>(u"lblpagina"_s)->text();
        boxes.chooseFile(path);
        boxes.answer(QMessageBox::No);
        screen.findChild<QPushButton *>(u"cmdpdf"_s)->click();
    });
    Report report = sample();
    report.tables = {longTable()};
    exportar::print(nullptr, report);
    QCOMPARE(shown, u"Página 1 de 3"_s);
    QVERIFY(pdfText(path).contains(u"R$ 120,00"_s));
    boxes.seen();

    report.tables = {table({{u"Data"_s}})};
    exportar::print(nullptr, report);
    QCOMPARE(boxes.seen().join(u'\n'),
             u"critical | Impressão | Erro não previsto:\nNão há registros a imprimir"_s);
}

QTEST_MAIN(tst_reports)
#include "tst_reports.moc"
