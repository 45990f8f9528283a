#pragma once

#include <QDialog>
#include <QMessageBox>
#include <QObject>
#include <QStringList>

#include <functional>
#include <queue>

/// Answers the modal boxes that the code under test opens, in the order in which the answers were given. A
/// box without an answer gets its default one, so that no test hangs: a message box its default button,
/// anything else a cancel.
///
///     Boxes boxes;
///     boxes.answer(QMessageBox::Yes);
///     QTest::mouseClick(remove, Qt::LeftButton);
///     QCOMPARE(boxes.seen().join(u'\n'), u"question | Remover | Tem certeza?"_s);
///
/// The wait screen and screens that are only modal to the one under them are left alone.
class Boxes : public QObject
{
    Q_OBJECT

public:
    Boxes();

    /// For the next message box.
    void answer(QMessageBox::StandardButton button) { m_buttons.push(button); }
    /// For the next input dialog: the text or the item; a null one cancels.
    void input(const QString &text) { m_inputs.push(text); }
    /// For the next file chooser; an empty path cancels.
    void chooseFile(const QString &path) { m_files.push(path); }
    /// For the next other modal dialog: `act` works on it and closes it; left open, it is cancelled.
    void drive(std::function<void(QDialog &)> act) { m_acts.push(std::move(act)); }

    /// One line for each box since the last call: "icon | title | text", and " | reason" where one is told;
    /// the icon is "information", "exclamation", "critical", "question" or "none"; "input | title | label";
    /// "file | title | name filters"; "dialog | object name | title".
    QStringList seen();
    /// The boxes of more than one outcome, and other dialogs, that found no answer given to them.
    QStringList unanswered() const { return m_unanswered; }

private:
    void look();
    void handle(QDialog &dialog);
    void handle(QMessageBox &box);

    std::queue<QMessageBox::StandardButton> m_buttons;
    std::queue<QString> m_inputs, m_files;
    std::queue<std::function<void(QDialog &)>> m_acts;
    QList<const QDialog *> m_busy; ///< being handled, outermost first
    QStringList m_seen, m_unanswered;
};
