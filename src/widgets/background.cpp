#include "widgets/background.h"

#include "settings/programfolder.h"

#include <QEvent>
#include <QImage>
#include <QPainter>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

constexpr qreal opacity = 0.12;

/// The picture as ink in the colour of the palette's text: the darker a dot, the more ink; white is none. So
/// it neither shows a light box on a dark palette nor competes with what is written over it.
QImage inked(const QImage &picture, const QColor &ink)
{
    QImage result = picture.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < result.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            const int depth = (255 - qGray(line[x])) * qAlpha(line[x]) / 255;
            line[x] = qRgba(ink.red(), ink.green(), ink.blue(), depth);
        }
    }
    return result;
}

/// Paints the picture over the empty screen, before the controls paint themselves.
class Watermark : public QObject
{
public:
    Watermark(QImage picture, QWidget *screen) : QObject(screen), m_picture(std::move(picture))
    {
        screen->installEventFilter(this);
        screen->update();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            paint(static_cast<QWidget *>(watched));
        return false;
    }

private:
    void paint(QWidget *screen)
    {
        const QSize size =
            m_picture.size().boundedTo(m_picture.size().scaled(screen->size() / 3, Qt::KeepAspectRatio));
        const qreal ratio = screen->devicePixelRatioF();
        const QColor ink = screen->palette().color(QPalette::WindowText);
        if (size.isEmpty())
            return;
        if (m_painted.size() != size * ratio || m_ink != ink) {
            m_ink = ink;
            m_painted = inked(m_picture, ink)
                            .scaled(size * ratio, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                            .convertToFormat(QImage::Format_ARGB32_Premultiplied);
        }
        QPainter painter(screen);
        painter.setOpacity(opacity);
        painter.drawImage(
            QRect(QPoint(screen->width() - size.width(), screen->height() - size.height()), size), m_painted);
    }

    QImage m_picture;
    QImage m_painted; ///< the picture in the size, resolution and ink last asked for
    QColor m_ink;
};

} // namespace

void background::apply(QWidget *screen)
{
    QImage picture(programfolder::file(u"fundo.gif"_s));
    if (!picture.isNull())
        new Watermark(std::move(picture), screen);
}
