#include "settings/database.h"
#include "settings/settings.h"
#include "support/shop.h"

#include <QListWidget>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

void addUsers(Shop &shop, bool required)
{
    shop.program.run(u"insert into login (nome, senha) values ('Ana', 'abc')"_s);
    shop.program.run(u"insert into login (nome, senha) values ('Mariana', 'xyz')"_s);
    shop.program.run(u"update login_inicia set exigirlogin = '%1'"_s.arg(required ? 1 : 0));
}

/// One attempt on the login screen.
std::function<void(QDialog &)> enter(const QString &user, const QString &password, const QString &then = {})
{
    return [=](QDialog &dialog) {
        Shop::enter(user, password)(dialog);
        if (!then.isEmpty())
            dialog.findChild<QPushButton *>(then)->click();
    };
}

} // namespace

class tst_access : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loginAnswers_data();
    void loginAnswers();
    void withoutLoginNothingIsShown();
    void databaseThatComesLaterStillAsks();
    void lockedProgramShowsAndTakesNothing();
    void usersAreManaged();
    void switchOfTheMenuIsTheFiles();
    void tipsComeFromTheFile();
};

void tst_access::loginAnswers_data()
{
    QTest::addColumn<QString>("user");
    QTest::addColumn<QString>("password");
    QTest::addColumn<QString>("told");
    const QString wrong =
        u"critical | Login | Usuário e ou senha inválido, por favor verifique os dados digitados!"_s;
    const QString incomplete = u"exclamation | Login | Digite o nome de usuário e ou a senha!"_s;
    QTest::newRow("letter case is nothing") << u"ANA"_s << u"Abc"_s << QString();
    QTest::newRow("wrong password") << u"Ana"_s << u"abd"_s << wrong;
    QTest::newRow("unknown name") << u"Bia"_s << u"abc"_s << wrong;
    QTest::newRow("another's password") << u"Ana"_s << u"xyz"_s << wrong;
    QTest::newRow("empty name") << QString() << u"abc"_s << incomplete;
    QTest::newRow("empty password") << u"Ana"_s << QString() << incomplete;
    QTest::newRow("a quote is no way in") << u"' or '1'='1"_s << u"abc"_s << wrong;
    QTest::newRow("nor is a pattern") << u"Ana"_s << u"%"_s << wrong;
    QTest::newRow("nor places of a pattern") << u"___"_s << u"___"_s << wrong;
}

void tst_access::loginAnswers()
{
    QFETCH(QString, user);
    QFETCH(QString, password);
    QFETCH(QString, told);
    Shop shop;
    addUsers(shop, true);
    shop.boxes.drive(enter(user, password, told.isEmpty() ? QString() : u"cmdcancelar"_s));
    shop.openWithoutWaiting();
    QStringList seen = shop.boxes.seen();
    QCOMPARE(seen.takeFirst(), u"dialog | frmLogin | Login"_s);
    QCOMPARE(seen.join(u'\n'), told);
    QCOMPARE(shop.window->isVisible(), told.isEmpty());
}

void tst_access::withoutLoginNothingIsShown()
{
    Shop shop;
    settings::setValue(settings::openToday, u"1"_s);
    shop.program.run(u"insert into banco (banco) values ('Caixa')"_s);
    shop.program.run(
        u"insert into pagar (estatus, vencimento, valor) values ('Pendente', '2026/11/14', '1,00')"_s);
    shop.program.run(u"update login_inicia set exigirlogin = '1'"_s);
    bool empty = false, off = false;
    const auto due = [&shop] { return shop.window->findChild<ListView *>(u"lsthoje"_s)->rowCount(); };
    shop.boxes.drive([&](QDialog &dialog) {
        empty = !shop.window->centralWidget()->isVisible() && due() == 0;
        auto *clients = shop.window->findChild<QAction *>(u"mnuclientes"_s);
        clients->trigger();
        off = !clients->isEnabled() && !shop.screen(u"frmCliente"_s);
        dialog.findChild<QPushButton *>(u"cmdentrar"_s)->click();
    });
    shop.open();
    QVERIFY(empty && off);
    // Nobody is registered: whoever comes is let in, and told so.
    QCOMPARE(
        shop.told(),
        u"dialog | frmLogin | Login\n"
        "exclamation | Login | Não há nenhum usuário cadastrado, o software será iniciado para adicionar um "
        "usuário clique no menu principal, gerenciador de login e depois em configurar usuários."_s);
    QVERIFY(shop.window->centralWidget()->isVisible());
    QTRY_COMPARE(due(), 1);
    shop.command(u"mnuclientes"_s);
    QVERIFY(shop.screen(u"frmCliente"_s));
}

