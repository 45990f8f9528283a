#include "bank/movementlist.h"
#include "data/error.h"
#include "settings/autostart.h"
#include "settings/inifile.h"
#include "settings/listlayout.h"
#include "settings/programfolder.h"
#include "settings/settings.h"
#include "support/answers.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

class TestSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void keysAreFoundInAnyLetterCase();
    void anyTextComesBack();
    void theFileIsTheOwnersOnly();
    void anotherProgramsChangeIsSeenAndKept();
    void twoProgramsWritingAtOnceLoseNothing();
    void anUnwritableFolderIsReportedAndChangesNothing();
    void foreignFilesAreRead();
    void layoutsComeBack();
    void brokenLayoutsGiveDefaults();
    void startWithTheSystem();
    void registryPathsAreChecked();
    void userFolderIsFilledOnce();

private:
    QString in(const QString &name) const { return m_folder->filePath(name); }
    static void put(const QString &path, const QByteArray &bytes);
    static QByteArray bytes(const QString &path);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TestSettings::init()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CONFIG_HOME", in(u"config"_s).toUtf8());
    qputenv("XDG_DATA_HOME", in(u"data"_s).toUtf8());
    settings::setFolder(in(u"config/tavaro"_s));
    QVERIFY(QDir().mkpath(in(u"programa"_s)));
    programfolder::choose(in(u"programa"_s));
}

void TestSettings::put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray TestSettings::bytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file");
}

void TestSettings::keysAreFoundInAnyLetterCase()
{
    settings::write(u"Tavaro"_s, u"Configurações"_s, u"VisualizarDadosbancario"_s, u"2"_s);
    QCOMPARE(settings::value(settings::bankViewPeriod), u"2"_s);
    settings::setFolder(in(u"config/tavaro"_s)); // read from the file, not from memory
    checkAnswers(u"TAVARO,CONFIGURAÇÕES -> 2 ; Tavaro,configuracoes -> 0 ; Adm Tavaro,Configurações -> 0"_s,
                 [](const QString &asked) {
                     return settings::read(asked.section(u',', 0, 0), asked.section(u',', 1),
                                           u"visualizardadosBANCARIO"_s, u"0"_s);
                 });
}

void TestSettings::anyTextComesBack()
{
    for (const QString &text : {u""_s, u"  Loja da Ana  "_s, u"um\ndois\r\ntrês"_s,
                                u"\\\\servidor\\nova\\rede\\"_s, u"[a]=b;c#d"_s, u"ação €😀"_s}) {
        settings::setValue(settings::companyName, text);
        settings::setFolder(in(u"config/tavaro"_s));
        QCOMPARE(settings::value(settings::companyName), text);
    }
}

void TestSettings::theFileIsTheOwnersOnly()
{
    settings::setValue(settings::viewOrder, u"DESC"_s);
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                        QFile::WriteOther | QFile::ExeOther;
    QVERIFY(!(QFile::permissions(in(u"config/tavaro"_s)) & others));
    QVERIFY(!(QFile::permissions(in(u"config/tavaro/Tavaro.ini"_s)) & others));
    QVERIFY(QFile::setPermissions(in(u"config/tavaro/Tavaro.ini"_s), QFile::ReadOwner | others));
    settings::setValue(settings::viewOrder, u"ASC"_s);
    QVERIFY(!(QFile::permissions(in(u"config/tavaro/Tavaro.ini"_s)) & others));
    QCOMPARE(QDir(in(u"config/tavaro"_s)).entryList(QDir::Files | QDir::Hidden), {u"Tavaro.ini"_s});
}

void TestSettings::anotherProgramsChangeIsSeenAndKept()
{
    settings::setValue(settings::viewOrder, u"DESC"_s);
    IniFile other(in(u"config/tavaro/Tavaro.ini"_s));
    for (const QString &font : {u"Courier"_s, u"Times"_s}) {
        other.setValue(u"configurações"_s, u"fontenome"_s, font);
        other.save();
        QCOMPARE(settings::value(settings::fontName), font);
    }
    settings::setValue(settings::fontSize, u"12"_s);
    const IniFile onDisk(other.path());
    QCOMPARE(onDisk.value(u"Configurações"_s, u"Fontenome"_s, {}) +
                 onDisk.value(u"Configurações"_s, u"TamanhoFonte"_s, {}) +
                 onDisk.value(u"Configurações"_s, u"Ordem"_s, {}),
             u"Times12DESC"_s);
    QVERIFY(QFile::remove(other.path()));
    QCOMPARE(settings::value(settings::fontName), u"Arial"_s);
}

