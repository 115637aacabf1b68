#pragma once

#include <QByteArray>
#include <QColor>
#include <QHash>
#include <QImage>
#include <QPainterPath>
#include <QRectF>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

class QPainter;

namespace skylob {

/// The drawings of the game, kept as shapes on a small grid and painted at any size.
///
/// The text that holds them is described at the top of resources/pictures/shapes.txt. It is read
/// once, by the constructor; afterwards the object never changes.
class QtShapes {
  public:
    /// Smooth is antialiased, for drawings seen against other colours. Sharp leaves every pixel
    /// either painted in full or untouched, for drawings that are copied through a colour mask.
    enum class Edges { Smooth, Sharp };

    /// Reads the drawings of `text` (UTF-8).
    /// Throws std::runtime_error, naming the line (from 1) and what is wrong with it.
    explicit QtShapes(const QByteArray& text);

    /// The names of all drawings, in alphabetical order.
    QStringList names() const;

    /// Paints a drawing into `target`, in the painter's units. The whole grid is stretched to the
    /// target, in each direction by itself, and nothing is painted outside the target. The painter
    /// is left as it was found. Throws std::out_of_range if there is no drawing of that name.
    void paint(QPainter& painter, const QString& name, const QRectF& target, Edges edges) const;

    /// A drawing as an image of `pixels` device pixels on a transparent background, format
    /// ARGB32_Premultiplied, device pixel ratio 1; an empty size gives a null image.
    /// Throws std::out_of_range if there is no drawing of that name.
    QImage render(const QString& name, QSize pixels, Edges edges) const;

  private:
    struct Item {
        QPainterPath outline;
        QColor colour;
    };
    struct Picture {
        double grid = 1;
        QVector<Item> items;
    };

    const Picture& find(const QString& name) const;
    void readLine(const QStringList& words, QString& current);
    void begin(const QStringList& words);
    const Picture& included(const QStringList& words, const Picture& into) const;
    static Item readItem(const QStringList& words);

    QHash<QString, Picture> m_pictures;
};

/// The text of the program's own drawings, compiled into it.
QByteArray programDrawings();

}  // namespace skylob
