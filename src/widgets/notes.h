#pragma once

class QPlainTextEdit;
class QString;

/// A field for a text of several lines gives it back with other line ends and blanks than it was given; a row
/// whose notes nobody touched keeps them as they are.
namespace notes {

void show(QPlainTextEdit *field, const QString &text);
/// What was shown, or else what the user made of it.
QString text(const QPlainTextEdit *field);

} // namespace notes
