#pragma once

class QWidget;

/// Shows the program folder's "fundo.gif" behind a screen as a quiet watermark in its lower right corner,
/// blended with the palette so that text stays readable. Without the picture the screen is plain.
namespace background {

void apply(QWidget *screen);

}
