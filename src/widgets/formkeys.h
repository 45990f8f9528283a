#pragma once

class QWidget;

/// Keyboard and window habits that the data screens share.
namespace formkeys {

/// Return in a text or list field of `screen` moves to the next field, as Tab does; buttons keep their Return.
void enterMovesOn(QWidget *screen);

}

/// The shared routine that keeps a screen above the other windows: "ativo" keeps it there without moving or resizing
/// it, "desativo" returns it to the normal band.
namespace topmost {

void set(QWidget *screen, const char16_t *state);

}
