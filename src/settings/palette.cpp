#include "settings/palette.h"

#include <QString>

namespace palette {

const std::array<Colour, 16> &colours()
{
    static constexpr std::array<Colour, 16> table = {{{u"Branco", u"&HFFFFFF"},
                                                      {u"Cinza claro", u"&HEDEDED"},
                                                      {u"Amarelo claro", u"&HD0F7FF"},
                                                      {u"Verde claro", u"&HDDF3E0"},
                                                      {u"Azul claro", u"&HFBEDDF"},
                                                      {u"Rosa claro", u"&HEDE3FC"},
                                                      {u"Laranja claro", u"&HD6E8FD"},
                                                      {u"Lilás claro", u"&HF8E4EC"},
                                                      {u"Cinza", u"&H737373"},
                                                      {u"Preto", u"0"},
                                                      {u"Azul", u"&HA14D1B"},
                                                      {u"Verde", u"&H2E6B1A"},
                                                      {u"Vermelho", u"&H1C1CB7"},
                                                      {u"Roxo", u"&H9A3570"},
                                                      {u"Marrom", u"&H1F4474"},
                                                      {u"Azul-marinho", u"&H4A250A"}}};
    return table;
}

std::optional<quint32> rgb(QStringView number)
{
    QStringView digits = number.trimmed();
    int base = 10;
    if (digits.startsWith(u"&H", Qt::CaseInsensitive)) {
        base = 16;
        digits = digits.sliced(2);
        if (digits.endsWith(u'&'))
            digits.chop(1);
    }
    bool isNumber = false;
    const quint32 bgr = digits.toUInt(&isNumber, base);
    if (!isNumber || bgr > 0xFFFFFF)
        return std::nullopt;
    return (bgr & 0xFF) << 16 | (bgr & 0xFF00) | bgr >> 16;
}

} // namespace palette
