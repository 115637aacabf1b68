#include "ContrastTable.h"

#include <algorithm>
#include <cstdio>

#include "look/Contrast.h"

namespace skylob {

void ContrastTable::add(const QString& place, const QString& state, const QString& what,
                        PartKind kind, double contrast) {
    const double limit = kind == PartKind::Text ? kTextContrast : kMarkContrast;
    add(place, state, what, {contrast, limit, 1});
}

void ContrastTable::tell(const QString& place, const QString& state, const QString& what,
                         double contrast) {
    add(place, state, what, {contrast, 0, 1});
}

void ContrastTable::add(const QString& place, const QString& state, const QString& what,
                        const Row& row) {
    Row& worst = m_rows[{place, state, what}];
    worst = {std::min(worst.contrast, row.contrast), row.limit, worst.count + row.count};
}

bool ContrastTable::print(bool onlyFailures) const {
    bool isGood = true;
    int count = 0;
    std::printf("%-24s %-18s %-34s %6s  %s\n", "place", "state", "what", "ratio", "limit");
    for (const auto& [key, row] : m_rows) {
        const auto& [place, state, what] = key;
        const bool fails = row.contrast < row.limit;
        isGood = isGood && !fails;
        count += row.count;
        if (onlyFailures && !fails) continue;
        const QString limit = row.limit > 0 ? QString::number(row.limit) : QStringLiteral("told");
        std::printf("%-24s %-18s %-34s %6.2f  %s%s\n", qPrintable(place), qPrintable(state),
                    qPrintable(what), row.contrast, qPrintable(limit), fails ? "  TOO WEAK" : "");
    }
    std::printf("%d texts and marks measured, the worst of each line told.\n", count);
    return isGood;
}

}  // namespace skylob
