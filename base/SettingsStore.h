#pragma once

#include <string>
#include <string_view>

namespace skylob {

/// The user's preferences, kept between runs: texts by key. The program's title and the section
/// "Defaults" are the store's own affair; callers name only the key.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    /// The stored text, or `fallback` when the key is missing.
    virtual std::string get(std::string_view key, std::string_view fallback) const = 0;

    /// Stores the text under the key. A store that cannot be written keeps the value for this
    /// run at best; that is no error.
    virtual void save(std::string_view key, std::string_view value) = 0;
};

}  // namespace skylob
