#include "screen/Fade.h"

#include <algorithm>

namespace skylob {

void Fade::StartFade(int start, int end, int step, AfterFade after) {
    m_current = start;
    m_end = end;
    m_step = step;
    m_after = after;
    m_active = true;
}

int Fade::tick() {
    m_current = m_current < m_end ? std::min(m_current + m_step, m_end)
                                  : std::max(m_current - m_step, m_end);
    m_active = m_current != m_end;
    return m_current;
}

}  // namespace skylob
