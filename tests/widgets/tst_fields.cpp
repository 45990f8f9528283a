#include "data/clock.h"
#include "settings/programfolder.h"
#include "support/boxes.h"
#include "widgets/background.h"
#include "widgets/dateedit.h"
#include "widgets/files.h"
#include "widgets/formkeys.h"
#include "widgets/frmcarregando.h"
#include "widgets/messages.h"
#include "widgets/moneyedit.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;

/// A screen with the field under test first and a plain field after it.
template <typename Field>
struct Screen
{
    Screen()
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(&field);
        layout->addWidget(&next);
        window.show();
        window.activateWindow();
        if (QTest::qWaitForWindowActive(&window))
            field.setFocus(Qt::TabFocusReason);
    }
    void leave() { next.setFocus(Qt::TabFocusReason); }

    QWidget window;
    Field field;
    QLineEdit next;
};

class tst_fields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { programclock::set(QDateTime(QDate(2026, 3, 9), QTime(12, 0))); }
    void moneyTyped_data();
    void moneyTyped();
    void moneyTypedInside_data();
    void moneyTypedInside();
    void moneyPasted_data();
    void moneyPasted();
    void moneyPrefix();
    void leavingAnnouncesTheRenderedAmount();
    void dateTyped_data();
    void dateTyped();
    void wrongDateIsMarkedUntilCorrected();
    void dateMovesByDays();
    void calendarPicks();
    void enterMovesOn();
    void enterInTexts();
    void messageBoxes();
    void topmostParentStepsBack();
    void errorsShowTheirPrefix();
    void fileChoosers();
    void boxesNeedNoAnswer();
    void waitScreenOnlyForLongWork();
    void backgroundIsAQuietMarkInTheCorner_data();
    void backgroundIsAQuietMarkInTheCorner();
};

void tst_fields::moneyTyped_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("left");
    QTest::newRow("amount") << u"1234,5"_s << u"1234,5"_s << u"1.234,50"_s;
    QTest::newRow("grouped") << u"1.234,56"_s << u"1.234,56"_s << u"1.234,56"_s;
    QTest::newRow("letters, signs and blanks refused") << u"R$ -1a2 3"_s << u"123"_s << u"123,00"_s;
    QTest::newRow("one comma") << u"1,,2,"_s << u"1,2"_s << u"1,20"_s;
    QTest::newRow("two decimals") << u"0,129.4"_s << u"0,12"_s << u"0,12"_s;
    QTest::newRow("only a comma") << u","_s << u","_s << u"0,00"_s;
    QTest::newRow("only a point") << u"."_s << u"."_s << u"0,00"_s;
    QTest::newRow("decimals alone") << u",5"_s << u",5"_s << u"0,50"_s;
    QTest::newRow("nothing") << u""_s << u""_s << u""_s;
    QTest::newRow("largest") << u"922337203685477,58"_s << u"922337203685477,58"_s
                             << u"922.337.203.685.477,58"_s;
    QTest::newRow("too large") << u"9999999999999999"_s << u"9999999999999999"_s << u"9999999999999999"_s;
}

void tst_fields::moneyTyped()
{
    QFETCH(QString, keys);
    Screen<MoneyEdit> screen;
    QTest::keyClicks(&screen.field, keys);
    QTEST(screen.field.text(), "typed");
    screen.leave();
    QTEST(screen.field.text(), "left");
    screen.field.setFocus(Qt::TabFocusReason);
    QTEST(screen.field.text(), "left");
    QCOMPARE(screen.field.selectedText(), screen.field.text());
}

void tst_fields::moneyTypedInside_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("result");
    QTest::newRow("before the comma") << 2 << 0 << u"9"_s << u"129,34"_s;
    QTest::newRow("after the comma") << 3 << 0 << u"9"_s << u"12,34"_s;
    QTest::newRow("second comma") << 0 << 0 << u","_s << u"12,34"_s;
    QTest::newRow("replaced decimal") << 4 << 1 << u"9"_s << u"12,39"_s;
    QTest::newRow("replaced comma") << 2 << 1 << u","_s << u"12,34"_s;
    QTest::newRow("replaced whole part") << 0 << 2 << u"9,"_s << u"9,34"_s;
    QTest::newRow("replaced whole") << 0 << 5 << u",5"_s << u",5"_s;
    QTest::newRow("backspace") << 5 << 0 << u"\b"_s << u"12,3"_s;
}

