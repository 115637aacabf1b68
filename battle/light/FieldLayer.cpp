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
constexpr int kBand = 32 * 1024;  // pixels that are painted at a time, which keeps the canvas small

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
    m_width = m_height = 0;
}

bool FieldLayer::showsGuns(int py) const {
    return m_on && m_guns && m_guns->isIn(py);
}

bool FieldLayer::showsSky(int px, int py) const {
    const bool isPiece = std::any_of(kSides.begin(), kSides.end(),
                                     [&](int side) { return m_picture.showsPiece(side, px, py); });
    const std::uint32_t seen = isPiece ? m_picture.persistentPixel(px, py) : rules()[index(px, py)];
    return seen == kBlackPixel && !m_guns->covers(px, py);
}

const std::vector<PixelRect>& FieldLayer::update(const PixelRect& changed) {
    m_changed.start({0, 0, m_picture.width(), m_picture.height()});
    m_changed.add(changed);
    const bool resized = takeSize();
    const bool remade = std::exchange(m_makings, m_picture.makings()) != m_picture.makings();
    const bool anew = std::exchange(m_switched, false) || resized || remade;
    if (anew) m_changed.addWhole();
    if (m_on) look(anew);
    if (!m_changed.areas().empty()) m_whole = {};
    return m_changed.areas();
}

/// Whether the size is another one than before.
bool FieldLayer::takeSize() {
    if (!m_on || (m_width == m_picture.width() && m_height == m_picture.height())) return false;
    m_width = m_picture.width();
    m_height = m_picture.height();
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

/// Whether the painters have seen a picture of the present size.
bool FieldLayer::isLit() const {
    return m_on && m_width == m_picture.width() && m_height == m_picture.height();
}

std::size_t FieldLayer::index(int px, int py) const {
    return static_cast<std::size_t>(py) * static_cast<std::size_t>(width()) +
           static_cast<std::size_t>(px);
}

void FieldLayer::paint(const PixelRect& area, const Sink& sink) {
    const PixelRect seen = common(area, {0, 0, width(), height()});
    if (seen.isEmpty()) return;
    if (const std::uint32_t* const all = stored())
        return sink({seen, all + index(seen.x, seen.y), width()});
    const int rows = std::max(kBand / seen.width, 1);
    for (int y = seen.y; y < seen.bottom(); y += rows) {
        compose({seen.x, y, seen.width, std::min(rows, seen.bottom() - y)});
        sink({m_canvas.area(), m_band.data(), seen.width});
    }
}

const std::uint32_t* FieldLayer::whole() {
    if (!stored()) {
        std::vector<std::uint32_t> all;
        all.reserve(index(0, m_height));
        paint({0, 0, m_width, m_height},
              [&](const Part&) { all.insert(all.end(), m_band.begin(), m_band.end()); });
        m_whole = std::move(all);
    }
    return stored();
}

/// All that is to be shown; null where it has to be composed.
const std::uint32_t* FieldLayer::stored() const {
    if (!isLit()) return rules();
    return m_whole.empty() ? nullptr : m_whole.data();
}

void FieldLayer::compose(const PixelRect& area) {
    m_band.resize(static_cast<std::size_t>(area.width) * static_cast<std::size_t>(area.height));
    m_canvas.start(area);
    for (const auto& painter : m_painters) painter->paint(m_canvas);
    for (int y = area.y; y < area.bottom(); ++y) composeRow(y);
    for (const int side : kSides) composePiece(side);
}

void FieldLayer::composeRow(int y) {
    const PixelRect& area = m_canvas.area();
    const std::uint32_t* const rules = m_picture.screenPixels() + index(area.x, y);
    std::uint32_t* const row = m_band.data() + std::ptrdiff_t{y - area.y} * area.width;
    std::transform(rules, rules + area.width, m_canvas.pixels(y), row,
                   [](std::uint32_t rule, std::uint32_t light) {
                       return rule == kBlackPixel ? rule | light : rule;
                   });
}

/// The rules' image of a piece gives way to what is under it.
void FieldLayer::composePiece(int side) {
    const PixelRect& band = m_canvas.area();
    const PixelRect area = common(m_picture.pieceArea(side), band);
    for (int y = area.y; y < area.bottom(); ++y) {
        const std::uint32_t* const light = m_canvas.pixels(y);
        std::uint32_t* const row = m_band.data() + std::ptrdiff_t{y - band.y} * band.width;
        for (int x = area.x; x < area.right(); ++x)
            if (m_picture.showsPiece(side, x, y))
                row[x - band.x] = blend(m_picture.persistentPixel(x, y), light[x - band.x]);
    }
}

}  // namespace skylob
