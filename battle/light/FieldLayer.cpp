#include "battle/light/FieldLayer.h"

#include <algorithm>
#include <utility>

#include "battle/PixelBlend.h"
#include "battle/light/ArrowLight.h"
#include "battle/light/BlastLight.h"
#include "battle/light/BoltLight.h"
#include "battle/light/GhostMark.h"
#include "battle/light/GunLight.h"
#include "battle/light/MeteorLight.h"
#include "battle/light/MoonLight.h"
#include "battle/light/MuzzleFlash.h"
#include "battle/light/RidgeLight.h"
#include "battle/light/ShellLight.h"
#include "battle/light/SkyLight.h"
#include "battle/light/StarLight.h"
#include "battle/light/TrailLight.h"

namespace skylob {

namespace {

constexpr std::uint32_t kBlackPixel = 0xFF000000u;
constexpr int kBand = 32;  // rows that are painted at a time, which keeps the canvas small

bool moves(const FieldScene& scene) {
    return scene.flight.inTheAir || scene.blast || !scene.meteor.empty() || !scene.bolts.empty();
}

/// The pieces as the rules draw them.
class PieceImages : public LightPainter {
  public:
    void follow(const FieldSight& sight, ChangedAreas&) override { m_picture = &sight.picture; }

    void paint(LightCanvas& canvas) const override {
        for (const int side : kSides) {
            const PixelRect area = m_picture->pieceArea(side);
            if (!area.isEmpty()) canvas.image(m_picture->pieceImage(side), area.x, area.y);
        }
    }

  private:
    const FieldPicture* m_picture = nullptr;
};

}  // namespace

FieldLayer::FieldLayer(const FieldPicture& picture, const FieldScene& scene,
                       const BattleState& state, GunDrawings* guns)
    : m_picture{picture}, m_scene{scene}, m_state{state} {
    // The lowest first.
    add<SkyLight>();
    add<RidgeLight>();
    add<MoonLight>();
    add<StarLight>();
    if (guns)
        m_guns = &add<GunLight>(*guns);
    else
        add<PieceImages>();
    add<GhostMark>();
    add<TrailLight>();
    add<MuzzleFlash>();
    add<ShellLight>();
    add<BlastLight>();
    add<BoltLight>();
    add<MeteorLight>();
    add<ArrowLight>();
}

FieldLayer::~FieldLayer() = default;

template <typename Painter, typename... Ports>
const Painter& FieldLayer::add(Ports&... ports) {
    auto painter = std::make_unique<Painter>(ports...);
    const Painter& added = *painter;
    m_painters.push_back(std::move(painter));
    return added;
}

void FieldLayer::setOn(bool on) {
    m_on = on;
    m_switched = true;
    if (!on) m_shown = {};
    m_width = m_height = 0;
}

const std::uint32_t* FieldLayer::pixels() const {
    return m_on ? m_shown.data() : m_picture.screenPixels();
}

bool FieldLayer::showsGuns(int py) const {
    return m_on && m_guns && m_guns->isIn(py);
}

bool FieldLayer::showsSky(int px, int py) const {
    const bool isPiece = std::any_of(kSides.begin(), kSides.end(),
                                     [&](int side) { return m_picture.showsPiece(side, px, py); });
    const std::uint32_t seen =
        isPiece ? m_picture.persistentPixel(px, py) : rules()[std::ptrdiff_t{py} * m_width + px];
    return seen == kBlackPixel && !m_guns->covers(px, py);
}

const std::vector<PixelRect>& FieldLayer::update(const PixelRect& changed) {
    m_changed.start({0, 0, m_picture.width(), m_picture.height()});
    m_changed.add(changed);
    const bool resized = takeSize();
    const bool remade = std::exchange(m_makings, m_picture.makings()) != m_picture.makings();
    const bool anew = std::exchange(m_switched, false) || resized || remade;
    if (anew) m_changed.addWhole();
    if (m_on) {
        look(anew);
        for (const PixelRect& area : m_changed.areas()) compose(area);
    }
    return m_changed.areas();
}

/// Whether the size is another one than before.
bool FieldLayer::takeSize() {
    if (!m_on || (m_width == m_picture.width() && m_height == m_picture.height())) return false;
    m_width = m_picture.width();
    m_height = m_picture.height();
    m_shown.assign(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height),
                   kBlackPixel);
    return true;
}

void FieldLayer::look(bool remade) {
    const bool moving = m_motion == Motion::Full && moves(m_scene);
    if (moving) ++m_step;
    if (remade) m_skyline.trace(m_picture, m_state.field.groundColour);
    const FieldSight sight{m_picture, m_scene, m_state, m_skyline,
                           remade,    moving,  m_step,  m_motion};
    for (const auto& painter : m_painters) painter->follow(sight, m_changed);
}

void FieldLayer::compose(const PixelRect& area) {
    for (int y = area.y; y < area.bottom(); y += kBand) {
        m_canvas.start({area.x, y, area.width, std::min(kBand, area.bottom() - y)});
        for (const auto& painter : m_painters) painter->paint(m_canvas);
        for (int line = y; line < m_canvas.area().bottom(); ++line) composeRow(line);
        for (const int side : kSides) composePiece(side);
    }
}

void FieldLayer::composeRow(int y) {
    const PixelRect& area = m_canvas.area();
    const auto first = static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
                       static_cast<std::size_t>(area.x);
    const std::uint32_t* const rules = m_picture.screenPixels() + first;
    std::transform(rules, rules + area.width, m_canvas.pixels(y), m_shown.data() + first,
                   [](std::uint32_t rule, std::uint32_t light) {
                       return rule == kBlackPixel ? rule | light : rule;
                   });
}

/// The rules' image of a piece gives way to what is under it.
void FieldLayer::composePiece(int side) {
    const PixelRect& band = m_canvas.area();
    const PixelRect area = common(m_picture.pieceArea(side), band);
    for (int y = area.y; y < area.bottom(); ++y) {
        for (int x = area.x; x < area.right(); ++x) {
            if (!m_picture.showsPiece(side, x, y)) continue;
            const auto at = static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
                            static_cast<std::size_t>(x);
            m_shown[at] = blend(m_picture.persistentPixel(x, y), m_canvas.pixels(y)[x - band.x]);
        }
    }
}

}  // namespace skylob
