// Measures how well the computer plays: it has set after set played against two opponents that
// never change, and prints what came of it as two tables (docs/computer.md).
//   skylob_arena [--rounds N] [--seed S]
// N are the rounds of each row against each opponent, 10000 unless told, brought up to whole sets.

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "arena/Match.h"
#include "arena/Statistics.h"
#include "base/basSkylob.h"

namespace {

using namespace skylob::arena;

constexpr int kUnusableArguments = 2;

struct Level {
    int skill;
    const char* name;
};
constexpr Level kLevels[]{
    {skylob::kGoodSkill, "Good"}, {skylob::kFairSkill, "Fair"}, {skylob::kPoorSkill, "Poor"}};

struct Row {
    const char *level, *wind;
    Score passive, correcting;
};

struct Order {
    int rounds = 10'000;
    std::uint64_t seed = 1;
};

template <typename Number>
bool readNumber(std::string_view text, Number& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc{} && end == text.data() + text.size();
}

std::optional<Order> readOrder(int argc, char** argv) {
    Order order;
    for (int i = 1; i < argc; i += 2) {
        const std::string_view name{argv[i]}, value{i + 1 < argc ? argv[i + 1] : ""};
        const bool isRead = name == "--rounds" ? readNumber(value, order.rounds)
                                               : name == "--seed" && readNumber(value, order.seed);
        if (!isRead) return std::nullopt;
    }
    if (order.rounds < 1 || order.rounds > 1'000'000) return std::nullopt;
    return order;
}

std::vector<Row> playAll(const Order& order) {
    const int sets = (order.rounds + kRoundsInASet - 1) / kRoundsInASet;
    std::vector<Row> rows;
    for (const auto& [skill, name] : kLevels) {
        for (const bool wind : {false, true}) {
            const Match match{skill, wind, sets, order.seed};
            PassivePlayer passive;
            CorrectingPlayer correcting;
            rows.push_back(
                {name, wind ? "on" : "off", play(match, passive), play(match, correcting)});
        }
    }
    return rows;
}

/// A dash where the rounds do not tell it.
std::string figure(double value, int decimals) {
    if (!(value >= 0)) return "-";
    char text[32];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return text;
}

void print(const Estimate& estimate, int decimals, const char* unit = "") {
    const std::string value = figure(estimate.value, decimals),
                      low = figure(estimate.low, decimals), high = figure(estimate.high, decimals);
    std::printf(" %s%s [%s, %s] |", value.c_str(), unit, low.c_str(), high.c_str());
}

void printShare(int count, int total) {
    const auto [value, low, high] = share(count, total);
    print({100 * value, 100 * low, 100 * high}, 1, " %");
}

void printShots(const std::vector<Row>& rows) {
    std::puts(
        "| level | wind | median, first rounds | median, all rounds | mean | ended by it |\n"
        "|---|---|---|---|---|---|");
    for (const auto& [level, wind, score, other] : rows) {
        std::printf("| %s | %s |", level, wind);
        print(median(score.shotsToHitFirst, score.sets), 0);
        print(median(score.shotsToHit, score.rounds), 0);
        print(mean(score.shotsToHit), 2);
        printShare(static_cast<int>(score.shotsToHit.size()), score.rounds);
        std::puts("");
    }
}

void printWins(const std::vector<Row>& rows) {
    std::puts(
        "| level | wind | rounds, correcting | sets, correcting | rounds, passive "
        "| sets, passive |\n|---|---|---|---|---|---|");
    for (const Row& row : rows) {
        std::printf("| %s | %s |", row.level, row.wind);
        for (const Score* score : {&row.correcting, &row.passive}) {
            printShare(score->roundsWon, score->rounds);
            printShare(score->setsWon, score->sets);
        }
        std::puts("");
    }
}

}  // namespace

int main(int argc, char** argv) {
    const auto order = readOrder(argc, argv);
    if (!order) {
        std::fputs("usage: skylob_arena [--rounds N] [--seed S], N from 1 to 1000000\n", stderr);
        return kUnusableArguments;
    }
    const std::vector<Row> rows = playAll(*order);
    printShots(rows);
    std::puts("");
    printWins(rows);
    return EXIT_SUCCESS;
}
