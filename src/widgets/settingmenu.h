#pragma once

#include "settings/settings.h"

#include <vector>

class QWidget;

/// Entries of a list's pop-up menu that choose a setting's value: one is marked.
namespace settingmenu {

struct Choice
{
    QString name, text, value; ///< object name, what the menu shows, what is stored
};

/// Adds the choices to the pop-up menu of `list`. A choice is stored and announced as Subject::Settings.
void add(QWidget *list, const settings::Key &key, const std::vector<Choice> &choices);

} // namespace settingmenu
