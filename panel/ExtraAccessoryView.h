#pragma once

#include <QtCore/QString>
#include <QtGui/QImage>
#include <QtWidgets/QWidget>

/// A picture that is stretched over the whole view, whatever its own proportions. View resources
/// create it; no code does.
class ExtraAccessoryView : public QWidget
{
    Q_OBJECT

public:
    explicit ExtraAccessoryView(QWidget *parent = nullptr);

    /// Loads the picture of the file; a file that is no picture gives none. Set it once, before the
    /// view is drawn: the view is not redrawn for it.
    void setImage(const QString &path);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage myImage;
};
