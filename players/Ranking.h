#pragma once

#include <string>

#include "base/basSkylob.h"
#include "players/PlayerFile.h"

namespace skylob {

/// Enters a finished set into the records of its two players, found by their names, and puts the
/// whole list into its new order. Takes names, tallies and the set's Winner from `shared`. Names
/// that are not in the list are passed over; a list of one player is left without a ranking.
///
/// Records and order reach the disk in one step. Throws FileError; when only the new order could
/// not be stored, the two records are in the list all the same.
void RecordSetResults(PlayerFile& file, const basSkylob& shared);

/// Counts a set with this score in a record: sets played and won, and the average.
void countSet(PlayerRecord& record, int setScore, bool won);

/// The number that players are ranked by, the lower the better.
float rankingKey(const PlayerRecord& record);

/// A key with at least four digits, a point and two more digits, the same in every country. Lists
/// are sorted by this text and not by the number.
std::string formatKey(float key);

}  // namespace skylob
