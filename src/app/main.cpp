#include "app/application.h"
#include "app/frmprincipal.h"
#include "app/icons.h"
#include "settings/database.h"
#include "settings/programfolder.h"
#include "widgets/messages.h"

#include <QCommandLineParser>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    Application app(argc, argv);
    QApplication::setApplicationName(u"tavaro"_s);
    QGuiApplication::setDesktopFileName(u"br.com.tavaro.Tavaro"_s);
    QApplication::setApplicationVersion(QStringLiteral(TAVARO_VERSION));
    QTranslator texts;
    if (texts.load(u"qtbase_pt_BR"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&texts);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"Controle financeiro e de estoque"_s);
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption folder(u"pasta"_s, u"Pasta do programa, com o banco de dados."_s, u"PASTA"_s);
    parser.addOption(folder);
    parser.process(app);

    if (!messages::guarded(nullptr, messages::generalPrefix, [&] {
            programfolder::choose(parser.value(folder));
            chooseDatabase();
        }))
        return 1;
    icons::choose();
    frmPrincipal window;
    window.show();
    window.start();
    return window.isVisible() ? QApplication::exec() : 0; // it may have been closed while it was loading
}
