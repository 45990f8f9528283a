#pragma once

#include "settings/settings.h"

#include <QComboBox>

/// Filter boxes whose last choice is kept in the settings.
namespace filterbox {

/// Shows the stored choice, in the spelling of the item where the box offers it; adds it where it does not.
void restore(QComboBox *box, const settings::Key &key);
/// The items `all` and then `values` (empty ones left out); the choice stays.
void refill(QComboBox *box, const QString &all, const QStringList &values);
/// Shows `text` without telling anybody.
void show(QComboBox *box, const QString &text);

} // namespace filterbox
