#include "app/helpkey.h"
#include "bank/accounts.h"
#include "support/desktop.h"
#include "support/paper.h"
#include "support/shop.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QDirIterator>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

void closeAll(const Shop &shop)
{
    for (QDialog *dialog : shop.window->findChildren<QDialog *>())
        if (dialog->isWindow())
            dialog->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

int shownDialogs(const Shop &shop)
{
    int count = 0;
    for (const QDialog *dialog : shop.window->findChildren<QDialog *>())
        count += dialog->isVisible() && dialog->isWindow();
    return count;
}

/// The controls on the screen that say nothing to somebody who cannot see them.
QStringList namelessControls()
{
    QStringList nameless;
    for (QWidget *control : QApplication::allWidgets()) {
        const bool takesInput =
            qobject_cast<QLineEdit *>(control) || qobject_cast<QComboBox *>(control) ||
            qobject_cast<QAbstractButton *>(control) || qobject_cast<QAbstractItemView *>(control) ||
            qobject_cast<QPlainTextEdit *>(control) || qobject_cast<QTextEdit *>(control) ||
            qobject_cast<QAbstractSpinBox *>(control);
        const QObject *parent = control->parentWidget(); // what a control is made of speaks through it
        const bool isPart =
            qobject_cast<const QComboBox *>(parent) || qobject_cast<const QAbstractSpinBox *>(parent) ||
            qobject_cast<const QLineEdit *>(parent) || qobject_cast<const QTabBar *>(parent) ||
            control->objectName().startsWith(u"qt_"_s) || qobject_cast<QHeaderView *>(control) ||
            qobject_cast<const QAbstractScrollArea *>(parent) || qobject_cast<const QMenuBar *>(parent) ||
            control->inherits("QToolBarExtension");
        if (!takesInput || isPart || !control->isVisible())
            continue;
        const QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(control);
        if (!spoken || spoken->text(QAccessible::Name).trimmed().isEmpty())
            nameless << QLatin1StringView(control->window()->metaObject()->className()) + u'.' +
                            control->objectName();
    }
    nameless.removeDuplicates();
    return nameless;
}

/// The commands of the menus that open screens.
QList<QAction *> reportCommands(const Shop &shop)
{
    QList<QAction *> commands;
    for (const QMenu *menu : shop.window->findChildren<QMenu *>())
        for (QAction *action : menu->actions())
            if (menu->objectName().startsWith(u"mnu"_s) && !menu->objectName().startsWith(u"mnueditar"_s) &&
                !action->menu() && !action->isSeparator() && !action->isCheckable())
                commands << action;
    return commands;
}

} // namespace

class tst_menus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCommandShowsSomething_data();
    void everyCommandShowsSomething();
    void buttonsDoWhatTheMenuDoes();
    void helpIsAboutTheScreen();
};

void tst_menus::everyCommandShowsSomething_data()
{
    QTest::addColumn<bool>("empty");
    QTest::newRow("without data") << true;
    QTest::newRow("with a little of everything") << false;
}

/// A screen or a message; no entry leads nowhere, and none has another's letter in its menu.
void tst_menus::everyCommandShowsSomething()
{
    QFETCH(bool, empty);
    Shop shop;
    if (!empty)
        shop.program.database().executeNative(
            "INSERT INTO banco VALUES ('Caixa', '1,00', ' ');INSERT INTO produto VALUES ('P', 1, '1', ' ');"
            "INSERT INTO pcontapagar VALUES ('Luz');INSERT INTO pcontareceber VALUES ('Venda');"
            "INSERT INTO pagar (estatus, data, vencimento, valor, moeda, origem, descricao, produto, qtde) "
            "VALUES ('Pendente', '2026/11/14', '2026/11/14', '1,00', 'R$', 'Caixa', 'Luz', 'P', '1');"
            "INSERT INTO receber (estatus, data, vencimento, valor, moeda, origem, descricao) VALUES "
            "('Concluído', '2026/11/14', '14/11/2026', '2,00', 'R$', 'Caixa', 'Venda');"
            "INSERT INTO bancario (estatus, data, movimento, origem, destino, valor) VALUES ('Concluído', "
            "'2026/11/14', 'Depósito', 'Caixa', ' - ', '3,00')");
    shop.open();
    // The window itself, other programs, and what tst_access tries.
    const QStringList silent{u"mnuviscaixabanco"_s, u"mnuatualizarlistas"_s, u"mnucalc"_s,
                             u"mnunotepad"_s,       u"mnumanual"_s,          u"mnusair"_s,
                             u"mnubloquearsoft"_s};
    const QList<QAction *> commands = reportCommands(shop);
    QVERIFY(commands.size() > 80);
    QStringList nameless;
    for (QAction *command : commands) {
        if (silent.contains(command->objectName()))
            continue;
        command->trigger();
        nameless += namelessControls();
        const bool told = !shop.told().isEmpty();
        QVERIFY2(told || shownDialogs(shop) > 0, qPrintable(command->objectName()));
        QVERIFY2(!told || empty || shownDialogs(shop) == 0, qPrintable(command->objectName()));
        closeAll(shop);
    }
    nameless.removeDuplicates();
    QCOMPARE(nameless.join(u'\n'), QString());
    for (const QMenu *menu : shop.window->findChildren<QMenu *>()) {
        QStringList letters;
        for (const QAction *action : menu->actions())
            if (const qsizetype at = action->text().indexOf(u'&'); at >= 0)
                letters << action->text().sliced(at + 1, 1).toLower();
        QStringList different = letters;
        different.removeDuplicates();
        QCOMPARE(menu->objectName() + u": "_s + letters.join(u' '),
                 menu->objectName() + u": "_s + different.join(u' '));
    }
}

