#include "demodata.h"

#include "data/clock.h"
#include "data/connection.h"
#include "data/dates.h"
#include "data/schema.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QTemporaryDir>
#include <QTranslator>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void print(FILE *stream, const QString &text)
{
    std::fputs(qUtf8Printable(text + u'\n'), stream);
}

[[noreturn]] void refuse(const QString &text)
{
    throw Error(Error::Kind::Data, text);
}

/// A whole number from `low` to `high` given for an option.
qint64 number(const QCommandLineParser &parser, const QString &option, qint64 low, qint64 high)
{
    bool understood = false;
    const qint64 value = parser.value(option).toLongLong(&understood);
    if (!understood || value < low || value > high)
        refuse(u"A opção --%1 pede um número inteiro de %2 a %3."_s.arg(option).arg(low).arg(high));
    return value;
}

void addOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        u"Cria arquivos de banco de dados do Tavaro.\n\n"
        "  criar ARQUIVO   cria o banco de dados vazio, como é entregue\n"
        "  demo  ARQUIVO   cria um banco de dados com três anos de uma pequena loja fictícia\n\n"
        "Um arquivo que já existe nunca é alterado."_s);
    const auto option = [&parser](const QString &name, const QString &text, const QString &value,
                                  const QString &standard) {
        parser.addOption(QCommandLineOption(name, text, value, standard));
    };
    option(u"entradas"_s, u"demo: contas a pagar e a receber, metade de cada (600)."_s, u"N"_s, u"600"_s);
    option(u"movimentos"_s, u"demo: movimentos bancários (um décimo das entradas)."_s, u"N"_s, QString());
    option(u"contas"_s, u"demo: caixas e bancos (6)."_s, u"N"_s, u"6"_s);
    option(u"contatos"_s, u"demo: clientes e fornecedores ao todo (90)."_s, u"N"_s, u"90"_s);
    option(u"semente"_s, u"demo: a mesma semente dá os mesmos dados (1)."_s, u"N"_s, u"1"_s);
    option(u"hoje"_s, u"demo: o dia em torno do qual os dados são feitos (hoje)."_s, u"aaaa-mm-dd"_s,
           QString());
    parser.addOption(QCommandLineOption({u"h"_s, u"help"_s, u"ajuda"_s}, u"Mostra este texto."_s));
    parser.addPositionalArgument(u"comando"_s, u"criar ou demo."_s, u"criar|demo"_s);
    parser.addPositionalArgument(u"arquivo"_s, u"O arquivo a criar, como dados.qorvex."_s, u"ARQUIVO"_s);
}

DemoOptions demoOptions(const QCommandLineParser &parser)
{
    constexpr qint64 most = 1'000'000'000;
    DemoOptions options;
    options.entries = number(parser, u"entradas"_s, 0, most);
    options.movements =
        parser.isSet(u"movimentos"_s) ? number(parser, u"movimentos"_s, 0, most) : options.entries / 10;
    options.accounts = number(parser, u"contas"_s, 1, 10'000);
    options.contacts = number(parser, u"contatos"_s, 2, 10'000'000);
    options.seed = quint64(number(parser, u"semente"_s, 0, most));
    options.today = programclock::today();
    if (parser.isSet(u"hoje"_s)) {
        options.today = QDate::fromString(parser.value(u"hoje"_s), Qt::ISODate);
        if (!options.today.isValid())
            refuse(u"A opção --hoje pede uma data no formato aaaa-mm-dd."_s);
    }
    return options;
}

/// Makes the file in a folder of its own beside `path` and moves it into place once it is complete, so that a
/// failure leaves nothing half-made behind.
void createDemo(const QString &path, const DemoOptions &options)
{
    QTemporaryDir folder(QFileInfo(path).absolutePath() + u"/.tavaro-banco-XXXXXX"_s);
    if (!folder.isValid())
        throw Error(Error::Kind::File, u"Não é possível gravar na pasta de \"%1\"."_s.arg(path));
    const QString draft = folder.filePath(u"dados"_s);
    schema::createFile(draft);
    fillDemo(*Connection::open(draft, schema::password.toString()), options);
    if (!QFile::rename(draft, path))
        throw Error(Error::Kind::File, u"Não foi possível criar o arquivo \"%1\"."_s.arg(path));
}

void run(const QCommandLineParser &parser)
{
    const QStringList arguments = parser.positionalArguments();
    if (arguments.size() != 2)
        refuse(u"Informe o comando (criar ou demo) e o arquivo; veja --help."_s);
    const QString &command = arguments[0];
    const QString &path = arguments[1];
    if (command != u"criar" && command != u"demo")
        refuse(u"Comando desconhecido: \"%1\"; veja --help."_s.arg(command));
    if (QFileInfo::exists(path) || QFileInfo(path).isSymLink())
        throw Error(Error::Kind::File, u"O arquivo \"%1\" já existe e não foi alterado."_s.arg(path));
    if (command == u"criar") {
        schema::createFile(path);
        return;
    }
    const DemoOptions options = demoOptions(parser);
    createDemo(path, options);
    print(stdout,
          u"%1: %2 contas a pagar e a receber, %3 movimentos, %4 contatos, %5 caixas e bancos."_s.arg(path)
              .arg(options.entries)
              .arg(options.movements)
              .arg(options.contacts)
              .arg(options.accounts));
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QTranslator translator; // for the parser's own texts
    if (translator.load(u"qtbase_pt_BR"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&translator);
    QCommandLineParser parser;
    addOptions(parser);
    try {
        if (!parser.parse(QCoreApplication::arguments()))
            refuse(parser.errorText());
        if (parser.isSet(u"help"_s))
            print(stdout, parser.helpText().trimmed());
        else
            run(parser);
    } catch (const Error &error) {
        print(stderr, u"tavaro-banco: "_s + error.text());
        return 1;
    }
    return 0;
}
