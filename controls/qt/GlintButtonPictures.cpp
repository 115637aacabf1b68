#include "controls/qt/GlintButtonPictures.h"

#include <QStringList>
#include <algorithm>
#include <utility>

#include "look/qt/QtShapes.h"

namespace skylob {

namespace {

QSize logicalSize(const QImage& file) {
    return file.isNull() ? QSize{0, 0} : file.size() / file.devicePixelRatio();
}

}  // namespace

QSize GlintPictures::size(const PictureReference& reference) {
    const QString name = QString::fromStdString(reference);
    if (const int size = drawingSize(name.split(QLatin1Char{' '})); size > 0) return {size, size};
    return logicalSize(file(name));
}

QImage GlintPictures::at(const PictureReference& reference, qreal ratio) {
    if (std::exchange(m_ratio, ratio) != ratio) m_made.clear();
    const QString name = QString::fromStdString(reference);
    auto found = m_made.constFind(name);
    if (found == m_made.constEnd()) found = m_made.insert(name, made(name, ratio));
    return *found;
}

QImage GlintPictures::made(const QString& reference, qreal ratio) {
    const QStringList words = reference.split(QLatin1Char{' '});
    if (const int size = drawingSize(words); size > 0) {
        const int pixels = qRound(size * ratio);
        return m_shapes.render(words[0], {pixels, pixels}, QtShapes::Edges::Sharp);
    }
    QImage picture = file(reference);
    if (picture.isNull()) return {};
    picture = picture.scaled(logicalSize(picture) * ratio);
    picture.setDevicePixelRatio(1);
    return picture;
}

const QImage& GlintPictures::file(const QString& path) {
    auto found = m_files.constFind(path);
    if (found == m_files.constEnd())
        found = m_files.insert(path, path.isEmpty() ? QImage{} : QImage{path});
    return *found;
}

/// The edge length of a drawing that the reference names; 0 for any other reference.
int GlintPictures::drawingSize(const QStringList& words) const {
    if (words.size() != 2 || !m_shapes.names().contains(words[0])) return 0;
    return std::max(0, words[1].toInt());
}

}  // namespace skylob
