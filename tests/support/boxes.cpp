#include "support/boxes.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int interval = 5; ///< milliseconds

QString iconName(QMessageBox::Icon icon)
{
    switch (icon) {
    case QMessageBox::Information:
        return u"information"_s;
    case QMessageBox::Warning:
        return u"exclamation"_s;
    case QMessageBox::Critical:
        return u"critical"_s;
    case QMessageBox::Question:
        return u"question"_s;
    case QMessageBox::NoIcon:
        break;
    }
    return u"none"_s;
}

QString describe(const QDialog &dialog)
{
    const QString line = u"%1 | %2 | %3"_s;
    if (const auto *box = qobject_cast<const QMessageBox *>(&dialog)) {
        const auto *reason = box->findChild<const QLabel *>(u"qt_msgbox_informativelabel"_s);
        return line.arg(iconName(box->icon()), box->windowTitle(), box->text()) +
               (reason ? u" | "_s + reason->text() : QString());
    }
    if (const auto *input = qobject_cast<const QInputDialog *>(&dialog))
        return line.arg(u"input"_s, input->windowTitle(), input->labelText());
    if (const auto *file = qobject_cast<const QFileDialog *>(&dialog))
        return line.arg(u"file"_s, file->windowTitle(), file->nameFilters().join(u";;"_s));
    return line.arg(u"dialog"_s, dialog.objectName(), dialog.windowTitle());
}

/// The wait screen, or a screen that is only modal to the one under it: the test itself works on those.
bool isScreen(const QDialog &dialog)
{
    return dialog.objectName() == u"frmCarregando" ||
           (dialog.windowModality() == Qt::WindowModal && !qobject_cast<const QMessageBox *>(&dialog));
}

template <typename Value>
std::optional<Value> taken(std::queue<Value> &queue)
{
    if (queue.empty())
        return std::nullopt;
    Value value = std::move(queue.front());
    queue.pop();
    return value;
}

} // namespace

Boxes::Boxes()
{
    QTimer::singleShot(interval, this, &Boxes::look);
}

QStringList Boxes::seen()
{
    return std::exchange(m_seen, {});
}

/// Each look plans the next one before it acts, for an action may open another box and wait for it.
void Boxes::look()
{
    QTimer::singleShot(interval, this, &Boxes::look);
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialog || !dialog->isVisible() || m_busy.contains(dialog) || isScreen(*dialog))
        return;
    m_busy << dialog;
    m_seen << describe(*dialog);
    if (auto *box = qobject_cast<QMessageBox *>(dialog))
        handle(*box);
    else
        handle(*dialog);
    m_busy.removeLast();
}

void Boxes::handle(QMessageBox &box)
{
    const auto answer = taken(m_buttons);
    QAbstractButton *button = answer ? box.button(*answer) : nullptr;
    if (!button && box.buttons().size() > 1)
        m_unanswered << m_seen.constLast();
    if (!button)
        button = box.defaultButton();
    if (!button && !box.buttons().isEmpty())
        button = box.buttons().constFirst();
    if (button)
        button->click();
    else
        box.reject();
}

void Boxes::handle(QDialog &dialog)
{
    if (auto *input = qobject_cast<QInputDialog *>(&dialog)) {
        if (const auto text = taken(m_inputs); !text) {
            m_unanswered << m_seen.constLast();
        } else if (!text->isNull()) {
            input->setTextValue(*text);
            input->accept();
            return;
        }
    } else if (auto *chooser = qobject_cast<QFileDialog *>(&dialog)) {
        if (const auto path = taken(m_files); !path) {
            m_unanswered << m_seen.constLast();
        } else if (!path->isEmpty()) {
            chooser->setDirectory(QFileInfo(*path).absolutePath());
            chooser->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(QFileInfo(*path).fileName());
            dialog.accept();
            if (dialog.isVisible()) // a refused name, or a file not to be replaced
                dialog.reject();
            return;
        }
    } else if (const auto act = taken(m_acts)) {
        const QPointer<QDialog> open = &dialog;
        (*act)(dialog);
        if (open && open->isVisible())
            open->reject();
        return;
    } else {
        m_unanswered << m_seen.constLast();
    }
    dialog.reject();
}