void TestSettings::twoProgramsWritingAtOnceLoseNothing()
{
    constexpr int programs = 3, keys = 25;
    const auto key = [](int program, int i) { return u"%1-%2"_s.arg(program).arg(i); };
    for (int program = 0; program < programs; ++program) {
        if (fork() != 0)
            continue;
        for (int i = 0; i < keys; ++i)
            settings::write(u"Tavaro"_s, u"x"_s, key(program, i), u"1"_s);
        _exit(0);
    }
    for (int status = -1, program = 0; program < programs; ++program)
        QVERIFY(wait(&status) > 0 && status == 0);
    for (int program = 0; program < programs; ++program)
        for (int i = 0; i < keys; ++i)
            QCOMPARE(settings::read(u"Tavaro"_s, u"x"_s, key(program, i), u"lost"_s), u"1"_s);
}

void TestSettings::anUnwritableFolderIsReportedAndChangesNothing()
{
    put(in(u"config"_s), "a file where the folder should be");
    QVERIFY_THROWS_EXCEPTION(Error, settings::setValue(settings::viewOrder, u"DESC"_s));
    QCOMPARE(settings::value(settings::viewOrder), u"ASC"_s);

    // A folder in the file's place makes the last step of a save fail.
    settings::setFolder(in(u"other"_s));
    QVERIFY(QDir().mkpath(in(u"other/Tavaro.ini/x"_s)));
    QVERIFY_THROWS_EXCEPTION(Error, settings::setValue(settings::viewOrder, u"DESC"_s));
    QCOMPARE(settings::value(settings::viewOrder), u"ASC"_s);
    QCOMPARE(QDir(in(u"other"_s)).entryList(QDir::Files | QDir::Hidden), QStringList());
}

void TestSettings::foreignFilesAreRead()
{
    for (const QByteArray bytes :
         {"[TAMANHO]\r\ndescri\xE7\xE3o=1319,8111\r\n", // Latin-1
          "\xEF\xBB\xBF[tamanho]\ndescrição=1319,8111", // UTF-8 with a mark
          "; TAMANHO\nrubbish\n\n [TAMANHO] \n#DESCRIÇÃO=1\n=2\n DESCRIÇÃO =1319,8111\n",
          "[TAMANHO]\ndescrição=1319,8111\nDESCRIÇÃO=3\n[x]\n[tamanho]\ndescrição=4\n"}) {
        put(in(u"a.ini"_s), bytes);
        QCOMPARE(IniFile(in(u"a.ini"_s)).value(u"Tamanho"_s, u"Descrição"_s, u"default"_s), u"1319,8111"_s);
    }
}

void TestSettings::layoutsComeBack()
{
    ListLayout layout = listlayout::load(movementlist::layoutFile());
    put(in(u"programa/bancario.ini"_s), "; nota\n[TAMANHO]\ndata=1319,81110\n");
    listlayout::save(movementlist::layoutFile(), layout); // nothing was changed
    QVERIFY(bytes(in(u"programa/bancario.ini"_s)).startsWith("; nota"));
    QVERIFY(QFile::remove(in(u"programa/bancario.ini"_s)));
    layout.widths.at(2) = 1234.5;
    std::swap(layout.positions.at(1), layout.positions.at(7));
    listlayout::save(movementlist::layoutFile(), layout);
    QCOMPARE(bytes(in(u"programa/bancario.ini"_s)),
             QByteArray("[TAMANHO]\nid=0\ndata=1319,8111\ntipo=1234,5\norigem=2140,1575\ndestino=2140,1575\n"
                        "valor=1339,6536\nestatus=1340,2206\ninfo=2839,7483\n\n"
                        "[POSICAO]\nposicao1=1\nposicao2=8\nposicao3=3\nposicao4=4\nposicao5=5\nposicao6=6\n"
                        "posicao7=7\nposicao8=2\n"));
    QCOMPARE(listlayout::load(movementlist::layoutFile()).positions, layout.positions);
}

