#pragma once

#include <QImage>
#include <QList>
#include <QRect>
#include <QString>

class QWidget;

namespace skylob {

/// What kind of thing is to be told from its ground.
enum class PartKind { Text, Mark };

/// Something on a widget that is to be told from its ground; places are the widget's.
struct Part {
    PartKind kind = PartKind::Text;
    QString name;
    QRect place;        ///< all of it, with some of its ground around it
    QRect ground = {};  ///< where its ground is, if not along the edges of the place
};

/// The texts that the widget shows and the marks on it that mean something, as far as it is one of
/// the kinds of widgets on the program's screens.
QList<Part> partsOf(const QWidget& widget);

/// The contrast between the part and its ground on a picture in device pixels of a widget, as WCAG
/// 2 has it. A part is as good as its strongest pixels, because the edges of letters mix with the
/// ground. A text has to be read on the worst of its ground, a mark on most of it.
double contrastOf(const Part& part, const QImage& picture);

/// The same for a mark that is there on one of two pictures only: its pixels are those that change.
double contrastOfChange(const QImage& without, const QImage& with);

}  // namespace skylob
