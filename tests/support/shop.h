#pragma once

#include "app/frmprincipal.h"
#include "app/maintabs.h"
#include "support/boxes.h"
#include "support/testprogram.h"
#include "widgets/listview.h"

// What tests look for on the screen.
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>

#include <memory>

/// The program with its main window on screen, at 10 o'clock of 14/11/2026; controls are found and used by
/// object names, as a user driver would.
class Shop
{
public:
    Shop();

    /// Waits until all tabs are read, unless there is no file to read.
    void open();
    /// Goes on at once; what is long is still being read.
    void openWithoutWaiting();

    /// The visible control with the name; one of another screen before one of the main window.
    template <typename T>
    T *find(const QString &name) const
    {
        T *found = nullptr;
        for (QWidget *top : QApplication::topLevelWidgets())
            for (T *match : top->findChildren<T *>(name))
                if (isShown(match) && (!found || top != window.get()))
                    found = match;
        if (!found)
            qFatal("no %s", qPrintable(name));
        return found;
    }
    /// Whether the control's window is on the screen; a closed one may still exist.
    static bool isShown(const QObject *control);
    /// The visible screen with the name; null when there is none.
    QDialog *screen(const QString &name) const;
    void command(const QString &name) const;
    void press(const QString &name) const;
    /// Types over the field's text and leaves it.
    void type(const QString &name, const QString &text) const;
    void choose(const QString &name, const QString &text) const;
    /// Types into fields and chooses in boxes: "txtvalor=80, cbotipo=Ana".
    void fill(const QString &fields) const;
    QString text(const QString &name) const;
    QString label(const QString &name) const;
    ListView *list(const QString &name) const;
    int tab() const;
    /// Saves the pages of the preview that `print` opens, and gives their text.
    QString printed(const std::function<void()> &print);
    /// What somebody does on a login screen.
    static std::function<void(QDialog &)> enter(const QString &user, const QString &password);
    /// The boxes since the last call, one line each.
    QString told() { return boxes.seen().join(u'\n'); }

    TestProgram program;
    Boxes boxes;
    std::unique_ptr<frmPrincipal> window;

private:
    int m_prints = 0;
};

/// Puts another file, of the same contents, in the place of the database.
void replaceDatabase();
