#include "support/shop.h"

#include "bank/accountpane.h"
#include "data/clock.h"
#include "settings/database.h"
#include "settings/settings.h"
#include "support/paper.h"

using namespace Qt::StringLiterals;

Shop::Shop()
{
    programclock::set(QDateTime(QDate(2026, 11, 14), QTime(10, 0)));
    settings::setValue(settings::tipOfTheDay, u"0"_s);
    settings::setValue(settings::dueAlerts, u"0"_s);
    settings::setValue(settings::automaticBackup, u"0"_s);
    settings::setValue(settings::openToday, u"0"_s);
}

void Shop::openWithoutWaiting()
{
    window = std::make_unique<frmPrincipal>();
    window->show();
    window->start();
}

void Shop::open()
{
    window = std::make_unique<frmPrincipal>();
    bool read = !QFile::exists(databasePath());
    const QObject scope;
    QObject::connect(window->findChild<AccountPane *>(), &AccountPane::loaded, &scope,
                     [&read] { read = true; }); // the balances come last
    window->show();
    window->start();
    if (!QTest::qWaitFor([&read] { return read; }, 60'000))
        qFatal("the lists are not read");
}

bool Shop::isShown(const QObject *control)
{
    const auto *widget = qobject_cast<const QWidget *>(control);
    if (widget && widget->isWindow() && widget->windowType() != Qt::Popup)
        return widget->isVisible();
    return control->parent() && isShown(control->parent());
}

QDialog *Shop::screen(const QString &name) const
{
    for (QWidget *top : QApplication::topLevelWidgets())
        if (top->objectName() == name && top->isVisible())
            return qobject_cast<QDialog *>(top);
    return nullptr;
}

void Shop::command(const QString &name) const
{
    find<QAction>(name)->trigger();
}

void Shop::press(const QString &name) const
{
    QTest::mouseClick(find<QAbstractButton>(name), Qt::LeftButton);
}

void Shop::type(const QString &name, const QString &text) const
{
    auto *field = find<QWidget>(name);
    field->window()->activateWindow();
    field->setFocus();
    if (!QTest::qWaitForWindowActive(field->window()) ||
        !QTest::qWaitFor([field] { return field->hasFocus(); }))
        qFatal("%s does not get the focus", qPrintable(name));
    if (auto *box = qobject_cast<QComboBox *>(field))
        box->lineEdit()->selectAll();
    else
        qobject_cast<QLineEdit *>(field)->selectAll();
    for (const QChar typed : text) // QTest::keyClicks takes no accents
        QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, QString(typed), Qt::NoModifier);
    QTest::keyClick(field, Qt::Key_Tab);
}

void Shop::choose(const QString &name, const QString &text) const
{
    find<QComboBox>(name)->setCurrentText(text);
}

void Shop::fill(const QString &fields) const
{
    for (const QString &field : fields.split(u", "_s)) {
        const QString name = field.section(u'=', 0, 0), text = field.section(u'=', 1);
        if (qobject_cast<QComboBox *>(find<QWidget>(name)))
            choose(name, text);
        else
            type(name, text);
    }
}

QString Shop::text(const QString &name) const
{
    const QWidget *field = find<QWidget>(name);
    if (const auto *box = qobject_cast<const QComboBox *>(field))
        return box->currentText();
    return qobject_cast<const QLineEdit *>(field)->text();
}

QString Shop::label(const QString &name) const
{
    return find<QLabel>(name)->text();
}

ListView *Shop::list(const QString &name) const
{
    return find<ListView>(name);
}

QString Shop::printed(const std::function<void()> &print)
{
    const QString paper = program.file(u"paginas%1.pdf"_s.arg(++m_prints));
    boxes.drive([this, paper](QDialog &preview) {
        boxes.chooseFile(paper);
        boxes.answer(QMessageBox::No);
        preview.findChild<QPushButton *>(u"cmdpdf"_s)->click();
        preview.close();
    });
    print();
    return pdfText(paper);
}

std::function<void(QDialog &)> Shop::enter(const QString &user, const QString &password)
{
    return [=](QDialog &dialog) {
        dialog.findChild<QLineEdit *>(u"txtusuario"_s)->setText(user);
        dialog.findChild<QLineEdit *>(u"txtsenha"_s)->setText(password);
        dialog.findChild<QPushButton *>(u"cmdentrar"_s)->click();
    };
}

int Shop::tab() const
{
    return find<QTabWidget>(u"tabprincipal"_s)->currentIndex();
}

void replaceDatabase()
{
    const QString path = databasePath(), other = path + u".outro"_s;
    QVERIFY(QFile::copy(path, other) && QFile::remove(path) && QFile::rename(other, path));
}
