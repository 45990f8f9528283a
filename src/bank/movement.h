#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

class Connection;

/// A bank movement as its screens show and take it: every field as its text.
struct MovementForm
{
    QString date;  ///< "dd/mm/yyyy"
    QString value; ///< Brazilian amount; as loaded "R$ 1.234,56"
    QString kind, origin, destination, status, notes;
};

/// In what the screen for a new movement and the one that changes a movement differ.
struct MovementScreen
{
    QString name, caption;         ///< object name and title
    QString saveName, saveCaption; ///< of the button that saves
    QString accountsQuery;         ///< names for the account boxes, column `banco`
    QString missingValue, missingDate;
};

namespace movement {

/// The words of the column `movimento`; other texts are stored as typed and change no balance.
inline constexpr QStringView deposit = u"Depósito";
inline constexpr QStringView withdrawal = u"Retirada";
inline constexpr QStringView transfer = u"Transferência entre contas";

const MovementScreen &newScreen();
const MovementScreen &editScreen();

QStringList kinds();
/// Whether a destination can be chosen for the kind: letter case is ignored.
bool takesDestination(const QString &kind);
/// What is stored: the destination chosen when the kind is exactly a transfer, else " - ".
QString storedDestination(const MovementForm &form);
QStringList accountNames(Connection &connection, const MovementScreen &screen);

/// The message about the first field that is missing; nothing when the form can be saved.
std::optional<QString> problem(const MovementScreen &screen, const MovementForm &form);
void add(Connection &connection, const MovementForm &form);
void change(Connection &connection, qint64 code, const MovementForm &form);
/// The movement with the code; nothing when there is none.
std::optional<MovementForm> load(Connection &connection, qint64 code);
/// Deletes the movements in one transaction. Throws Error, also when one of them is no longer there; then
/// nothing has changed.
void remove(Connection &connection, const std::vector<qint64> &codes);

} // namespace movement
