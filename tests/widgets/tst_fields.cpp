#include "data/clock.h"
#include "support/answers.h"
#include "support/boxes.h"
#include "widgets/boxes.h"
#include "widgets/dateedit.h"
#include "widgets/files.h"
#include "widgets/formkeys.h"
#include "widgets/frmcarregando.h"
#include "widgets/messages.h"
#include "widgets/moneyedit.h"

#include <QCalendarWidget>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

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

    QDialog window;
    Field field;
    QLineEdit next;
};

class tst_fields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { programclock::set(QDateTime(QDate(2026, 3, 9), QTime(12, 0))); }
    void moneyTyped();
    void moneyPasted();
    void quantityTyped();
    void twoDigitYearsInThePast();
    void dateTyped();
    void wrongDateIsMarkedUntilCorrected();
    void dateMovesByDays();
    void calendarPicks();
    void offersReplaceNothingTyped();
    void topmostParentStepsBack();
    void existingFileIsReplacedOnlyWhenAskedTo();
};

/// What is in the field while it is typed, and once it is left.
void tst_fields::moneyTyped()
{
    checkAnswers(u"1234,5 -> 1234,5 1.234,50 ; 1.234,56 -> 1.234,56 1.234,56 ; R$ -1a2 3 -> 123 123,00\n"
                 "1,,2, -> 1,2 1,20 ; 0,129.4 -> 0,12 0,12 ; , -> , 0,00 ; . -> . 0,00\n"
                 "9999999999999,99 -> 999999999999,99 999.999.999.999,99"_s,
                 [](const QString &keys) {
                     Screen<MoneyEdit> screen;
                     QString announced;
                     connect(&screen.field, &QLineEdit::editingFinished, &screen.field,
                             [&] { announced = screen.field.text(); });
                     QTest::keyClicks(&screen.field, keys);
                     const QString typed = screen.field.text();
                     screen.leave();
                     return typed + u' ' + (announced == screen.field.text() ? announced : u"unannounced"_s);
                 });
}

void tst_fields::moneyPasted()
{
    checkAnswers(
        u"R$ 1.234,56 -> 1.234,56 ; € 0,1 -> 0,10 ; -5 -> 7,00 ; 1,2355 -> 7,00 ; doze reais -> 7,00\n"
        "1,2,3 -> 7,00 ; 1000000000000 -> 7,00"_s,
        [](const QString &clipboard) {
            Screen<MoneyEdit> screen;
            screen.field.setText(u"7"_s);
            screen.field.selectAll();
            QApplication::clipboard()->setText(clipboard);
            screen.field.paste();
            screen.leave();
            return screen.field.text();
        });
}

void tst_fields::quantityTyped()
{
    checkAnswers(
        u"1.000 -> 1.000 ; 1.000,12345 -> 1.000,1234 ; a-2,5, -> -2,5 ; 1234567890123 -> 123456789012"_s,
        [](const QString &keys) {
            QLineEdit field;
            formkeys::acceptQuantity(&field);
            QTest::keyClicks(&field, keys);
            return field.text();
        });
}

void tst_fields::twoDigitYearsInThePast()
{
    // today is 09/03/2026
    checkAnswers(u"05/03/70 -> 05/03/1970 ; 09/03/26 -> 09/03/2026 ; 10/03/26 -> 10/03/1926\n"
                 "29/02/00 -> 29/02/2000 ; 10/03/2026 -> 10/03/2026"_s,
                 [](const QString &keys) {
                     DateEdit field;
                     field.setInPast(true);
                     QTest::keyClicks(&field, keys);
                     return field.dateText();
                 });
}

/// What is in the field while it is typed, once it is left, and the date.
void tst_fields::dateTyped()
{
    checkAnswers(
        u"05032026 -> 05/03/2026 05/03/2026 2026-03-05 ; 05/03/2026 -> 05/03/2026 05/03/2026 2026-03-05\n"
        "5-3.2026 -> 5/3/2026 05/03/2026 2026-03-05 ; 5/3 -> 5/3 05/03/2026 2026-03-05\n"
        "0503 -> 05/03 05/03/2026 2026-03-05 ; 5 -> 5 05/03/2026 2026-03-05\n"
        "050326 -> 05/03/26 05/03/2026 2026-03-05 ; a05//03 /202612/ -> 05/03/2026 05/03/2026 2026-03-05\n"
        "29022024 -> 29/02/2024 29/02/2024 2024-02-29 ; 31022026 -> 31/02/2026 31/02/2026 \n"
        "0503202 -> 05/03/202 05/03/202 "_s,
        [](const QString &keys) {
            Screen<DateEdit> screen;
            QTest::keyClicks(&screen.field, keys);
            const QString typed = screen.field.text();
            screen.leave();
            return QStringList{typed, screen.field.text(), screen.field.date().toString(Qt::ISODate)}.join(
                u' ');
        });
}

