#pragma once

#include <QPointer>
#include <QWidget>

class QLineEdit;

/// Keyboard and window habits that the data screens share.
namespace formkeys {

/// Return in a text or list field of `screen` moves to the next field, as Tab does but past the small buttons
/// beside fields; on a push button it presses, and lists of rows keep it. In a text of several lines
/// Shift+Return breaks the line. Serves the fields that exist at the call.
void enterMovesOn(QWidget *screen);

/// Lets the field take a quantity only: up to twelve digits, points between thousands, and one decimal comma.
void acceptQuantity(QLineEdit *field);
/// A screen opened over another dialog is modal to it, so that the dialog cannot be closed, and take the
/// screen and what was typed in it along. Over the main window a screen stays modeless.
void modalOverDialog(QWidget *screen);

} // namespace formkeys

/// The shared routine that keeps a screen above the other windows: "ativo" keeps it there without moving or
/// resizing it, "desativo" returns it to the normal band.
namespace topmost {

void set(QWidget *screen, const char16_t *state);

/// While it lives, the window of `widget` is out of the topmost band, if it was in it; for the time in which
/// another window is opened over it.
class StepBack
{
public:
    explicit StepBack(QWidget *widget);
    ~StepBack();
    Q_DISABLE_COPY_MOVE(StepBack)

private:
    QPointer<QWidget> m_window; ///< null when there is nothing to restore
};

} // namespace topmost
