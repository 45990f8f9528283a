#include "widgets/moneyedit.h"

#include "data/formtext.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QValidator>

using namespace Qt::StringLiterals;

namespace {

constexpr int decimals = 2;

/// "#,##0.00"; what is no amount stays as it is.
QString rendered(const QString &text)
{
    const auto amount = Money::parse(text);
    return amount ? amount->grouped() : text;
}

bool beginsWithSeparator(const QString &text)
{
    return text.startsWith(u'.') || text.startsWith(u',');
}

/// Lets the field change only to an amount that could be typed, or the beginning of one, maybe with a
/// currency symbol before it; for what comes by paste, drop or input method. What the program puts there
/// stands.
class AmountValidator : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString &text, int &) const override
    {
        static const QRegularExpression typeable(uR"(^\s*(R\$|\$|€|¥|£)?\s*[\d.]*(,\d{0,2})?\s*$)"_s);
        static const QRegularExpression digit(uR"(\d)"_s);
        if (!typeable.match(text).hasMatch())
            return Invalid;
        if (!text.contains(digit))
            return Acceptable;
        const auto amount = Money::parse(text);
        return amount && formtext::isWithinLimit(*amount) ? Acceptable : Invalid;
    }
};

} // namespace

MoneyEdit::MoneyEdit(QWidget *parent) : QLineEdit(parent)
{
    setAlignment(Qt::AlignRight);
    setValidator(new AmountValidator(this));
    connect(this, &QLineEdit::inputRejected, this, &QApplication::beep);
}

void MoneyEdit::setPrefix(const QString &prefix)
{
    m_prefix = prefix;
    if (!hasFocus() && !text().isEmpty())
        renderOnLeaving();
}

/// Judged on the text that remains once the typed character has replaced the selection.
bool MoneyEdit::refuses(QChar typed) const
{
    if (typed != u',' && typed != u'.' && (typed < u'0' || typed > u'9'))
        return true;
    QString remaining = text();
    qsizetype caret = cursorPosition();
    if (hasSelectedText()) {
        caret = selectionStart();
        remaining.remove(caret, selectionLength());
    }
    const qsizetype comma = remaining.indexOf(u',');
    if (comma < 0)
        return false;
    return typed == u',' || (caret > comma && remaining.size() - comma - 1 == decimals);
}

void MoneyEdit::keyPressEvent(QKeyEvent *event)
{
    const QString typed = event->text();
    const bool isCharacter =
        typed.size() == 1 && typed.front().isPrint() &&
        !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (isCharacter && !isReadOnly() && refuses(typed.front())) {
        QApplication::beep();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void MoneyEdit::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::PopupFocusReason) // the field's own menu was closed
        return;
    if (const QString number = rendered(text()); number != text())
        setText(number);
    if (event->reason() != Qt::MouseFocusReason) // a click says where to type
        selectAll();
}

void MoneyEdit::focusOutEvent(QFocusEvent *event)
{
    if (event->reason() != Qt::PopupFocusReason)
        renderOnLeaving();
    QLineEdit::focusOutEvent(event);
}

void MoneyEdit::renderOnLeaving()
{
    QString result = rendered(text());
    if (beginsWithSeparator(result) || (result.isEmpty() && !m_prefix.isEmpty()))
        result = u"0,00"_s;
    if (Money::parse(result))
        result.prepend(m_prefix);
    if (result != text())
        setText(result);
}