void tst_fields::wrongDateIsMarkedUntilCorrected()
{
    Screen<DateEdit> screen;
    screen.field.setToolTip(u"Vencimento"_s);
    const QColor usual = screen.field.palette().color(QPalette::Text);
    for (const bool wrong : {true, false}) {
        screen.field.setFocus(Qt::TabFocusReason);
        screen.field.clear();
        QTest::keyClicks(&screen.field, wrong ? u"3104"_s : u"3004"_s);
        screen.leave();
        QCOMPARE(screen.field.palette().color(QPalette::Text) != usual, wrong);
        QCOMPARE(screen.field.toolTip() != u"Vencimento", wrong);
    }
    QCOMPARE(screen.field.text(), u"30/04/2026"_s);
}

void tst_fields::dateMovesByDays()
{
    // + and - are the arrow keys
    checkAnswers(u" + -> 09/03/2026 ; 28/2/2026 + -> 01/03/2026 ; 01/03/2026 -- -> 27/02/2026"_s,
                 [](const QString &asked) {
                     DateEdit field;
                     field.setText(asked.section(u' ', 0, 0));
                     for (const QChar key : asked.section(u' ', 1))
                         QTest::keyClick(&field, key == u'+' ? Qt::Key_Up : Qt::Key_Down);
                     const QString moved = field.text();
                     field.setReadOnly(true);
                     QTest::keyClick(&field, Qt::Key_Down);
                     return field.text() == moved ? moved : u"written to"_s;
                 });
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
    QCOMPARE(order.join(u' '), u"opening closed"_s);
}

void tst_fields::offersReplaceNothingTyped()
{
    Screen<QComboBox> screen;
    QComboBox &box = screen.field;
    box.setEditable(true);
    box.addItems({u"campinas"_s, u"Santos"_s});
    boxes::offerWhileTyping(&box);
    formkeys::enterMovesOn(&screen.window);
    // keys typed, "+" the first offer taken with the arrow; Enter goes on at the first press
    checkAnswers(u"Campinas -> Campinas ; camp+ -> campinas ; SAN+ -> Santos ; ca -> ca ; Rio -> Rio"_s,
                 [&](const QString &keys) {
                     box.setFocus();
                     box.lineEdit()->selectAll();
                     QTest::keyClicks(&box, keys.section(u'+', 0, 0));
                     QWidget *offers = QApplication::activePopupWidget();
                     if (keys.endsWith(u'+'))
                         QTest::keyClick(offers, Qt::Key_Down);
                     QTest::keyClick(offers ? offers : &box, Qt::Key_Return);
                     const bool movedOn = QApplication::focusWidget() == &screen.next;
                     const bool offered = offers || keys == u"Rio";
                     return movedOn && offered ? box.currentText() : u"stays"_s;
                 });
}

void tst_fields::topmostParentStepsBack()
{
    QWidget screen;
    screen.setGeometry(50, 60, 300, 200);
    screen.show();
    const WId window = screen.winId();
    const QRect place = screen.geometry();
    const auto isTopmost = [&] { return screen.windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint); };
    topmost::set(&screen, u"ativo");
    bool during = true;
    QTimer::singleShot(0, &screen, [&] {
        during = isTopmost();
        static_cast<QDialog *>(QApplication::activeModalWidget())->reject();
    });
    messages::information(&screen, u"Aviso"_s, u"Texto"_s);
    QVERIFY(!during && isTopmost());
    topmost::set(&screen, u"desativo");
    QVERIFY(!isTopmost());
    QCOMPARE(screen.winId(), window); // the native window was not made anew
    QCOMPARE(screen.geometry(), place);
}

void tst_fields::existingFileIsReplacedOnlyWhenAskedTo()
{
    const QTemporaryDir folder;
    const QString page = folder.filePath(u"lista.html"_s);
    const auto save = [&] {
        return files::save(nullptr, u"Salvar"_s, u"Arquivos HTML (*.html)"_s, u"html"_s);
    };
    Boxes boxes;
    for (const QMessageBox::StandardButton answer : {QMessageBox::No, QMessageBox::Yes}) {
        QVERIFY(QFile(page).open(QIODevice::WriteOnly)); // is there already
        boxes.chooseFile(folder.filePath(u"lista"_s));
        boxes.answer(answer);
        QCOMPARE(save(), answer == QMessageBox::Yes ? page : QString());
    }
    QCOMPARE(boxes.unanswered(), QStringList());
}

QTEST_MAIN(tst_fields)
#include "tst_fields.moc"
