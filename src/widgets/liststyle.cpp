#include "widgets/liststyle.h"

#include "settings/palette.h"
#include "settings/settings.h"
#include "widgets/listview.h"

namespace {

QColor chosenColour(const settings::Key &key)
{
    const auto number = palette::rgb(settings::value(key));
    return number ? QColor::fromRgb(*number) : QColor();
}

bool isDefault(const settings::Key &key)
{
    return settings::value(key) == key.defaultValue;
}

} // namespace

void applyListStyle(ListView &list)
{
    QFont font(settings::value(settings::fontName));
    const int size = settings::value(settings::fontSize).toInt();
    font.setPointSize(size >= 6 && size <= 72 ? size : 10);
    list.setFont(font);
    if (isDefault(settings::textColour) && isDefault(settings::firstBackground) &&
        isDefault(settings::secondBackground))
        list.table().setColours({}, {}, {});
    else
        list.table().setColours(chosenColour(settings::textColour), chosenColour(settings::firstBackground),
                                chosenColour(settings::secondBackground));
}
