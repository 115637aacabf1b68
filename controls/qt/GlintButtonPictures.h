#pragma once

#include <QHash>
#include <QImage>

#include "controls/GlintState.h"

namespace skylob {

class QtShapes;

/// What picture references stand for: one of the program's drawings and its size in logical
/// pixels, such as "shell 24", or the path of a picture file or resource in any format that the
/// toolkit reads. A file whose name ends in "@2x" has two of its pixels for a logical one, and so
/// on up to 9. A reference that stands for nothing is the same as none.
///
/// A file is read once, when it is first asked for.
class GlintPictures {
  public:
    /// `shapes` must outlive this object.
    explicit GlintPictures(const QtShapes& shapes) : m_shapes{shapes} {}

    /// The picture's size in logical pixels; empty for none.
    QSize size(const PictureReference& reference);

    /// The picture in device pixels, `ratio` of them for a logical one; null for none. Files are
    /// stretched without mixing their pixels, so that a mask colour stays itself.
    QImage at(const PictureReference& reference, qreal ratio);

  private:
    const QImage& file(const QString& path);
    int drawingSize(const QStringList& words) const;
    QImage made(const QString& reference, qreal ratio);

    const QtShapes& m_shapes;
    QHash<QString, QImage> m_files;
    QHash<QString, QImage> m_made;  ///< in device pixels
    qreal m_ratio = 0;              ///< of those
};

}  // namespace skylob
