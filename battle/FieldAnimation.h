#pragma once

#include <cstdint>

#include "base/Pacer.h"
#include "battle/BattleView.h"
#include "battle/FieldPicture.h"
#include "battle/FieldScene.h"

namespace skylob {

/// A picture that moves: what has been drawn is shown and then held for a counted wait. What it is
/// made of must outlive it.
class FieldAnimation {
  public:
    FieldAnimation(FieldPicture& picture, BattleView& view, Pacer& pacer)
        : m_picture{picture}, m_view{view}, m_pacer{pacer} {}

    FieldPicture& picture() { return m_picture; }

    /// What is happening, for the eyes; to be brought up to date before each hold() and show().
    FieldScene& scene() { return m_scene; }
    const FieldScene& scene() const { return m_scene; }

    /// To be called before the first hold().
    void start() { m_pacer.startPacing(); }

    void hold(std::int32_t counts) {
        m_view.showField();
        m_pacer.countedWait(counts);
    }

    /// Shows what has been drawn without waiting.
    void show() { m_view.showField(); }

  private:
    FieldPicture& m_picture;
    BattleView& m_view;
    Pacer& m_pacer;
    FieldScene m_scene;
};

}  // namespace skylob
