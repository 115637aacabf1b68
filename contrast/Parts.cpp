#include "Parts.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QStyleOptionGroupBox>
#include <QStyleOptionSlider>
#include <QTableView>
#include <QTextEdit>
#include <algorithm>
#include <vector>

#include "battle/qt/QtMenGauge.h"
#include "controls/qt/GlintButton.h"
#include "look/Contrast.h"
#include "look/qt/QtColour.h"
#include "screen/qt/QtSideFrame.h"

namespace skylob {

namespace {

constexpr int kBeside = 2;  // logical pixels of ground around a text
/// A blot of fewer pixels is not seen.
constexpr std::size_t kSeen = 4;

QRect withGround(const QRect& text) {
    return text.adjusted(-kBeside, 0, kBeside, 0);
}

QRect textPlace(const QWidget& widget, const QRect& room, int flags, const QString& text) {
    return withGround(widget.fontMetrics().boundingRect(room, flags, text) & widget.rect());
}

QRect around(QPoint middle, int reach) {
    return {middle - QPoint{reach, reach}, QSize{2 * reach + 1, 2 * reach + 1}};
}

QList<Part> partsOfLabel(const QLabel& label) {
    if (label.text().isEmpty()) return {};
    if (label.indent() > 0)  // a tool tip
        return {{PartKind::Text, QStringLiteral("text"), label.rect().adjusted(2, 2, -2, -2)}};
    const int flags =
        static_cast<int>(label.alignment()) | (label.wordWrap() ? Qt::TextWordWrap : 0);
    const QRect room = label.contentsRect();
    return {{PartKind::Text, QStringLiteral("text"), textPlace(label, room, flags, label.text())}};
}

QList<Part> partsOfButton(const GlintButton& button) {
    const GlintState& state = button.state();
    if (state.Caption.empty()) {
        const GlintRect& at = state.picturePlace;
        return {{PartKind::Mark, QStringLiteral("picture"),
                 QRect{at.left, at.top, at.width(), at.height()}}};
    }
    const GlintRect& at = state.currentState == kStatePressed ? state.textPressed : state.text;
    return {{PartKind::Text, QStringLiteral("caption"),
             withGround({at.left, at.top, at.width(), at.height()})}};
}

QList<Part> partsOfBox(const QAbstractButton& box) {
    const bool isRadio = qobject_cast<const QRadioButton*>(&box) != nullptr;
    QStyleOptionButton option;
    option.initFrom(&box);
    const auto part = [&](QStyle::SubElement check, QStyle::SubElement radio) {
        return box.style()->subElementRect(isRadio ? radio : check, &option, &box);
    };
    const QRect sign = part(QStyle::SE_CheckBoxIndicator, QStyle::SE_RadioButtonIndicator);
    const QRect text = part(QStyle::SE_CheckBoxContents, QStyle::SE_RadioButtonContents);
    QList<Part> parts{
        {PartKind::Text, QStringLiteral("caption"),
         textPlace(box, text, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, box.text())},
        {PartKind::Mark, QStringLiteral("box"), sign.adjusted(-2, -2, 2, 2)}};
    const int corner = isRadio ? 5 : 3;
    if (box.isChecked())
        parts.append({PartKind::Mark, QStringLiteral("tick"),
                      sign.adjusted(corner, corner, -corner, -corner)});
    return parts;
}

QList<Part> partsOfBar(const QScrollBar& bar) {
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.subControls = QStyle::SC_All;
    option.orientation = bar.orientation();
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.sliderPosition = option.sliderValue = bar.value();
    option.pageStep = bar.pageStep();
    option.singleStep = bar.singleStep();
    option.upsideDown = bar.invertedAppearance();
    const bool isHorizontal = bar.orientation() == Qt::Horizontal;
    option.state.setFlag(QStyle::State_Horizontal, isHorizontal);
    const auto part = [&](QStyle::SubControl which) {
        return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, which, &bar);
    };
    const QRect handle = part(QStyle::SC_ScrollBarSlider);
    const QRect groove = part(QStyle::SC_ScrollBarGroove);
    const bool roomBefore =
        isHorizontal ? handle.left() - groove.left() > 8 : handle.top() - groove.top() > 8;
    const int off = (isHorizontal ? handle.width() : handle.height()) / 2 + 4;
    const QPoint to = isHorizontal ? QPoint{off, 0} : QPoint{0, off};
    const QPoint beside = handle.center() + (roomBefore ? -to : to);
    QList<Part> parts{
        {PartKind::Mark, QStringLiteral("handle"), around(handle.center(), 2), around(beside, 1)}};
    if (!isHorizontal) return parts;
    for (const auto arrow : {QStyle::SC_ScrollBarSubLine, QStyle::SC_ScrollBarAddLine})
        parts.append({PartKind::Mark, QStringLiteral("arrow"), part(arrow).adjusted(3, 3, -3, -3)});
    return parts;
}

/// The badge of a side's frame, and its edge where that means something.
QList<Part> partsOfSideFrame(const QtSideFrame& frame) {
    const QPoint badge{20, 15}, edge{0, frame.height() / 2};
    const QRect panel = around(badge + QPoint{0, 16}, 1);
    const QRect beside{badge - QPoint{6, 0}, QSize{2, 1}};
    QList<Part> parts{{PartKind::Text, QStringLiteral("badge's number"), around(badge, 3), beside},
                      {PartKind::Mark, QStringLiteral("badge"), around(badge, 8), panel}};
    if (frame.property("turn").toInt() != 0 && frame.isEnabled())
        parts.append({PartKind::Mark, QStringLiteral("turn's edge"), QRect{edge, QSize{2, 8}},
                      QRect{edge + QPoint{3, 0}, QSize{3, 8}}});
    return parts;
}

QList<Part> partsOfFrame(const QGroupBox& frame) {
    QList<Part> parts;
    if (const auto* side = qobject_cast<const QtSideFrame*>(&frame))
        parts = partsOfSideFrame(*side);
    if (frame.title().isEmpty()) return parts;
    QStyleOptionGroupBox option;
    option.initFrom(&frame);
    option.text = frame.title();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    const QRect title = frame.style()->subControlRect(QStyle::CC_GroupBox, &option,
                                                      QStyle::SC_GroupBoxLabel, &frame);
    parts.append({PartKind::Text, QStringLiteral("title"), withGround(title)});
    return parts;
}

QList<Part> partsOfGauge(const QtMenGauge& gauge) {
    const QRect men = gauge.rect().adjusted(1, 1, -1, -1);
    return {{PartKind::Mark, QStringLiteral("men"), QRect{men.topLeft(), QSize{4, men.height()}},
             QRect{2, -4, 4, 2}}};
}

/// A row of the table is judged as a whole, and against the one below.
QList<Part> partsOfTable(const QTableView& table) {
    QList<Part> parts;
    const QPoint off = table.viewport()->pos();
    for (int row = 0; row < table.model()->rowCount(); ++row) {
        for (int column = 0; column < table.model()->columnCount(); ++column) {
            const QModelIndex index = table.model()->index(row, column);
            const QRect cell = table.visualRect(index).translated(off);
            const bool isSelected = table.selectionModel()->isRowSelected(row);
            if (cell.isEmpty() || index.data().toString().isEmpty()) continue;
            parts.append({PartKind::Text,
                          isSelected ? QStringLiteral("chosen row") : QStringLiteral("row"),
                          cell.adjusted(2, 2, -2, -2)});
            if (isSelected && column == 0)
                parts.append({PartKind::Mark, QStringLiteral("the row's choice"),
                              around(cell.topLeft() + QPoint{1, cell.height() / 2}, 1),
                              around(cell.bottomLeft() + QPoint{1, cell.height() / 2}, 1)});
        }
    }
    return parts;
}

QList<Part> partsOfHeader(const QHeaderView& header) {
    QList<Part> parts;
    for (int i = 0; i < header.count(); ++i)
        if (!header.isSectionHidden(i))
            parts.append(
                {PartKind::Text, QStringLiteral("header"),
                 QRect{header.sectionViewportPosition(i), 0, header.sectionSize(i), header.height()}
                     .adjusted(3, 3, -3, -3)});
    return parts;
}

QList<Part> partsOfMenu(const QMenu& menu) {
    QList<Part> parts;
    for (QAction* item : menu.actions()) {
        const QRect place = menu.actionGeometry(item);
        const bool isActive = item == menu.activeAction();
        parts.append({PartKind::Text,
                      isActive ? QStringLiteral("item with the focus") : QStringLiteral("item"),
                      place.adjusted(28, 3, -6, -3)});
        if (isActive)
            parts.append({PartKind::Mark, QStringLiteral("the item's choice"),
                          QRect{place.left(), place.center().y() - 3, 3, 6},
                          QRect{place.left() + 40, place.bottom() + 2, 3, 2}});
        if (item->isChecked())
            parts.append({PartKind::Mark, QStringLiteral("tick"),
                          QRect{place.left() + 6, place.top() + 3, 20, place.height() - 6}});
    }
    return parts;
}

QList<Part> oneText(const char* name, const QRect& place) {
    return {{PartKind::Text, QLatin1String{name}, place}};
}

/// The colours of a place, the darkest first.
std::vector<double> lightIn(const QRect& place, const QImage& picture) {
    std::vector<double> light;
    const QRect seen = place & picture.rect();
    for (int y = seen.top(); y <= seen.bottom(); ++y)
        for (int x = seen.left(); x <= seen.right(); ++x)
            light.push_back(luminance(Colour::fromRgb(picture.pixel(x, y))));
    std::ranges::sort(light);
    return light;
}

std::vector<double> lightAlongEdges(const QRect& place, const QImage& picture) {
    std::vector<double> all;
    for (const QRect& edge : {QRect{place.topLeft(), QSize{place.width(), 1}},
                              QRect{place.bottomLeft(), QSize{place.width(), 1}},
                              QRect{place.topLeft(), QSize{1, place.height()}},
                              QRect{place.topRight(), QSize{1, place.height()}}}) {
        const std::vector<double> light = lightIn(edge, picture);
        all.insert(all.end(), light.begin(), light.end());
    }
    std::ranges::sort(all);
    return all;
}

double ratio(double one, double other) {
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

/// The contrasts of some light to all of the ground's, the least first.
std::vector<double> ratios(const std::vector<double>& lights, double to) {
    std::vector<double> all;
    all.reserve(lights.size());
    for (const double light : lights) all.push_back(ratio(light, to));
    std::ranges::sort(all);
    return all;
}

}  // namespace

QList<Part> partsOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return partsOfLabel(*label);
    if (const auto* button = qobject_cast<const GlintButton*>(&widget))
        return partsOfButton(*button);
    if (const auto* box = qobject_cast<const QAbstractButton*>(&widget)) return partsOfBox(*box);
    if (const auto* bar = qobject_cast<const QScrollBar*>(&widget)) return partsOfBar(*bar);
    if (const auto* frame = qobject_cast<const QGroupBox*>(&widget)) return partsOfFrame(*frame);
    if (const auto* gauge = qobject_cast<const QtMenGauge*>(&widget)) return partsOfGauge(*gauge);
    if (const auto* table = qobject_cast<const QTableView*>(&widget)) return partsOfTable(*table);
    if (const auto* menu = qobject_cast<const QMenu*>(&widget)) return partsOfMenu(*menu);
    if (const auto* header = qobject_cast<const QHeaderView*>(&widget))
        return partsOfHeader(*header);
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return oneText("line", line->rect().adjusted(4, 4, -4, -4));
    if (const auto* text = qobject_cast<const QTextEdit*>(&widget))
        return oneText("text", text->viewport()->geometry());
    return {};
}

