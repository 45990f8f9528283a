#pragma once

#include <QAbstractButton>
#include <QPixmap>

/// Shows a picture file in its own proportions, as large as the box allows; a click asks for another one.
/// Without a picture, or when its file cannot be shown, the box says so.
class PictureBox : public QAbstractButton
{
    Q_OBJECT

public:
    explicit PictureBox(QWidget *parent = nullptr);

    /// An empty path shows no picture.
    void setFile(const QString &path);
    bool hasPicture() const { return !m_picture.isNull(); }

    QSize sizeHint() const override { return {150, 180}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_picture;
};
