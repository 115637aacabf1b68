#pragma once

#include <benchmark/benchmark.h>

#include <span>

namespace skylob {

/// What a figure's time is: the processor's, which other programs' work does not lengthen, or
/// that which goes by, for work in which the display or the clock has a part.
enum class Time { Spent, GoneBy };

/// Something measured, and what it is held against. Machines differ, so a budget is a ratio: how
/// many times the first figure of the table it may take, or what is said with `nominal`. Times are
/// seconds.
struct Figure {
    const char* what;
    void (*measure)(benchmark::State&);
    Time time = Time::Spent;
    double budget = 0;         ///< a figure above it is missed; 0: there is none
    double least = 0;          ///< so is one below
    double nominal = 0;        ///< where given, the figure is the measured time's ratio to it
    const char* of = nullptr;  ///< where given, `nominal` counts times of that earlier figure
};

/// Measures the figures that the command line asks for and prints a line for each: the measured
/// time, its budget, and its shares of the budget and of the first two figures. These are the
/// yardsticks, work that has nothing to do with the game, by which machines can be compared.
/// With repetitions the medians count. False when there was nothing to measure.
bool printFigures(std::span<const Figure> figures);

}  // namespace skylob
