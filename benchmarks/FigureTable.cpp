#include "FigureTable.h"

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace skylob {

namespace {

constexpr const char* kLine = "%-45s %9s  %-12s %9s %9s %9s%s\n";

/// The seconds that each figure took, by its name.
class Medians : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context&) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override {
        // The median comes after the repetitions that it is made of.
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Iteration || run.aggregate_name == "median")
                seconds[run.run_name.function_name] = run.run_name.time_type.empty()
                                                          ? run.GetAdjustedCPUTime()
                                                          : run.GetAdjustedRealTime();
    }

    std::map<std::string, double> seconds;
};

std::string text(const char* format, double value) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, format, value);
    return buffer;
}

std::string timeText(double seconds) {
    if (seconds < 1e-6) return text("%.3g ns", seconds * 1e9);
    if (seconds < 1e-3) return text("%.3g us", seconds * 1e6);
    return text("%.3g ms", seconds * 1e3);
}

std::string share(double value, double whole) {
    return whole == 0 ? "-" : text("%.3g", value / whole);
}

std::string budgetText(const Figure& figure) {
    if (figure.budget == 0) return "-";
    if (figure.nominal == 0) return text("%.3g x fill", figure.budget);
    return text("%.2f to ", figure.least) + text("%.2f", figure.budget);
}

void printFigure(const Figure& figure, double seconds, double fill, double turns) {
    const bool isRatio = figure.nominal != 0;
    const double value = seconds / (isRatio ? figure.nominal : fill);
    const std::string measured = isRatio ? text("%.4f", value) : timeText(seconds);
    const bool missed = figure.budget != 0 && (value > figure.budget || value < figure.least);
    std::printf(kLine, figure.what, measured.c_str(), budgetText(figure).c_str(),
                share(value, figure.budget).c_str(), share(seconds, fill).c_str(),
                share(seconds, turns).c_str(), missed ? "  MISSED" : "");
}

}  // namespace

bool printFigures(std::span<const Figure> figures) {
    for (const Figure& figure : figures) {
        auto* added = benchmark::RegisterBenchmark(figure.what, figure.measure);
        added->Unit(benchmark::kSecond);
        if (figure.time == Time::GoneBy) added->UseRealTime();
    }
    Medians medians;
    if (benchmark::RunSpecifiedBenchmarks(&medians) == 0) return false;
    auto& seconds = medians.seconds;
    const double fill = seconds[figures[0].what], turns = seconds[figures[1].what];
    std::printf(kLine, "what", "measured", "budget", "of budget", "of fill", "of turns", "");
    for (Figure figure : figures) {
        if (figure.of) figure.nominal *= seconds[figure.of];
        if (seconds[figure.what] != 0) printFigure(figure, seconds[figure.what], fill, turns);
    }
    return true;
}

}  // namespace skylob
