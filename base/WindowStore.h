#pragma once

#include <string>
#include <string_view>

namespace skylob {

/// "1" when there is light over the battlefield, which is what is done without it; "0" when not.
inline constexpr std::string_view kEffectsKey = "Effects";

/// What is remembered of windows and not of the game: places and sizes, the effects over the field,
/// the scale, the volume, hints that have been seen. Texts by key, in a file of their own: losing
/// it costs nothing.
class WindowStore {
  public:
    virtual ~WindowStore() = default;

    /// The stored text, or `fallback` when the key is missing.
    virtual std::string recall(std::string_view key, std::string_view fallback) const = 0;

    /// Stores the text under the key. A store that cannot be written keeps the value for this
    /// run at best; that is no error.
    virtual void keep(std::string_view key, std::string_view value) = 0;
};

}  // namespace skylob