void tst_fields::moneyTypedInside()
{
    QFETCH(int, from);
    QFETCH(int, length);
    QFETCH(QString, keys);
    MoneyEdit field;
    field.setText(u"12,34"_s);
    field.setCursorPosition(from);
    if (length > 0)
        field.setSelection(from, length);
    if (keys == u"\b")
        QTest::keyClick(&field, Qt::Key_Backspace);
    else
        QTest::keyClicks(&field, keys);
    QTEST(field.text(), "result");
}

void tst_fields::moneyPasted_data()
{
    QTest::addColumn<QString>("clipboard");
    QTest::addColumn<QString>("left");
    QTest::newRow("number") << u"R$ -1.234,56"_s << u"-1.234,56"_s;
    QTest::newRow("beginning") << u"12,"_s << u"12,00"_s;
    QTest::newRow("more decimals") << u"0,125"_s << u"0,13"_s;
    QTest::newRow("words") << u"doze reais"_s << u"7,00"_s;
    QTest::newRow("two commas") << u"1,2,3"_s << u"7,00"_s;
}

void tst_fields::moneyPasted()
{
    QFETCH(QString, clipboard);
    Screen<MoneyEdit> screen;
    screen.field.setText(u"7"_s);
    screen.field.selectAll();
    QApplication::clipboard()->setText(clipboard);
    screen.field.paste();
    screen.leave();
    QTEST(screen.field.text(), "left");
}

void tst_fields::moneyPrefix()
{
    Screen<MoneyEdit> screen;
    screen.field.setPrefix(u"R$ "_s);
    QString shown;
    for (const QString &keys : {u"1234,5"_s, u""_s, u","_s, u"922337203685477,58"_s}) {
        screen.field.setFocus(Qt::TabFocusReason);
        screen.field.clear();
        QTest::keyClicks(&screen.field, keys);
        screen.leave();
        shown += screen.field.text() + u" | "_s;
        screen.field.setFocus(Qt::TabFocusReason);
        shown += screen.field.text() + u'\n';
    }
    QCOMPARE(shown, u"R$ 1.234,50 | 1.234,50\n"
                    u"R$ 0,00 | 0,00\n"
                    u"R$ 0,00 | 0,00\n"
                    u"R$ 922.337.203.685.477,58 | 922.337.203.685.477,58\n"_s);
    screen.leave();
    screen.field.setText(u"-3,1"_s);
    screen.field.setPrefix(u"R$ "_s);
    QCOMPARE(screen.field.text(), u"R$ -3,10"_s);
}

void tst_fields::leavingAnnouncesTheRenderedAmount()
{
    Screen<MoneyEdit> screen;
    QString announced;
    connect(&screen.field, &QLineEdit::editingFinished, &screen.field,
            [&] { announced = screen.field.text(); });
    QTest::keyClicks(&screen.field, u"1500"_s);
    screen.leave();
    QCOMPARE(announced, u"1.500,00"_s);
}

void tst_fields::dateTyped_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("left");
    QTest::addColumn<QDate>("date");
    const QDate fifth(2026, 3, 5);
    QTest::newRow("digits only") << u"05032026"_s << u"05/03/2026"_s << u"05/03/2026"_s << fifth;
    QTest::newRow("own slashes") << u"05/03/2026"_s << u"05/03/2026"_s << u"05/03/2026"_s << fifth;
    QTest::newRow("other separators") << u"5-3.2026"_s << u"5/3/2026"_s << u"05/03/2026"_s << fifth;
    QTest::newRow("no year") << u"5/3"_s << u"5/3"_s << u"05/03/2026"_s << fifth;
    QTest::newRow("no year, digits") << u"0503"_s << u"05/03"_s << u"05/03/2026"_s << fifth;
    QTest::newRow("day alone") << u"5"_s << u"5"_s << u"05/03/2026"_s << fifth;
    QTest::newRow("short year") << u"050326"_s << u"05/03/26"_s << u"05/03/2026"_s << fifth;
    QTest::newRow("too much") << u"a05//03 /202612/"_s << u"05/03/2026"_s << u"05/03/2026"_s << fifth;
    QTest::newRow("leap day") << u"29022024"_s << u"29/02/2024"_s << u"29/02/2024"_s << QDate(2024, 2, 29);
    QTest::newRow("no such day") << u"31022026"_s << u"31/02/2026"_s << u"31/02/2026"_s << QDate();
    QTest::newRow("half a year") << u"0503202"_s << u"05/03/202"_s << u"05/03/202"_s << QDate();
    QTest::newRow("nothing") << u""_s << u""_s << u""_s << QDate();
}

