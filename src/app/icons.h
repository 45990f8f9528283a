#pragma once

namespace icons {

/// The desktop's icons where it has some, else the Breeze ones that are installed with the program, light or
/// dark as the palette is.
void choose();

} // namespace icons
