#pragma once

#include "entries/side.h"

class QWidget;

namespace settlecommands {

enum class Outcome { Refused, Settled, Gone };

/// Asks whether to settle the entries of these codes, which were read through the connection `file`, and
/// settles them today. Failures are told, and so is it when one is no longer there; then nothing has changed.
Outcome settle(QWidget *over, const Side &side, quint64 file, const QStringList &codes);

} // namespace settlecommands