void tst_fields::dateTyped()
{
    QFETCH(QString, keys);
    Screen<DateEdit> screen;
    QTest::keyClicks(&screen.field, keys);
    QTEST(screen.field.text(), "typed");
    QTEST(screen.field.date(), "date");
    screen.leave();
    QTEST(screen.field.text(), "left");
    QTEST(screen.field.date(), "date");
}

void tst_fields::wrongDateIsMarkedUntilCorrected()
{
    Screen<DateEdit> screen;
    screen.field.setToolTip(u"Vencimento"_s);
    const QColor usual = screen.field.palette().color(QPalette::Text);
    QTest::keyClicks(&screen.field, u"3104"_s);
    screen.leave();
    QVERIFY(screen.field.palette().color(QPalette::Text) != usual);
    QVERIFY(screen.field.toolTip() != u"Vencimento");
    screen.field.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&screen.field, Qt::Key_End);
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(&screen.field, Qt::Key_Backspace);
    QTest::keyClicks(&screen.field, u"3004"_s);
    screen.leave();
    QCOMPARE(screen.field.text(), u"30/04/2026"_s);
    QCOMPARE(screen.field.palette().color(QPalette::Text), usual);
    QCOMPARE(screen.field.toolTip(), u"Vencimento"_s);
}

void tst_fields::dateMovesByDays()
{
    DateEdit field;
    QTest::keyClick(&field, Qt::Key_Up);
    QCOMPARE(field.date(), QDate(2026, 3, 9));
    field.setText(u"28/2/2026"_s);
    QTest::keyClick(&field, Qt::Key_Up);
    QCOMPARE(field.text(), u"01/03/2026"_s);
    QTest::keyClick(&field, Qt::Key_Down);
    QTest::keyClick(&field, Qt::Key_Down);
    QCOMPARE(field.text(), u"27/02/2026"_s);
    field.setReadOnly(true);
    QTest::keyClick(&field, Qt::Key_Down);
    QTest::keyClicks(&field, u"1"_s);
    QCOMPARE(field.text(), u"27/02/2026"_s);
}

void tst_fields::calendarPicks()
{
    Screen<DateEdit> screen;
    QStringList order;
    connect(&screen.field, &DateEdit::calendarOpening, this, [&] { order << u"opening"_s; });
    connect(&screen.field, &DateEdit::calendarClosed, this, [&] { order << u"closed"_s; });
    screen.field.setDate({2026, 1, 31});
    QTest::keyClick(&screen.field, Qt::Key_F4);
    auto *calendar = screen.field.findChild<QCalendarWidget *>();
    QVERIFY(calendar && calendar->isVisible());
    QCOMPARE(calendar->selectedDate(), QDate(2026, 1, 31));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(screen.field.text(), u"07/02/2026"_s);
    QTest::keyClick(&screen.field, Qt::Key_Down, Qt::AltModifier);
    QVERIFY(QApplication::activePopupWidget());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(screen.field.text(), u"07/02/2026"_s);
    QCOMPARE(order.join(u' '), u"opening closed opening closed"_s);
}

/// A screen with one field of each kind in tab order.
struct KeysScreen : QDialog
{
    KeysScreen()
    {
        auto *layout = new QVBoxLayout(this);
        editable.setEditable(true);
        list.addItems({u"a"_s, u"b"_s});
        const QList<QWidget *> fields{&line, &list, &editable, &date, &check, &notes, &save};
        for (QWidget *field : fields)
            layout->addWidget(field);
        formkeys::enterMovesOn(this);
        show();
        activateWindow();
        if (QTest::qWaitForWindowActive(this))
            line.setFocus();
    }

    QLineEdit line;
    QComboBox list, editable;
    DateEdit date;
    QCheckBox check;
    QPlainTextEdit notes;
    QPushButton save;
};

void tst_fields::enterMovesOn()
{
    KeysScreen screen;
    QSignalSpy saved(&screen.save, &QPushButton::clicked);
    const QList<QWidget *> order{&screen.list,  &screen.editable, &screen.date,
                                 &screen.check, &screen.notes,    &screen.save};
    for (QWidget *expected : order) {
        QTest::keyClick(QApplication::focusWidget(),
                        expected == &screen.date ? Qt::Key_Enter : Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget(), expected);
    }
    QCOMPARE(saved.count(), 0);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(saved.count(), 1);
}