void TestSettings::brokenLayoutsGiveDefaults()
{
    put(in(u"programa/bancario.ini"_s), "[tamanho]\r\nDATA= 900,5\r\ntipo=abc\r\norigem=-5\r\ndestino=nan\r\n"
                                        "valor=1e99\r\nestatus=\r\n[posicao]\r\nposicao1=2\r\n");
    const ListLayout layout = listlayout::load(movementlist::layoutFile());
    QCOMPARE(layout.widths, std::vector<double>({0, 900.5, 2940.0948, 2140.1575, 2140.1575, 1339.6536,
                                                 1340.2206, 2839.7483}));
    QCOMPARE(layout.positions, std::vector<int>({1, 2, 3, 4, 5, 6, 7, 8}));
}

void TestSettings::startWithTheSystem()
{
    const QString odd = in(u"Meus 100% \"bons\" $dados"_s);
    QVERIFY(QDir().mkpath(odd));
    programfolder::choose(odd);
    QCOMPARE(autostart::setEnabled(true), QString());
    const QString path = in(u"config/autostart/tavaro.desktop"_s);
    QByteArray expected =
        "[Desktop Entry]\nType=Application\nName=Tavaro\nComment=Controle financeiro e de estoque\n"
        "Exec=\"PROGRAM\" --pasta \"FOLDER/Meus 100%% \\\\\"bons\\\\\" \\\\$dados\"\nHidden=false\n";
    expected.replace("PROGRAM", QCoreApplication::applicationFilePath().toUtf8());
    expected.replace("FOLDER", m_folder->path().toUtf8());
    QCOMPARE(bytes(path), expected);
    QCOMPARE(autostart::setEnabled(false), QString());
    QVERIFY(!settings::isOn(settings::startWithSystem));
    QVERIFY(bytes(path).contains("Hidden=true") && !bytes(path).contains("--pasta"));
    // The setting is saved although the value cannot be written.
    QVERIFY(QFile::remove(path) && QDir().mkpath(path + u"/x"_s));
    QCOMPARE(autostart::setEnabled(true), u"Can't Write Key"_s);
    QVERIFY(settings::isOn(settings::startWithSystem));
}

void TestSettings::registryPathsAreChecked()
{
    checkAnswers(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Other -> Can't Open Key ; HKEY_USERS -> Can't Open Key\n"
                 "HKEY_OTHER\\SOFTWARE -> Incorrect Format:HKEY_OTHER\\SOFTWARE\n"
                 "HKEY_LOCAL_MACHINE\\software\\microsoft\\windows\\currentversion\\run -> written"_s,
                 [&](const QString &path) {
                     const QString problem = autostart::writeValue(path, u"Corvel"_s, u"x"_s);
                     const bool written = QFile::exists(in(u"config/autostart/tavaro.desktop"_s));
                     return written == problem.isEmpty() && written ? u"written"_s : problem;
                 });
}

void TestSettings::userFolderIsFilledOnce()
{
    const QString delivered = in(u"delivered"_s);
    QVERIFY(QDir().mkpath(delivered + u"/sub"_s));
    for (const QString &name : {u"/dados.qorvex"_s, u"/dicas.txt"_s, u"/tavaro"_s})
        put(delivered + name, "delivered");
    QVERIFY(QFile::setPermissions(delivered + u"/dados.qorvex"_s, QFile::ReadOwner | QFile::ReadOther));
    QVERIFY(QFile::setPermissions(delivered + u"/tavaro"_s, QFile::ReadOwner | QFile::ExeOwner));
    const QDir folder(programfolder::userFolder(delivered));
    QCOMPARE(folder.path(), in(u"data/tavaro"_s));
    QCOMPARE(folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
             QStringList({u"dados.qorvex"_s, u"dicas.txt"_s}));
    QVERIFY(QFile::permissions(folder.filePath(u"dados.qorvex"_s)) & QFile::WriteOwner);

    put(folder.filePath(u"dicas.txt"_s), "my tips");
    QVERIFY(QFile::remove(folder.filePath(u"dados.qorvex"_s)));
    put(delivered + u"/fundo.gif"_s, "picture");
    QCOMPARE(programfolder::userFolder(delivered), folder.path());
    QCOMPARE(bytes(folder.filePath(u"dicas.txt"_s)) + bytes(folder.filePath(u"fundo.gif"_s)),
             "my tipspicture");
    QVERIFY(!QFile::exists(folder.filePath(u"dados.qorvex"_s)));
}

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"
