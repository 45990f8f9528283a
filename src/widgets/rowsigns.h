#pragma once

#include <QColor>
#include <QIcon>

class QPalette;

/// What a row of a list says at first sight, by a colour and by a sign of its own form.
enum class RowSign { None, Overdue, DueToday, Settled };

namespace rowsigns {

/// Of the row's letters; keeps a contrast of 4.5:1 to the palette's grounds of lists. Invalid for no sign.
QColor colour(RowSign sign, const QPalette &palette);
QIcon icon(RowSign sign, const QPalette &palette);
/// "vencida", for who cannot see it.
QString word(RowSign sign);

} // namespace rowsigns
