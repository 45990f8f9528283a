// A report as a file, without a window: tavaro-relatorio NOME --saida ARQUIVO [--de DATA --ate DATA] …

#include "analysis/reportcatalog.h"
#include "data/clock.h"
#include "data/dates.h"
#include "data/schema.h"
#include "lists/spreadsheet.h"
#include "reports/modimpressao.h"
#include "reports/reporttext.h"
#include "settings/database.h"
#include "settings/programfolder.h"
#include "widgets/documentpages.h"
#include "widgets/pageprinter.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

enum ExitCode { Done = 0, Failed = 1, WrongUse = 2, NothingFound = 3 };

void say(FILE *stream, const QString &text)
{
    std::fputs(qUtf8Printable(text + u'\n'), stream);
}

[[noreturn]] void refuse(const QString &text)
{
    throw Error(Error::Kind::Data, text);
}

QString listOfReports()
{
    QString text = u"Relatórios ([d] aceita --de e --ate, [n] pede --nome):\n"_s;
    for (const reportcatalog::Entry &entry : reportcatalog::all()) {
        using reportcatalog::Needs;
        const bool dates = entry.needs == Needs::Dates || entry.needs == Needs::NameAndDates;
        const bool name = entry.needs == Needs::Name || entry.needs == Needs::NameAndDates;
        text += u"  %1 %2%3 %4\n"_s.arg(entry.name.leftJustified(26), dates ? u"[d]"_s : u"   "_s,
                                        name ? u"[n]"_s : u"   "_s, entry.title);
    }
    return text;
}

QDate day(const QCommandLineParser &parser, const QString &option)
{
    if (!parser.isSet(option))
        return {};
    const QString text = parser.value(option);
    QDate date = QDate::fromString(text, Qt::ISODate);
    if (!date.isValid())
        date = dates::read(text);
    if (!date.isValid())
        refuse(u"A data --%1 não existe: \"%2\". Escreva aaaa-mm-dd ou dd/mm/aaaa."_s.arg(option, text));
    return date;
}

void saveRows(const QString &path, const Report &report, const QString &ending)
{
    if (report.tables.empty())
        refuse(u"Este relatório não tem linhas para uma planilha; salve-o em .txt, .html ou .pdf."_s);
    // The longest list is what a spreadsheet is for.
    const auto longest = std::ranges::max_element(
        report.tables, {}, [](const std::shared_ptr<const TableSource> &table) { return table->rowCount(); });
    if (ending == u"csv")
        spreadsheet::saveCsv(path, **longest, nullptr);
    else
        spreadsheet::saveXlsx(path, report.title, **longest, nullptr);
}

void savePdf(const QString &path, const Report &report)
{
    DocumentPages pages(modimpressao::document(report));
    QPageLayout paper(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(15, 15, 15, 15),
                      QPageLayout::Millimeter);
    paper.setOrientation(pages.fittingOrientation(paper));
    pageprinter::savePdf(path, pages, paper, nullptr);
}

void save(const QString &path, const Report &report)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    if (ending == u"txt")
        reporttext::saveText(path, report, nullptr);
    else if (ending == u"html")
        reporttext::saveHtml(path, report, nullptr);
    else if (ending == u"csv" || ending == u"xlsx")
        saveRows(path, report, ending);
    else if (ending == u"pdf")
        savePdf(path, report);
    else
        refuse(u"O arquivo de saída deve terminar em .txt, .html, .csv, .xlsx ou .pdf."_s);
}

void addOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        u"Salva um relatório do Tavaro em um arquivo, sem abrir janela.\n\n"_s + listOfReports() +
        u"\nTermina com 0 quando o arquivo foi salvo, 1 quando algo falhou, 2 quando o comando está errado e "
        "3 quando não há dados."_s);
    const auto option = [&parser](const QString &name, const QString &text, const QString &value) {
        parser.addOption(QCommandLineOption(name, text, value));
    };
    option(u"saida"_s, u"Arquivo: .txt, .html, .csv, .xlsx ou .pdf. Um que já existe é substituído."_s,
           u"ARQUIVO"_s);
    option(u"de"_s, u"Primeiro dia: aaaa-mm-dd ou dd/mm/aaaa."_s, u"DATA"_s);
    option(u"ate"_s, u"Último dia."_s, u"DATA"_s);
    option(u"nome"_s, u"Cliente, fornecedor, centro, conta ou forma de pagamento."_s, u"NOME"_s);
    option(u"hoje"_s, u"O dia que vale por hoje (hoje)."_s, u"DATA"_s);
    option(u"pasta"_s, u"Pasta do programa, com o banco de dados."_s, u"PASTA"_s);
    option(u"banco"_s, u"Arquivo do banco de dados, se não for o da pasta ou o das configurações."_s,
           u"ARQUIVO"_s);
    parser.addOption(QCommandLineOption({u"h"_s, u"help"_s, u"ajuda"_s}, u"Mostra este texto."_s));
    parser.addPositionalArgument(u"NOME"_s, u"O relatório."_s);
}

std::shared_ptr<Connection> database(const QCommandLineParser &parser)
{
    if (parser.isSet(u"banco"_s))
        return Connection::openForReading(parser.value(u"banco"_s), schema::password.toString());
    programfolder::choose(parser.value(u"pasta"_s));
    chooseDatabase();
    return Connection::openForReading(databasePath(), schema::password.toString());
}

ExitCode run(const QCommandLineParser &parser)
{
    const QStringList names = parser.positionalArguments();
    const reportcatalog::Entry *entry = names.size() == 1 ? reportcatalog::find(names[0]) : nullptr;
    if (!entry || !parser.isSet(u"saida"_s)) {
        say(stderr, !entry ? u"Diga o nome de um relatório; --ajuda mostra todos."_s
                           : u"Diga o arquivo de saída: --saida ARQUIVO."_s);
        return WrongUse;
    }
    reportcatalog::Request request;
    try {
        request = {day(parser, u"de"_s), day(parser, u"ate"_s), parser.value(u"nome"_s),
                   day(parser, u"hoje"_s)};
        if (const auto problem = reportcatalog::problem(*entry, request))
            refuse(*problem);
    } catch (const Error &error) {
        say(stderr, error.text());
        return WrongUse;
    }
    if (!request.today.isValid())
        request.today = programclock::today();
    const std::optional<Report> report = entry->read(*database(parser), request);
    if (!report) {
        say(stderr, u"Não há dados para este relatório."_s);
        return NothingFound;
    }
    save(parser.value(u"saida"_s), *report);
    return Done;
}

} // namespace

int main(int argc, char *argv[])
{
    // A cron job has no desktop, which is no news to anybody.
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        qputenv("QT_LOGGING_RULES", "default.warning=false");
    qputenv("QT_QPA_PLATFORM", "offscreen"); // letters are measured, but nothing is shown
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    const QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName(u"tavaro"_s);
    QTranslator texts;
    if (texts.load(u"qtbase_pt_BR"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&texts);
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(QCoreApplication::arguments())) {
        say(stderr, parser.errorText());
        return WrongUse;
    }
    if (parser.isSet(u"ajuda"_s)) {
        say(stdout, parser.helpText());
        return Done;
    }
    try {
        return run(parser);
    } catch (const Error &error) {
        say(stderr, error.text());
        return Failed;
    }
}
