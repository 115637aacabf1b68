#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "battle/Battle.h"

namespace skylob {

class picGameField;

/// Aiming by dragging: from the piece whose turn it is across the field. While that lasts, a line
/// shows where the shell would leave for, with both figures; the bars move once, at the release.
/// Esc drops the drag, and so does a shot, which takes the bars as they are. Lies over the whole
/// field, and lets all input through that is no drag's.
class QtDragAim : public QWidget {
    Q_OBJECT

  public:
    /// On the field, to which it belongs; `battle` must outlive it.
    QtDragAim(picGameField* field, Battle& battle);

    /// How far the pointer may go, in logical pixels, and the release still be a click's.
    static constexpr int kClickReach = 8;

    /// Ends a drag, if there is one, without having aimed.
    void drop();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool fieldEvent(QEvent* event);
    bool mayDrag() const;
    void press(const QPointF& at);
    void moveTo(const QPointF& at);
    bool release();
    void aim(const QPointF& at);
    FieldPoint piece() const;

    struct Drag {
        QPointF from, to;
        bool hasBegun = false;  ///< it has left the reach of a click
    };

    picGameField* m_field;
    Battle& m_battle;
    std::optional<Drag> m_drag;
    bool m_swallowsRelease = false;  ///< the button that began a dropped drag is still held
};

}  // namespace skylob
