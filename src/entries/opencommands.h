#pragma once

#include "lists/tablesource.h"

class ListView;
class QWidget;

namespace opencommands {

/// Shows the entry or movement in its own screen; when it is no longer there, a message says so.
void open(const RowOrigin &origin, QWidget *over);
/// A double click, or Enter, on a row of a list that shows a table opens what the row stands for.
void openOnActivation(ListView &list);

} // namespace opencommands
