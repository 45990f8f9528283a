#pragma once

#include <string>
#include <string_view>

/// How many columns a text takes where every character is one or two columns wide, such as in a terminal or
/// an editor: an accent adds nothing to its letter, a Chinese character or an emoji takes two.
namespace displaywidth {

int of(std::string_view utf8);
/// The beginning of the text that fits in `columns`; never splits a letter from its accents.
std::string cut(std::string_view utf8, int columns);

} // namespace displaywidth
