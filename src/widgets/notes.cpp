#include "widgets/notes.h"

#include <QPlainTextEdit>
#include <QVariant>

namespace {

constexpr const char *shownText = "shownText";

}

void notes::show(QPlainTextEdit *field, const QString &text)
{
    field->setPlainText(text);
    field->setProperty(shownText, field->toPlainText() == text ? QVariant() : text);
    field->document()->setModified(false);
}

QString notes::text(const QPlainTextEdit *field)
{
    const QVariant shown = field->property(shownText);
    return shown.isNull() || field->document()->isModified() ? field->toPlainText() : shown.toString();
}
