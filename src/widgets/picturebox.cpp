#include "widgets/picturebox.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QStyleOptionFrame>

using namespace Qt::StringLiterals;

PictureBox::PictureBox(QWidget *parent) : QAbstractButton(parent)
{
    setCursor(Qt::PointingHandCursor);
    setFile(QString());
}

void PictureBox::setFile(const QString &path)
{
    m_picture = path.isEmpty() ? QPixmap() : QPixmap(path);
    setText(path.isEmpty() ? u"Clique para escolher uma imagem"_s : u"A imagem não foi encontrada"_s);
    update();
}

void PictureBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    QStyleOptionFrame frame;
    frame.initFrom(this);
    frame.lineWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, this);
    frame.state |= QStyle::State_Sunken;
    style()->drawPrimitive(QStyle::PE_Frame, &frame, &painter, this);

    const QRect inside = rect().adjusted(4, 4, -4, -4);
    if (m_picture.isNull()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(inside, Qt::AlignCenter | Qt::TextWordWrap, text());
    } else {
        const QSize size = m_picture.size().scaled(inside.size(), Qt::KeepAspectRatio);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, size, inside), m_picture);
    }
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}
