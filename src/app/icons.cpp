#include "app/icons.h"

#include "settings/programfolder.h"

#include <QApplication>
#include <QIcon>
#include <QPalette>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

void icons::choose()
{
    const bool dark = QApplication::palette().window().color().lightness() < 128;
    const QString breeze = dark ? u"breeze-dark"_s : u"breeze"_s;
    // Platforms without a desktop know no place for icons.
    QStringList places = QIcon::themeSearchPaths();
    for (const QString &place : QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, u"icons"_s,
                                                          QStandardPaths::LocateDirectory))
        if (!places.contains(place))
            places << place;
    QIcon::setThemeSearchPaths(places);
    QIcon::setFallbackThemeName(breeze);
    if (QIcon::themeName().isEmpty() || QIcon::themeName() == u"hicolor")
        QIcon::setThemeName(breeze);
    QApplication::setWindowIcon(QIcon(programfolder::file(u"tavaro.svg"_s)));
}
