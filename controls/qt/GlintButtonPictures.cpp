#include "controls/qt/GlintButtonPictures.h"

#include <QPainter>
#include <QStringList>

#include "look/qt/QtShapes.h"

namespace skylob {

namespace {

/// The edge length of a drawing that the reference names; 0 for any other reference.
int drawingSize(const QStringList& words, const QtShapes& shapes) {
    if (words.size() != 2 || !shapes.names().contains(words[0])) return 0;
    return std::max(0, words[1].toInt());
}

QStringList wordsOf(const PictureReference& reference) {
    return QString::fromStdString(reference).split(QLatin1Char{' '});
}

}  // namespace

QSize glintPictureSize(const PictureReference& reference, const QtShapes& shapes) {
    if (reference.empty()) return {0, 0};
    if (const int size = drawingSize(wordsOf(reference), shapes); size > 0) return {size, size};
    const QImage file{QString::fromStdString(reference)};
    return file.isNull() ? QSize{0, 0} : file.size() / file.devicePixelRatio();
}

QImage glintPicture(const PictureReference& reference, const QtShapes& shapes, qreal ratio) {
    if (reference.empty()) return {};
    const QStringList words = wordsOf(reference);
    if (const int size = drawingSize(words, shapes); size > 0) {
        const int pixels = qRound(size * ratio);
        return shapes.render(words[0], {pixels, pixels}, QtShapes::Edges::Sharp);
    }
    const QImage file{QString::fromStdString(reference)};
    if (file.isNull()) return {};
    return file.scaled(file.size() / file.devicePixelRatio() * ratio);
}

QImage flattened(QImage picture, Colour ground) {
    if (picture.isNull() || !picture.hasAlphaChannel()) return picture;
    QImage result{picture.size(), QImage::Format_RGB32};
    result.fill(qRgb(static_cast<int>(ground & 0xFF), static_cast<int>(ground >> 8 & 0xFF),
                     static_cast<int>(ground >> 16 & 0xFF)));
    QPainter{&result}.drawImage(0, 0, picture);
    return result;
}

}  // namespace skylob
