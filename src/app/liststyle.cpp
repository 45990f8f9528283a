#include "app/liststyle.h"

#include "settings/palette.h"
#include "settings/settings.h"
#include "widgets/listview.h"

namespace {

/// Invalid, which means the palette's colour, for the setting's default.
QColor chosenColour(const settings::Key &key)
{
    const QString text = settings::value(key);
    if (text == key.defaultValue)
        return {};
    const auto rgb = palette::rgb(text);
    return rgb ? QColor::fromRgb(*rgb) : QColor();
}

} // namespace

void applyListStyle(ListView &list)
{
    QFont font(settings::value(settings::fontName));
    const int size = settings::value(settings::fontSize).toInt();
    font.setPointSize(size >= 6 && size <= 72 ? size : 10);
    list.setFont(font);
    list.table().setColours(chosenColour(settings::textColour), chosenColour(settings::firstBackground),
                            chosenColour(settings::secondBackground));
}
