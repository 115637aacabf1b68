#pragma once

#include <benchmark/benchmark.h>

namespace skylob {

/// Records one set in a list of so many players, re-ranks and rewrites it, but does not wait for
/// the disk.
template <int players>
void recordSet(benchmark::State& state);

/// Fills the lobby's grid with so many records, and paints it.
template <int players>
void fillGrid(benchmark::State& state);

}  // namespace skylob
