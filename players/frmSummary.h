#pragma once

#include <QDialog>

#include "app/basSkylob.h"
#include "battle/BattleView.h"

namespace skylob {

class QtShapes;

/// What a round or a set came to: a heading and both players' figures. Run it with exec().
class frmSummary : public QDialog {
    Q_OBJECT

  public:
    /// `shapes` must outlive the screen.
    frmSummary(const basSkylob& shared, SummaryKind kind, const QtShapes& shapes);
};

}  // namespace skylob