void tst_access::databaseThatComesLaterStillAsks()
{
    Shop shop;
    addUsers(shop, true);
    closeDatabase();
    const QString path = shop.program.databaseFile();
    QVERIFY(QFile::rename(path, path + u".fora"_s));
    shop.openWithoutWaiting();
    shop.told();
    QVERIFY(QFile::rename(path + u".fora"_s, path));
    shop.boxes.drive(enter(u"Ana"_s, u"abc"_s));
    shop.command(u"mnuatualizarlistas"_s);
    QCOMPARE(shop.told(), u"dialog | frmLogin | Login"_s);
    shop.command(u"mnuatualizarlistas"_s);
    QCOMPARE(shop.told(), QString()); // once
}

void tst_access::lockedProgramShowsAndTakesNothing()
{
    Shop shop;
    addUsers(shop, false);
    shop.open();
    shop.command(u"mnuclientes"_s);
    QVERIFY(shop.screen(u"frmCliente"_s));
    QStringList shown, off;
    shop.boxes.answer(QMessageBox::No); // to end the program
    shop.boxes.drive([&](QDialog &dialog) {
        shop.window->findChild<QAction *>(u"mnufornecedores"_s)->trigger();
        QTest::keyClick(shop.window.get(), Qt::Key_D, Qt::ControlModifier);
        QDialog late(shop.window.get()); // as an alert that comes at midnight
        late.setObjectName(u"tarde"_s);
        late.show();
        QCoreApplication::processEvents();
        for (QWidget *screen : QApplication::topLevelWidgets())
            if (screen->isVisible())
                shown << screen->objectName();
        dialog.findChild<QPushButton *>(u"cmdcancelar"_s)->click();
        enter(u"Ana"_s, u"wrong"_s)(dialog);
        enter(u"mariana"_s, u"XYZ"_s)(dialog);
    });
    shop.command(u"mnubloquearsoft"_s);
    shown.sort();
    QCOMPARE(shown.join(u' '), u"frmLoginSoft frmPrincipal"_s);
    QCOMPARE(shop.told(),
             u"dialog | frmLoginSoft | Programa bloqueado\n"
             "question | Login | Deseja fechar o programa?\n"
             "critical | Login | Usuário e ou senha inválido, por favor verifique os dados digitados!"_s);
    QVERIFY(shop.window->centralWidget()->isVisible());
    QVERIFY(shop.screen(u"frmCliente"_s)); // as it was
    QVERIFY(!shop.screen(u"frmAdicionar"_s));
}

