#include "app/frmconfigsoft.h"
#include "data/changes.h"
#include "settings/programfolder.h"
#include "settings/settings.h"
#include "support/boxes.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

class TestConfigSoft : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void loadingShowsTheDefaultsAndWritesNothing();
    void everyControlStoresAtOnce();
    void switchingAlertsOffKeepsThem();
    void networkDatabase();
    void aFailedSaveIsToldAndTakenBack();

private:
    template <typename Control>
    Control *control(const char *name) const
    {
        auto *found = m_screen->findChild<Control *>(QString::fromLatin1(name));
        Q_ASSERT(found);
        return found;
    }
    void open();
    /// What the screen shows, one control a line.
    QString shown() const;
    QString in(const QString &name) const { return m_folder->filePath(name); }
    QString stored() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<frmConfigSoft> m_screen;
};

void TestConfigSoft::init()
{
    m_screen.reset();
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("XDG_CONFIG_HOME", in(u"config"_s).toUtf8());
    settings::setFolder(in(u"config/tavaro"_s));
    QVERIFY(QDir().mkpath(in(u"programa"_s)));
    programfolder::choose(in(u"programa"_s));
}

void TestConfigSoft::open()
{
    m_screen = std::make_unique<frmConfigSoft>();
    m_screen->show();
}

QString TestConfigSoft::shown() const
{
    QStringList lines;
    for (const QCheckBox *box : m_screen->findChildren<QCheckBox *>())
        lines << box->objectName() + (box->isChecked() ? u" on"_s : u" off"_s);
    for (const QRadioButton *option : m_screen->findChildren<QRadioButton *>()) {
        if (option->isChecked())
            lines << option->objectName();
    }
    for (const QComboBox *box : m_screen->findChildren<QComboBox *>())
        lines << box->objectName() + u' ' + box->currentText();
    for (const QLineEdit *field : m_screen->findChildren<QLineEdit *>())
        lines << field->objectName() + u' ' + field->text();
    lines.sort();
    return lines.join(u'\n').replace(m_folder->path(), u"FOLDER"_s);
}

QString TestConfigSoft::stored() const
{
    QFile file(in(u"config/tavaro/Tavaro.ini"_s));
    return file.open(QIODevice::ReadOnly)
               ? QString::fromUtf8(file.readAll()).replace(m_folder->path(), u"FOLDER"_s)
               : u"no file"_s;
}

void TestConfigSoft::loadingShowsTheDefaultsAndWritesNothing()
{
    const QSignalSpy announced(&Changes::instance(), &Changes::changed);
    open();
    QCOMPARE(shown(), u"cbocorfonte Preto\ncbocorfundo1 Branco\ncbocorfundo2 Branco\ncboffonte Arial\n"
                      "cboftamanho 10\nchkalertavenc on\nchkatualizar on\nchkdica on\nchkiniciar off\n"
                      "chkrede off\noptasc\ntxtcaminho FOLDER/programa/dados.qorvex\ntxtnome Tavaro\n"
                      "txtslogan © Tavaro - controle financeiro e de estoque"_s);
    QVERIFY(!QFile::exists(in(u"config"_s)));
    QCOMPARE(announced.count(), 0);
}

void TestConfigSoft::everyControlStoresAtOnce()
{
    open();
    const QSignalSpy announced(&Changes::instance(), &Changes::changed);
    control<QCheckBox>("chkiniciar")->click();
    QVERIFY(QFile::exists(in(u"config/autostart/tavaro.desktop"_s)));
    control<QCheckBox>("chkatualizar")->click();
    control<QCheckBox>("chkdica")->click();
    control<QRadioButton>("optdesc")->click();
    QCOMPARE(settings::value(settings::viewOrder), u"DESC"_s);
    control<QRadioButton>("optasc")->click();
    control<QComboBox>("cboftamanho")->setCurrentText(u"14"_s);
    control<QComboBox>("cbocorfonte")->setCurrentText(u"Azul"_s);
    control<QComboBox>("cbocorfundo1")->setCurrentText(u"Preto"_s);
    control<QComboBox>("cbocorfundo2")->setCurrentText(u"Amarelo claro"_s);
    control<QComboBox>("cboffonte")->addItem(u"Outra fonte"_s);
    control<QComboBox>("cboffonte")->setCurrentText(u"Outra fonte"_s);
    QCOMPARE(announced.count(), 10);
    control<QLineEdit>("txtnome")->selectAll();
    QTest::keyClicks(control<QLineEdit>("txtnome"), u"Loja "_s);
    control<QLineEdit>("txtslogan")->clear();
    QCOMPARE(announced.count(), 16);
    QCOMPARE(announced.at(0).at(0).value<Change>().subject, Subject::Settings);
    QCOMPARE(stored(),
             u"[Configurações]\nIniciar=1\nAtualizarSaldo=0\nOrdem=ASC\nTamanhoFonte=14\n"
             "Corfonte=&HA14D1B\nCorescolhidafonte=10\nCorFundo1=0\nCorescolhida=9\nCorFundo2=&HD0F7FF\n"
             "Corescolhida2=2\nFontenome=Outra fonte\n\n"
             "[configuracoes]\nExibir dica do dia=0\n\n"
             "[Configurações\\relatorio]\nnome=Loja \nslogan=\n"_s);
    const QString before = shown();
    open();
    QCOMPARE(shown(), before);
}

