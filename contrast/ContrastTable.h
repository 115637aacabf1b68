#pragma once

#include <QString>
#include <map>
#include <tuple>

#include "Parts.h"

namespace skylob {

/// What has been measured: of each kind of part, place and state the worst.
class ContrastTable {
  public:
    void add(const QString& place, const QString& state, const QString& what, PartKind kind,
             double contrast);

    /// What passes in seconds is told, and has no limit.
    void tell(const QString& place, const QString& state, const QString& what, double contrast);

    /// Prints a line for each; false when one is below its limit.
    bool print(bool onlyFailures) const;

  private:
    struct Row {
        double contrast = 21, limit = 0;
        int count = 0;
    };
    void add(const QString& place, const QString& state, const QString& what, const Row& row);

    std::map<std::tuple<QString, QString, QString>, Row> m_rows;
};

}  // namespace skylob
