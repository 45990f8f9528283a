#pragma once

#include <QString>
#include <QStringList>

class QComboBox;
class QLineEdit;

/// Filling pick boxes without losing what the user chose.
namespace boxes {

/// Replaces the items; the text that was shown stays, also when it is not among the new items. Signals are
/// held back.
void refill(QComboBox *box, const QStringList &items);
/// As refill(); a box that shows nothing takes the one item that is new.
void refillTakingNew(QComboBox *box, const QStringList &items);
/// While the user types, an editable box offers its items that begin so, in any letter case. It adds nothing
/// to what is typed and replaces nothing; Enter closes the offer and goes on as without it.
void offerWhileTyping(QComboBox *box);
/// While the user types, the field offers those of `names` that contain what is typed; any text may be typed.
void suggest(QLineEdit *field, const QStringList &names);
/// Shows `text`, adding it when the box does not offer it.
void choose(QComboBox *box, const QString &text);

} // namespace boxes
