#include "widgets/formkeys.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTextEdit>
#include <QToolButton>
#include <QValidator>
#include <QWindow>

namespace {

bool isTextOfLines(const QObject *field)
{
    return qobject_cast<const QTextEdit *>(field) || qobject_cast<const QPlainTextEdit *>(field);
}

bool isField(const QWidget *widget)
{
    // The line edit inside a combo or spin box never has the focus itself.
    return (qobject_cast<const QLineEdit *>(widget) && !widget->focusProxy()) ||
           qobject_cast<const QComboBox *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget) ||
           qobject_cast<const QCheckBox *>(widget) || qobject_cast<const QRadioButton *>(widget) ||
           isTextOfLines(widget);
}

class EnterMovesOn : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *field, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isReturn = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (!isReturn || (key->modifiers() & ~Qt::KeypadModifier))
            return false;
        if (const auto *combo = qobject_cast<QComboBox *>(field); combo && combo->view()->isVisible())
            return false;
        // A key held down does not run through the whole screen. The Tab goes to the window, because a text
        // of several lines would take it as a character.
        if (!key->isAutoRepeat()) {
            QWidget *window = static_cast<QWidget *>(field)->window();
            do {
                QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
                QCoreApplication::sendEvent(window, &tab);
            } while (qobject_cast<QToolButton *>(window->focusWidget())); // small buttons beside a field
        }
        return true;
    }
};

/// Whole and fractional numbers: points group thousands, a comma starts the decimals.
class QuantityValidator : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString &input, int &) const override
    {
        static const QRegularExpression number(QStringLiteral("^-?(\\.?\\d){0,12}\\.?(,\\d{0,4})?$"));
        return number.match(input).hasMatch() ? Acceptable : Invalid;
    }
};

bool isTopmost(const QWidget *window)
{
    return window->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
}

} // namespace

void formkeys::modalOverDialog(QWidget *screen)
{
    if (qobject_cast<QDialog *>(screen->parentWidget()))
        screen->setWindowModality(Qt::WindowModal);
}

void formkeys::enterMovesOn(QWidget *screen)
{
    auto *filter = new EnterMovesOn(screen);
    const auto widgets = screen->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (isField(widget))
            widget->installEventFilter(filter);
        else if (auto *button = qobject_cast<QPushButton *>(widget))
            button->setAutoDefault(true); // Return presses the button that has the focus
    }
}

void formkeys::acceptQuantity(QLineEdit *field)
{
    field->setValidator(new QuantityValidator(field));
}

void topmost::set(QWidget *screen, const char16_t *state)
{
    QWidget *window = screen->window();
    const bool on = QStringView(state) == u"ativo";
    if (isTopmost(window) == on)
        return;
    if (!window->windowHandle()) {
        window->setWindowFlag(Qt::WindowStaysOnTopHint, on);
        return;
    }
    // Changing the flags of a QWidget makes its native window anew: it would vanish, flicker and perhaps
    // move. The native window changes its band in place; the widget only takes note.
    window->overrideWindowFlags(window->windowFlags().setFlag(Qt::WindowStaysOnTopHint, on));
    window->windowHandle()->setFlag(Qt::WindowStaysOnTopHint, on);
}

topmost::StepBack::StepBack(QWidget *widget)
{
    if (!widget || !isTopmost(widget->window()))
        return;
    m_window = widget->window();
    set(m_window, u"desativo");
}

topmost::StepBack::~StepBack()
{
    if (m_window)
        set(m_window, u"ativo");
}
