#include "widgets/rowsigns.h"

#include <QHash>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

using namespace Qt::StringLiterals;

namespace {

struct Look
{
    QColor onLight, onDark;
    QString glyph, word;
};

const Look &lookOf(RowSign sign)
{
    static const Look looks[] = {
        {{}, {}, {}, {}},
        {QColor(0xb0, 0x00, 0x20), QColor(0xff, 0x9b, 0x93), u"▲"_s, u"vencida"_s},
        {QColor(0x80, 0x4b, 0x00), QColor(0xff, 0xcc, 0x66), u"●"_s, u"vence hoje"_s},
        {QColor(0x1b, 0x5e, 0x3c), QColor(0x8f, 0xd1, 0x9e), u"✓"_s, u"concluída"_s}};
    return looks[int(sign)];
}

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Base).lightness() < 128;
}

} // namespace

namespace rowsigns {

QColor colour(RowSign sign, const QPalette &palette)
{
    return isDark(palette) ? lookOf(sign).onDark : lookOf(sign).onLight;
}

QIcon icon(RowSign sign, const QPalette &palette)
{
    if (sign == RowSign::None)
        return {};
    static QHash<std::pair<int, bool>, QIcon> drawn;
    QIcon &icon = drawn[{int(sign), isDark(palette)}];
    if (icon.isNull()) {
        constexpr int size = 32; // scaled down to what the list shows
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        QFont font = painter.font();
        font.setPixelSize(size * 3 / 4);
        painter.setFont(font);
        painter.setPen(colour(sign, palette));
        painter.drawText(picture.rect(), Qt::AlignCenter, lookOf(sign).glyph);
        painter.end();
        icon = QIcon(picture);
    }
    return icon;
}

QString word(RowSign sign)
{
    return lookOf(sign).word;
}

} // namespace rowsigns
