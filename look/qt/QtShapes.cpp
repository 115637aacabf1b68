#include "look/qt/QtShapes.h"

#include <QFile>
#include <QPainter>
#include <QPainterPathStroker>
#include <QPolygonF>
#include <QTransform>
#include <cmath>
#include <stdexcept>

#include "look/qt/QtColour.h"

namespace skylob {

namespace {

void require(bool good, const char* wanted, const QString& found) {
    if (!good) throw std::runtime_error(std::string(wanted) + ": " + found.toStdString());
}

double readNumber(const QString& word) {
    bool good = false;
    const double value = word.toDouble(&good);
    require(good && std::isfinite(value), "not a number", word);
    return value;
}

double readSize(const QString& word) {
    const double size = readNumber(word);
    require(size > 0, "must be above 0", word);
    return size;
}

QColor readColour(const QString& word) {
    if (word.startsWith(u'@')) {
        const auto colour = findThemeColour(word.mid(1).toStdString());
        require(colour.has_value(), "not a colour of the theme", word);
        return toQColor(*colour);
    }
    const QColor colour(word);
    // QColor also takes colour names and shorter or longer numbers, which here are slips.
    require(word.size() == 7 && word[0] == u'#' && colour.isValid(), "not a #RRGGBB colour", word);
    return colour;
}

QPolygonF readPoints(const QStringList& words, int fewest) {
    require(words.size() >= fewest, "too few points", words.join(u' '));
    QPolygonF points;
    for (const QString& word : words) {
        const QStringList xy = word.split(u',');
        require(xy.size() == 2, "not a point x,y", word);
        points << QPointF(readNumber(xy[0]), readNumber(xy[1]));
    }
    return points;
}

QPainterPath linePath(double width, const QPolygonF& points) {
    QPainterPath line;
    line.addPolygon(points);
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::FlatCap);
    stroker.setJoinStyle(Qt::MiterJoin);
    return stroker.createStroke(line);
}

QPainterPath boxPath(bool round, const QString& word) {
    const QStringList box = word.split(u',');
    require(box.size() == 4, "wants four numbers", word);
    const QPointF place(readNumber(box[0]), readNumber(box[1]));
    const QSizeF size(readSize(box[2]), readSize(box[3]));
    QPainterPath path;
    if (round) {
        path.addEllipse(place, size.width(), size.height());
    } else {
        path.addRect(QRectF(place, size));
    }
    return path;
}

}  // namespace

QtShapes::QtShapes(const QByteArray& text) {
    const QStringList lines = QString::fromUtf8(text).split(u'\n');
    QString current;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString line = lines[i].simplified();
        if (line.isEmpty() || line.startsWith(u'#')) continue;
        try {
            readLine(line.split(u' '), current);
        } catch (const std::runtime_error& error) {
            throw std::runtime_error("shapes, line " + std::to_string(i + 1) + ": " + error.what());
        }
    }
}

void QtShapes::readLine(const QStringList& words, QString& current) {
    if (words[0] == u"picture") {
        begin(words);
        current = words[1];
        return;
    }
    require(!current.isEmpty(), "stands before the first picture", words[0]);
    Picture& picture = m_pictures[current];
    if (words[0] == u"include") {
        picture.items += included(words, picture).items;
    } else if (words[0] == u"mirror") {
        require(words.size() == 1, "mirror stands alone", words.join(u' '));
        const QTransform flip(-1, 0, 0, 1, picture.grid, 0);
        for (Item& item : picture.items) item.outline = flip.map(item.outline);
    } else {
        picture.items << readItem(words);
    }
}

void QtShapes::begin(const QStringList& words) {
    require(words.size() == 3, "wants picture NAME GRID", words.join(u' '));
    require(!m_pictures.contains(words[1]), "second picture of this name", words[1]);
    const double grid = readSize(words[2]);
    m_pictures[words[1]].grid = grid;
}

const QtShapes::Picture& QtShapes::included(const QStringList& words, const Picture& into) const {
    require(words.size() == 2, "wants include NAME", words.join(u' '));
    const auto other = m_pictures.constFind(words[1]);
    require(other != m_pictures.constEnd() && &*other != &into, "no earlier picture", words[1]);
    require(other->grid == into.grid, "has another grid", words[1]);
    return *other;
}

QtShapes::Item QtShapes::readItem(const QStringList& words) {
    const QString& kind = words[0];
    require(kind == u"P" || kind == u"R" || kind == u"E" || kind == u"L", "unknown word", kind);
    require(words.size() >= 3, "wants a colour and numbers", words.join(u' '));
    const QColor colour = readColour(words[1]);
    if (kind == u"L") return {linePath(readSize(words[2]), readPoints(words.mid(3), 2)), colour};
    if (kind == u"P") {
        QPainterPath polygon;
        polygon.addPolygon(readPoints(words.mid(2), 3));
        return {polygon, colour};
    }
    require(words.size() == 3, "wants four numbers in one word", words.join(u' '));
    return {boxPath(kind == u"E", words[2]), colour};
}

const QtShapes::Picture& QtShapes::find(const QString& name) const {
    const auto found = m_pictures.constFind(name);
    if (found == m_pictures.constEnd()) {
        throw std::out_of_range("no picture named " + name.toStdString());
    }
    return *found;
}

QStringList QtShapes::names() const {
    QStringList all = m_pictures.keys();
    all.sort();
    return all;
}

void QtShapes::paint(QPainter& painter, const QString& name, const QRectF& target,
                     Edges edges) const {
    const Picture& picture = find(name);
    painter.save();
    painter.setClipRect(target, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing, edges == Edges::Smooth);
    painter.translate(target.topLeft());
    painter.scale(target.width() / picture.grid, target.height() / picture.grid);
    for (const Item& item : picture.items) painter.fillPath(item.outline, item.colour);
    painter.restore();
}

QImage QtShapes::render(const QString& name, QSize pixels, Edges edges) const {
    find(name);
    if (pixels.isEmpty()) return {};
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paint(painter, name, QRectF(QPointF(0, 0), QSizeF(pixels)), edges);
    return image;
}

QByteArray programDrawings() {
    QFile file{QStringLiteral(":/pictures/shapes.txt")};
    if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("the drawings are missing");
    return file.readAll();
}

}  // namespace skylob