void TestConfigSoft::switchingAlertsOffKeepsThem()
{
    open();
    control<QCheckBox>("chkalertavenc")->click();
    QCOMPARE(stored(), u"[Configurações]\nAertasVencimento=0\n"_s);
    QVERIFY(settings::isOn(settings::dueAlerts));
    control<QCheckBox>("chkalertavenc")->click();
    QCOMPARE(stored(), u"[Configurações]\nAertasVencimento=0\nAlertasVencimento=1\n"_s);
}

void TestConfigSoft::networkDatabase()
{
    settings::setValue(settings::databasePath, u"/rede/dados.qorvex"_s);
    open();
    const auto clicked = [&] {
        control<QCheckBox>("chkrede")->click();
        return stored().section(u'\n', 1, 2);
    };
    QCOMPARE(clicked(), u"RedeLocal=/rede/dados.qorvex\nEmRede=1"_s);
    QCOMPARE(clicked(), u"RedeLocal=SemRede\nEmRede=0"_s);
    QCOMPARE(clicked(), u"RedeLocal=FOLDER/programa/dados.qorvex\nEmRede=1"_s);
    QVERIFY(QFile(in(u"outro.qorvex"_s)).open(QIODevice::WriteOnly));
    Boxes boxes;
    for (const QString &chosen : {QString(), in(u"outro.qorvex"_s)}) {
        QVERIFY(stored().contains(u"RedeLocal=FOLDER/programa/dados.qorvex\n"));
        boxes.chooseFile(chosen);
        control<QPushButton>("cmdlocal")->click();
        QCOMPARE(boxes.seen().join(u'\n'), u"file | Abrir Banco de dados em rede | "
                                           "Arquivos de Banco de dados do software (*.qorvex)"_s);
    }
    QVERIFY(stored().contains(u"RedeLocal=FOLDER/outro.qorvex\nEmRede=1\n"));
    QCOMPARE(control<QLineEdit>("txtcaminho")->text(), in(u"outro.qorvex"_s));
}

void TestConfigSoft::aFailedSaveIsToldAndTakenBack()
{
    QVERIFY(QDir().mkpath(in(u"config/tavaro/Tavaro.ini"_s))); // a folder in the file's place
    open();
    const QSignalSpy announced(&Changes::instance(), &Changes::changed);
    const QString before = shown();
    Boxes boxes;
    for (const char *name : {"chkiniciar", "chkalertavenc", "optdesc", "cboffonte", "txtnome"}) {
        auto *changed = control<QWidget>(name);
        if (auto *button = qobject_cast<QAbstractButton *>(changed))
            button->click();
        else if (auto *box = qobject_cast<QComboBox *>(changed))
            box->setCurrentIndex(box->currentIndex() == 0 ? 1 : 0);
        else
            QTest::keyClick(changed, Qt::Key_X);
        const QString told = boxes.seen().join(u'\n');
        QVERIFY2(told.startsWith(
                     u"critical | Erro | Ocorreu o seguinte erro: Não foi possível gravar o arquivo"_s) &&
                     !told.contains(u'\n'),
                 qPrintable(QLatin1StringView(name) + u": "_s + told));
        QCOMPARE(shown(), before);
    }
    QCOMPARE(announced.count(), 0);
}

QTEST_MAIN(TestConfigSoft)
#include "tst_configsoft.moc"
