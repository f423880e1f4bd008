#pragma once

#include "platform/foundation/Bundle.h"

#include <QtCore/QSize>
#include <QtCore/QTemporaryDir>
#include <QtGui/QColor>

#include <memory>

class ImageView;

/// A copy of the bundle whose reference pictures are of one colour each, so that what becomes of
/// them can be told in numbers.
class ColorPictures
{
public:
    static constexpr QRgb kNatural = qRgb(200, 100, 50);
    static constexpr QRgb kVivid = qRgb(100, 150, 200);
    static constexpr QRgb kNone = qRgb(60, 120, 240);

    ColorPictures();

    std::shared_ptr<Bundle> bundle() const { return m_bundle; }

    /// The path of a picture of the bundle.
    QString path(const QString &name) const;

    void write(const QString &name, QRgb color, const QSize &size = QSize(4, 3)) const;

    /// Replaces a text throughout the panel's view resource.
    void editView(const QByteArray &text, const QByteArray &replacement) const;

private:
    QTemporaryDir m_folder;
    std::shared_ptr<Bundle> m_bundle;
};

/// The colour of the picture that the view shows; transparent when it shows none, or a picture of
/// more than one colour.
QRgb shownColor(const ImageView &view);

/// Whether the colours differ by this many levels a channel at most.
bool isWithin(int levels, QRgb shown, QRgb expected);
