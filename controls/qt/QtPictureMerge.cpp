#include "controls/qt/QtPictureMerge.h"

#include <QPainter>

namespace skylob {

namespace {

template <typename Byte>
PixelArray<Byte> pixels(Byte* bits, const QImage& image) {
    return {std::span<Byte>{bits, static_cast<std::size_t>(image.sizeInBytes())}, image.width(),
            image.height(), static_cast<int>(image.bytesPerLine())};
}

/// The picture's colours as if it were opaque.
QImage coloursOf(QImage picture) {
    // An ordinary conversion would lose precision where the picture is nearly transparent.
    picture.convertTo(QImage::Format_ARGB32);
    picture.reinterpretAsFormat(QImage::Format_RGB32);
    return picture.convertToFormat(QImage::Format_BGR888);
}

}  // namespace

void mergePicture(QImage& face, QPoint place, const QImage& picture, const TransferEffects& effects,
                  std::optional<Colour> transparent) {
    const QRect wanted{place, picture.size()};
    const QRect area = wanted.intersected(face.rect());
    if (area.isEmpty()) return;
    const QImage part = picture.copy(area.translated(-wanted.topLeft()));
    const QImage source = coloursOf(part);
    QImage target = face.copy(area).convertToFormat(QImage::Format_BGR888);
    TransferPicture(pixels<const std::uint8_t>(source.constBits(), source),
                    pixels<std::uint8_t>(target.bits(), target), effects, transparent);
    if (part.hasAlphaChannel()) target.setAlphaChannel(part.convertToFormat(QImage::Format_Alpha8));
    QPainter{&face}.drawImage(area.topLeft(), target);
}

QImage onGround(const QImage& picture, const QColor& ground) {
    if (picture.isNull() || !picture.hasAlphaChannel()) return picture;
    QImage result{picture.size(), QImage::Format_RGB32};
    result.fill(ground);
    QPainter{&result}.drawImage(0, 0, picture);
    return result;
}

}  // namespace skylob