void tst_access::usersAreManaged()
{
    Shop shop;
    addUsers(shop, false);
    shop.program.run(u"delete from login where nome = 'Ana'"_s);
    shop.open();
    shop.command(u"mnuconflogin"_s);
    const auto select = [&shop](const QString &name) {
        auto *list = shop.find<QListWidget>(u"lstusuarios"_s);
        list->setCurrentItem(list->findItems(name, Qt::MatchExactly).value(0));
    };
    const auto act = [&shop](const QString &name, const QString &password, const QString &button) {
        shop.find<QLineEdit>(u"txtusuario"_s)->setText(name);
        shop.find<QLineEdit>(u"txtsenha"_s)->setText(password);
        shop.press(button);
        return shop.told();
    };
    const auto users = [&shop] { return shop.program.rows(u"select nome, senha from login"_s); };

    QCOMPARE(act(u"Bia"_s, QString(), u"cmdadicionar"_s),
             u"exclamation | Login | O campo nome de usuário e senha não podem estar vazios!"_s);
    QCOMPARE(act(u"Ana-Bia"_s, u"1"_s, u"cmdadicionar"_s),
             u"exclamation | Login | Os seguintes caractes não são permitidos: '=%-#;"_s);
    select(u"Mariana"_s);
    shop.boxes.answer(QMessageBox::Yes);
    shop.press(u"cdmremover"_s);
    QCOMPARE(
        shop.told(),
        u"question | Login | tem certeza que deseja remover Mariana e todos os seus produtos do banco de "
        "dados?\n"
        "critical | Erro | Não é possível remover este usuário, o sistema não pode ficar sem usuários!"_s);
    QCOMPARE(users(), u"Mariana | xyz\n"_s);

    QCOMPARE(act(u"Ana"_s, u"um"_s, u"cmdadicionar"_s), QString());
    select(u"Ana"_s); // "Mariana" contains the name, too
    QCOMPARE(shop.text(u"txtsenha"_s), u"um"_s);
    QCOMPARE(act(u"Ana Paula"_s, u"dois"_s, u"cmdatualizar"_s),
             u"information | Login | Dados atualizados com sucesso!"_s);
    QCOMPARE(users(), u"Mariana | xyz\nAna Paula | dois\n"_s);
    select(u"Mariana"_s);
    shop.boxes.answer(QMessageBox::Yes);
    shop.press(u"cdmremover"_s);
    QCOMPARE(users(), u"Ana Paula | dois\n"_s);
    shop.find<QCheckBox>(u"chkusuario"_s)->click();
    QCOMPARE(shop.program.rows(u"select * from login_inicia"_s), u"1\n"_s);
}

void tst_access::switchOfTheMenuIsTheFiles()
{
    Shop shop;
    shop.open();
    const auto stored = [&shop] { return shop.program.rows(u"select * from login_inicia"_s); };
    shop.command(u"mnulogininiciar"_s);
    QCOMPARE(stored(), u"1\n"_s);
    QVERIFY(shop.find<QAction>(u"mnulogininiciar"_s)->isChecked());
    shop.program.run(u"update login_inicia set exigirlogin = '0'"_s); // another machine
    shop.command(u"mnulogininiciar"_s);
    QCOMPARE(stored(), u"1\n"_s);
    shop.program.run(u"delete from login_inicia"_s);
    shop.command(u"mnulogininiciar"_s);
    QCOMPARE(stored(), u"1\n"_s);
}

void tst_access::tipsComeFromTheFile()
{
    Shop shop;
    shop.open();
    QVERIFY(!shop.screen(u"frmDica"_s)); // switched off
    shop.command(u"mnudicadia"_s);
    const QString file = shop.program.file(u"dicas.txt"_s);
    QCOMPARE(shop.label(u"lblTipText"_s), u"não foi possível encontrar o arquivo de dicas "_s + file +
                                              u"\na reinstalação do software pode corrigir o problema. "_s);
    shop.find<QCheckBox>(u"chkdicadia"_s)->click();
    shop.press(u"cmdok"_s);
    QVERIFY(shop.find<QAction>(u"mnumostrardicadia"_s)->isChecked());
    QFile tips(file);
    QVERIFY(tips.open(QIODevice::WriteOnly) && tips.write("A única dica\n") > 0);
    tips.close();
    shop.window.reset();
    shop.open();
    QVERIFY(shop.screen(u"frmDica"_s));
    QCOMPARE(shop.label(u"lblTipText"_s), u"A única dica"_s);
    shop.command(u"mnumostrardicadia"_s);
    shop.window.reset();
    shop.open();
    QVERIFY(!shop.screen(u"frmDica"_s));
}

QTEST_MAIN(tst_access)
#include "tst_access.moc"
