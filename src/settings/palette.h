#pragma once

#include <QStringView>

#include <array>
#include <optional>

/// The colours that the settings offer for the lists, and the colour numbers under which they are stored.
namespace palette {

struct Colour
{
    QStringView name;
    QStringView number; ///< "&HBBGGRR" or decimal; what the settings store
};

/// In the order of the stored indexes. White is index 0 and black index 9: the defaults of backgrounds and
/// text.
const std::array<Colour, 16> &colours();
/// A colour number, hexadecimal with blue first ("&HFFFFFF") or decimal ("0"), as 0xRRGGBB; nothing for other
/// text and for numbers beyond 24 bits.
std::optional<quint32> rgb(QStringView number);

} // namespace palette