void tst_fields::enterInTexts()
{
    KeysScreen screen;
    screen.notes.setFocus();
    QTest::keyClicks(&screen.notes, u"um"_s);
    QTest::keyClick(&screen.notes, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(&screen.notes, u"dois"_s);
    QTest::keyClick(&screen.notes, Qt::Key_Return);
    QCOMPARE(screen.notes.toPlainText(), u"um\ndois"_s);
    QVERIFY(!screen.notes.hasFocus());
}

void tst_fields::messageBoxes()
{
    Boxes boxes;
    QWidget parent;
    parent.show();
    messages::information(&parent, u"Cadastrada"_s, u"Despesa cadastrada com sucesso!"_s);
    messages::exclamation(&parent, u"Erro"_s, u"<b>a & b</b>"_s);
    messages::critical(nullptr, u"Erro"_s, u"Recusado"_s);
    boxes.answer(QMessageBox::Yes);
    QVERIFY(messages::question(&parent, u"Remover"_s, u"Tem certeza?"_s));
    boxes.answer(QMessageBox::No);
    QVERIFY(!messages::question(&parent, u"Remover"_s, u"Tem certeza?"_s));
    QCOMPARE(boxes.seen().join(u'\n'), u"information | Cadastrada | Despesa cadastrada com sucesso!\n"
                                       u"exclamation | Erro | <b>a & b</b>\n"
                                       u"critical | Erro | Recusado\n"
                                       u"question | Remover | Tem certeza?\n"
                                       u"question | Remover | Tem certeza?"_s);
    QTimer::singleShot(0, this, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    QVERIFY(!messages::question(&parent, u"Remover"_s, u"Tem certeza?"_s));
}

void tst_fields::topmostParentStepsBack()
{
    QWidget screen;
    screen.setGeometry(50, 60, 300, 200);
    screen.show();
    const WId window = screen.winId();
    const QRect place = screen.geometry();
    topmost::set(&screen, u"ativo");
    QString during;
    QTimer::singleShot(0, &screen, [&] {
        during =
            screen.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint) ? u"ativo"_s : u"desativo"_s;
        static_cast<QDialog *>(QApplication::activeModalWidget())->reject();
    });
    messages::information(&screen, u"Aviso"_s, u"Texto"_s);
    QCOMPARE(during, u"desativo"_s);
    QVERIFY(screen.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
    topmost::set(&screen, u"desativo");
    QVERIFY(!screen.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(!screen.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QVERIFY(screen.isVisible());
    QCOMPARE(screen.winId(), window); // the native window was not made anew
    QCOMPARE(screen.geometry(), place);
}

void tst_fields::errorsShowTheirPrefix()
{
    Boxes boxes;
    const QString prefix = u"Ocorreu o seguinte erro ao tentar cadastrar os dados: "_s;
    QVERIFY(!messages::guarded(nullptr, prefix, [] { throw Error(Error::Kind::Query, u"sem tabela"_s); }));
    QVERIFY(!messages::guarded(nullptr, prefix, [] { throw Error(Error::Kind::Open, u"senha errada"_s); }));
    QVERIFY(messages::guarded(nullptr, prefix, [] {}));
    QCOMPARE(boxes.seen().join(u'\n'),
             u"critical | Erro | Ocorreu o seguinte erro ao tentar cadastrar os dados: sem tabela\n"
             u"critical | Erro | Ocorreu o seguinte erro ao tentar abrir o banco de dados: senha errada"_s);
}

void tst_fields::fileChoosers()
{
    const QTemporaryDir folder;
    const QString page = folder.filePath(u"lista.html"_s);
    const QString filter = u"Arquivos HTML (*.html)"_s;
    Boxes boxes;
    boxes.chooseFile(folder.filePath(u"lista"_s));
    QCOMPARE(files::save(nullptr, u"Salvar"_s, filter, u"html"_s), page);
    QVERIFY(QFile(page).open(QIODevice::WriteOnly));
    boxes.chooseFile(page);
    boxes.answer(QMessageBox::No);
    QCOMPARE(files::save(nullptr, u"Salvar"_s, filter, u"html"_s), QString());
    boxes.chooseFile(page);
    boxes.answer(QMessageBox::Yes);
    QCOMPARE(files::save(nullptr, u"Salvar"_s, filter, u"html"_s), page);
    boxes.chooseFile(page);
    QCOMPARE(files::open(nullptr, u"Abrir"_s, filter), page);
    boxes.chooseFile({});
    QCOMPARE(files::open(nullptr, u"Abrir"_s, filter), QString());
    QCOMPARE(boxes.seen().filter(u"file |"_s).join(u'\n'), u"file | Salvar | Arquivos HTML (*.html)\n"
                                                           u"file | Salvar | Arquivos HTML (*.html)\n"
                                                           u"file | Salvar | Arquivos HTML (*.html)\n"
                                                           u"file | Abrir | Arquivos HTML (*.html)\n"
                                                           u"file | Abrir | Arquivos HTML (*.html)"_s);
    QCOMPARE(boxes.unanswered(), QStringList());
}

void tst_fields::boxesNeedNoAnswer()
{
    Boxes boxes;
    QVERIFY(!messages::question(nullptr, u"Remover"_s, u"Tem certeza?"_s));
    QDialog other;
    other.setObjectName(u"frmOutro"_s);
    QCOMPARE(other.exec(), int(QDialog::Rejected));
    boxes.drive([](QDialog &dialog) { dialog.accept(); });
    QCOMPARE(other.exec(), int(QDialog::Accepted));
    QCOMPARE(boxes.unanswered().join(u'\n'), u"question | Remover | Tem certeza?\ndialog | frmOutro | "_s);
}

/// Counts how often waiting events were let run.
struct EventRuns : QObject
{
    void expect()
    {
        if (!std::exchange(waiting, true))
            QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }
    bool event(QEvent *) override
    {
        waiting = false;
        return ++count > 0;
    }

    bool waiting = false;
    int count = 0;
};

void tst_fields::waitScreenOnlyForLongWork()
{
    constexpr int rows = 10000;
    const auto isShown = [] {
        const auto windows = QApplication::topLevelWidgets();
        return std::ranges::any_of(windows, [](const QWidget *window) {
            return window->objectName() == u"frmCarregando" && window->isVisible();
        });
    };
    int asked = 0;
    EventRuns runs;
    {
        WaitProgress progress(nullptr, u"Carregando contas a pagar"_s, u"Por favor aguarde"_s);
        const auto work = [&] {
            progress.begin([&asked] { return qint64(++asked) * rows; });
            for (int row = 1; row <= rows; ++row) {
                runs.expect();
                progress.advance(row);
            }
        };
        work();
        QVERIFY(!isShown());
        QCOMPARE(asked, 0);
        QCOMPARE(runs.count, 0);
        QTest::qSleep(400);
        work();
        QVERIFY(isShown());
        QCOMPARE(asked, 1);
        QVERIFY2(runs.count > 1 && runs.count <= 52, qPrintable(QString::number(runs.count)));
    }
    QVERIFY(!isShown());
}

void tst_fields::backgroundIsAQuietMarkInTheCorner_data()
{
    QTest::addColumn<QColor>("window");
    QTest::addColumn<QColor>("text");
    QTest::newRow("light") << QColor(240, 240, 240) << QColor(Qt::black);
    QTest::newRow("dark") << QColor(40, 40, 40) << QColor(Qt::white);
}

void tst_fields::backgroundIsAQuietMarkInTheCorner()
{
    QFETCH(QColor, window);
    QFETCH(QColor, text);
    const QTemporaryDir folder;
    programfolder::choose(folder.path());
    QImage picture(300, 300, QImage::Format_RGB32); // black, with a white upper half
    picture.fill(Qt::black);
    QPainter(&picture).fillRect(0, 0, 300, 150, Qt::white);
    QVERIFY(picture.save(folder.filePath(u"fundo.gif"_s), "PNG"));
    QWidget screen;
    screen.resize(600, 300);
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    screen.setPalette(palette);
    background::apply(&screen);
    const QImage shown = screen.grab().toImage();
    QCOMPARE(shown.pixelColor(520, 220), window);
    QCOMPARE(shown.pixelColor(490, 280), window);
    const int difference = std::abs(shown.pixelColor(550, 280).lightness() - window.lightness());
    QVERIFY2(difference > 5 && difference < 40, qPrintable(QString::number(difference)));
}

QTEST_MAIN(tst_fields)
#include "tst_fields.moc"
