#pragma once

#include "platform/Export.h"

#include <QtCore/QString>
#include <QtGui/QImage>
#include <QtWidgets/QWidget>

#include <utility>

/// Shows one picture, scaled down to fit and never up, in the middle of the view.
class VELKARO_PLATFORM_EXPORT ImageView : public QWidget
{
    Q_OBJECT

public:
    explicit ImageView(QWidget *parent = nullptr);

    /// The picture; null when the view shows none.
    const QImage &image() const { return m_image; }

    /// Puts a picture into the view. `size` is how large it is shown, in points; by default the
    /// picture's own size.
    void setImage(const QImage &image, const QSize &size = QSize());

    /// Takes the picture out of the view, for whoever wants to draw the next one over its memory.
    /// The view shows nothing until the next setImage().
    QImage takeImage() { return std::exchange(m_image, QImage()); }

    /// The name of the picture that is shown, given by whoever put it there; null without one.
    QString imageName() const { return m_imageName; }
    /// Names the picture; the view itself makes nothing of the name.
    void setImageName(const QString &name) { m_imageName = name; }

    /// How often a picture has been put into the view.
    int imagesPut() const { return m_imagesPut; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_image;
    QSize m_size;
    QString m_imageName;
    int m_imagesPut = 0;
};