double contrastOf(const Part& part, const QImage& picture) {
    const std::vector<double> ground =
        part.ground.isNull() ? lightAlongEdges(part.place, picture) : lightIn(part.ground, picture);
    std::vector<double> strongest = lightIn(part.place, picture);
    if (ground.empty() || strongest.empty()) return 1;  // scrolled out of sight
    const double usual = ground[ground.size() / 2];
    std::ranges::sort(strongest, std::greater{},
                      [usual](double light) { return ratio(light, usual); });
    const double ink = strongest[std::min(kSeen, strongest.size()) - 1];
    const std::vector<double> all = ratios(ground, ink);
    // The worst quarter's best: letters, underlines and focus marks may reach the edges.
    return part.kind == PartKind::Mark ? all[all.size() / 2] : all[all.size() / 4];
}

double contrastOfChange(const QImage& without, const QImage& with) {
    std::vector<double> all;
    for (int y = 0; y < with.height(); ++y)
        for (int x = 0; x < with.width(); ++x) {
            const QRgb before = without.pixel(x, y), after = with.pixel(x, y);
            if (before != after)
                all.push_back(contrast(Colour::fromRgb(before), Colour::fromRgb(after)));
        }
    if (all.size() < kSeen) return 1;
    std::ranges::sort(all);
    return all[all.size() / 2];
}

}  // namespace skylob
