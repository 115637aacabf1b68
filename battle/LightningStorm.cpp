#include "battle/LightningStorm.h"

#include <cstddef>
#include <string>

namespace skylob {

namespace {

constexpr int kFirstBoltColumn = 5, kLastBoltColumn = 995;
constexpr int kLowest = 5;             // a bolt ends that near to the ground
constexpr std::size_t kStretch = 100;  // points between two choices of the tendency
constexpr int kPauseSeconds = 50;      // at least; and for each bolt as many again at most

bool isInTheSky(FieldPoint at, const Battlefield& field) {
    return at.x >= kFirstBoltColumn && at.x <= kLastBoltColumn &&
           at.y > field.heightAt(at.x) + kLowest;
}

/// How far a bolt moves sideways on its way from the height y, -1 to 1. The sense, -1 or 0, of its
/// short runs throws it to the left and right, which makes it jagged. Its tendency, 1 (left) to
/// 3 (right), slows the runs that go the other way, and so tells where it is bound for; branches
/// part by it.
int sidewaysStep(int tendency, int sense, int y) {
    const int step = sense == -1 ? -1 : 1;
    const bool againstTendency = step * (tendency - 2) < 0;
    return againstTendency && y % 3 != 0 ? 0 : step;
}

}  // namespace

FieldPoint boltStart(const Bolt& previous, RandomSource& random) {
    const bool fromTheSky = previous.empty() || RandomInt(random, -1, 0) == -1;
    if (fromTheSky) return {RandomInt(random, 50, 950), 999};
    const auto length = static_cast<int>(previous.size());
    const int index = RandomInt(random, length * 3 / 10, length * 6 / 10);
    return previous[static_cast<std::size_t>(index)];
}

Bolt boltPath(FieldPoint start, const Battlefield& field, RandomSource& random,
              const std::function<bool()>& mayGoOn) {
    Bolt bolt;
    int tendency = 0, sense = 0, restOfRun = 0;
    for (FieldPoint at = start; isInTheSky(at, field); --at.y) {
        if (bolt.size() % kStretch == 0) {
            tendency = RandomInt(random, 1, 3);
            if (!mayGoOn()) break;
        }
        bolt.push_back(at);
        if (restOfRun == 0) {
            restOfRun = RandomInt(random, 1, 4);
            sense = RandomInt(random, -1, 0);
        }
        --restOfRun;
        at.x += sidewaysStep(tendency, sense, at.y);
    }
    return bolt;
}

std::string stormReport(std::int32_t millisecondsLeft, bool closing) {
    const std::int32_t seconds = (millisecondsLeft + 999) / 1000;
    const std::int32_t second = seconds % 60;
    std::string report = "A storm holds the field.  " + std::to_string(seconds / 60) +
                         (second < 10 ? ":0" : ":") + std::to_string(second);
    if (closing) report += "  Closing waits until it is over.";
    return report;
}

void LightningStorm::rage() {
    const int bolts = RandomInt(m_sky.random, 1, 4);
    strike(bolts);
    if (m_sky.effect.isInterrupted()) return clearSky();
    m_view.holdInput();
    // Quirk "distant thunder": whole seconds, and no input is taken meanwhile.
    const int pause = RandomInt(m_sky.random, kPauseSeconds, kPauseSeconds * (bolts + 1));
    holdTheField(pause);
    thunder(bolts);
    clearSky();
    // A window can be closed even while its input is held.
    if (m_sky.effect.serveEvents()) m_pacer.Wait(2);
    m_view.releaseInput();
}

void LightningStorm::strike(int bolts) {
    Bolt bolt;
    for (int number = 1; number <= bolts && !m_sky.effect.isInterrupted(); ++number) {
        const FieldPoint start = boltStart(bolt, m_sky.random);
        bolt = boltPath(start, m_sky.state.field, m_sky.random,
                        [this] { return m_sky.effect.serveEvents(); });
        draw(bolt);
    }
}

void LightningStorm::draw(const Bolt& bolt) {
    Bolt& seen = m_sky.animation.scene().bolts.emplace_back();
    for (const FieldPoint& at : bolt) {
        if (m_sky.effect.isInterrupted()) return;
        // Quirk "wide bolts": the pen is as the ground's lines left it, until something explodes.
        m_sky.animation.picture().setPassingPoint(at.x, at.y, kYellow, m_sky.state.penWidth);
        seen.push_back(at);
        m_sky.animation.show();
        m_sky.effect.serveEvents();
    }
}

void LightningStorm::holdTheField(int seconds) {
    m_pacer.waitWatched(static_cast<float>(seconds), [this](std::int32_t millisecondsLeft) {
        m_view.showStorm();
        m_view.showReport(stormReport(millisecondsLeft, m_sky.effect.isInterrupted()));
    });
    m_view.endStorm();
}

void LightningStorm::thunder(int bolts) {
    if (!m_sounds.areOn()) return;  // and nothing is drawn for it
    // The more bolts, the longer it rolls.
    std::string sound = "thunder";
    sound += std::to_string(RandomInt(m_sky.random, 1, 2) + (bolts <= 2 ? 0 : 1));
    m_sounds.PlaySound(sound);
}

void LightningStorm::clearSky() {
    // Quirk "swept sky": this takes the trails and the marks of impacts, too.
    m_sky.animation.picture().refresh();
    m_sky.animation.scene().bolts.clear();
    m_sky.animation.show();
}

}  // namespace skylob
