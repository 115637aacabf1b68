#include "battle/light/ShellLight.h"

namespace skylob {

void ShellLight::follow(const FieldSight& sight, ChangedAreas& changed) {
    const FieldScene::Flight& flight = sight.scene.flight;
    std::span<const FieldPoint> path{flight.path};
    if (!flight.inTheAir) path = {};
    m_comet.follow(sight, path, changed);
}

}  // namespace skylob