void tst_menus::buttonsDoWhatTheMenuDoes()
{
    Shop shop;
    accounts::add(shop.program.database(), {u"Caixa"_s, u"10"_s, u""_s});
    shop.open();
    const QMap<QString, QString> shown{{u"retpagar"_s, u"frmConfRelatorio"_s},
                                       {u"retreceber"_s, u"frmConfRelatorio"_s},
                                       {u"retbancario"_s, u"frmConfRelatorio"_s},
                                       {u"retclientes"_s, u"frmConfRelatorio2"_s},
                                       {u"retfornecedores"_s, u"frmConfRelatorio2"_s},
                                       {u"grapagar"_s, u"frmConfGrafico"_s},
                                       {u"grareceber"_s, u"frmConfGrafico"_s},
                                       {u"grabancario"_s, u"frmConfGrafico"_s},
                                       {u"cmdmesp"_s, u"frmPorMes"_s},
                                       {u"cmdmesr"_s, u"frmPorMes"_s},
                                       {u"cmdprojecaop"_s, u"frmProjecao"_s},
                                       {u"cmdprojecoesr"_s, u"frmProjecao"_s},
                                       {u"cmdhistoricocli"_s, u"frmFinCli"_s},
                                       {u"cmdhistoricoforn"_s, u"frmFinForn"_s},
                                       {u"cmdconfbanc"_s, u"frmconfextrato"_s}};
    for (const auto &[command, screen] : shown.asKeyValueRange()) {
        shop.command(command);
        QVERIFY2(shop.screen(screen), qPrintable(command));
        closeAll(shop);
    }
    for (const QString &key : {u"estpagar"_s, u"estreceber"_s, u"estbancario"_s}) {
        shop.command(key);
        QVERIFY2(shop.told().startsWith(u"information | Info | Não há dados"_s), qPrintable(key));
    }
}

/// F1 in every screen leads to a section that the manual has.
void tst_menus::helpIsAboutTheScreen()
{
    const QString sources = QStringLiteral(QT_TESTCASE_SOURCEDIR "/../");
    const QByteArray manual = contentsOf(sources + u"programa/manual.html"_s);
    int screens = 0;
    for (QDirIterator walk(sources + u"src"_s, {u"frm*.ui"_s}, QDir::Files, QDirIterator::Subdirectories);
         walk.hasNext(); ++screens) {
        const QString screen = QFileInfo(walk.next()).completeBaseName();
        if (screen == u"frmprincipal" || screen == u"frmcarregando")
            continue;
        const QByteArray section = "<h2 id=\"" + HelpKey::topic(screen).toUtf8() + "\">";
        QVERIFY2(manual.contains(section), qPrintable(screen));
    }
    QVERIFY(screens > 50);

    Shop shop;
    QVERIFY(QFile::copy(sources + u"programa/manual.html"_s, shop.program.file(u"manual.html"_s)));
    shop.open();
    shop.command(u"mnucomp"_s);
    shop.press(u"novo"_s);
    UrlCatcher desktop;
    QTest::keyClick(shop.find<QLineEdit>(u"txthora"_s), Qt::Key_F1);
    QCOMPARE(desktop.urls.size(), 1);
    QCOMPARE(desktop.urls[0].fragment(), u"agenda"_s);
}

QTEST_MAIN(tst_menus)
#include "tst_menus.moc"
