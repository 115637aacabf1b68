#include "title/TitleScene.h"

#include <cmath>
#include <random>

#include "look/Theme.h"

namespace skylob {

namespace {

constexpr double kTurn = 6.283185307179586;

// Seconds of the loop.
constexpr double kMuzzleFlash = 0.45;
constexpr double kLaunch = 0.6;
constexpr double kHit = 2.8;
constexpr double kBlastOver = 3.7;
constexpr double kTrailGone = 3.8;

constexpr double kTwinklesPerSecond =
    1.5;  ///< brightness changes of a star, a whole number in the loop
constexpr int kStars = 110;
constexpr int kTrailDots = 64;
constexpr int kSparks = 14;

constexpr Colour kPale = Colour::fromRgb(0xFFE27A);
constexpr Colour kGold = themeColour("gold");
constexpr Colour kCoral = themeColour("side-1");

/// In 16 steps: a spot that has hardly changed is not painted again.
int alphaOf(double opacity) {
    return static_cast<int>(std::lround(opacity * 15)) * 17;
}

// The shell's path, from before the muzzle to the other gun.
constexpr int kFromX = kTitleGun.x + 38, kToX = kTitleTarget.x + 24, kPathY = kTitleGun.y + 8;

/// The path of the shell, u from 0 at the muzzle to 1 at the other gun.
TitleSpot onPath(double u, double radius, Colour colour, double opacity) {
    const double x = kFromX + (kToX - kFromX) * u, y = kPathY - 820 * u * (1 - u);
    return {x, y, radius, 0, colour, alphaOf(opacity)};
}

/// Above the mountain, whose peak is at 322, 92, and beside the moon.
bool isFreeSky(double x, double y) {
    const bool mountain = std::abs(x - 322) < 0.9 * (y - 80);
    return !mountain && std::hypot(x - kTitleMoon.x, y - kTitleMoon.y) > kTitleMoon.radius + 4;
}

void addTrail(std::vector<TitleSpot>& spots, double seconds) {
    if (seconds < kLaunch || seconds >= kTrailGone) return;
    const double flown = (seconds - kLaunch) / (kHit - kLaunch);
    const double opacity = seconds < kHit ? 1 : 1 - (seconds - kHit) / (kTrailGone - kHit);
    for (int i = 0; i < kTrailDots; ++i) {
        const double u = (i + 0.5) / kTrailDots;
        if (u < flown) spots.push_back(onPath(u, 1.3, kCoral, opacity));
    }
}

void addShell(std::vector<TitleSpot>& spots, double seconds) {
    if (seconds >= kMuzzleFlash && seconds < kLaunch)
        spots.push_back({kFromX + 2, kPathY - 1, 6, 0, kPale, 255});
    if (seconds < kLaunch || seconds >= kHit) return;
    const double flown = (seconds - kLaunch) / (kHit - kLaunch);
    spots.push_back(onPath(flown, 8, kPale, 0.27));
    spots.push_back(onPath(flown, 3.4, kPale, 1));
}

void addBlast(std::vector<TitleSpot>& spots, double seconds) {
    if (seconds < kHit || seconds >= kBlastOver) return;
    constexpr double x = kToX, y = kPathY;
    const double time = (seconds - kHit) / (kBlastOver - kHit);
    const double fading = 1 - time, spread = 1 - fading * fading;
    spots.push_back({x, y, 24 + 6 * spread, 0, kGold, alphaOf(0.5 * fading)});
    spots.push_back({x, y, 45 * spread, 4, kGold, alphaOf(fading)});
    spots.push_back({x, y, 17 + 3 * spread, 0, kPale, alphaOf(0.8 * fading)});
    spots.push_back({x, y, 10 * fading + 2, 0, kWhite, alphaOf(fading)});
    for (int i = 0; i < kSparks; ++i) {
        const double angle = kTurn * (i + 0.3) / kSparks;
        const double distance = 10 + (i % 2 ? 38 : 28) * spread;
        spots.push_back({x + distance * std::cos(angle), y + distance * std::sin(angle),
                         2.4 - 1.2 * time, 0, i % 2 ? kPale : kCoral, alphaOf(fading)});
    }
}

}  // namespace

TitleScene::TitleScene() {
    constexpr auto rgb = Colour::fromRgb;
    constexpr Colour kColours[] = {kWhite, kWhite,        kWhite,        rgb(0xE8EDF8),
                                   kWhite, rgb(0xAEEFF5), rgb(0xFFD24A), rgb(0xE8B0FF)};
    std::minstd_rand random{6};  // the same sky on every machine
    const auto below = [&random](double end) {
        return end * static_cast<double>(random() - 1) / 2147483646.0;
    };
    while (m_stars.size() < kStars) {
        const double x = below(kTitleWidth);
        const double y = below(174);
        const double size = below(0.6);
        const double phase = below(1);
        if (!isFreeSky(x, y)) continue;
        const Colour colour = kColours[m_stars.size() % std::size(kColours)];
        m_stars.push_back({{x, y, 0.7 + size, 0, colour}, m_stars.size() % 2 ? 2.0 : 3.0, phase});
    }
}

std::vector<TitleSpot> TitleScene::at(double seconds) const {
    seconds = std::fmod(seconds, kTitleLoopSeconds);
    std::vector<TitleSpot> spots;
    spots.reserve(kStars + kTrailDots + kSparks + 4);
    for (const Star& star : m_stars) {
        spots.push_back(star.spot);
        // Each star has moments of its own to change, or every few frames all would at once.
        const double moment =
            std::floor(seconds * kTwinklesPerSecond + star.phase) / kTwinklesPerSecond;
        const double swing = std::sin(kTurn * (moment / star.period + star.phase));
        spots.back().alpha = alphaOf(0.625 + 0.375 * swing);
    }
    addTrail(spots, seconds);
    addShell(spots, seconds);
    addBlast(spots, seconds);
    return spots;
}

}  // namespace skylob
