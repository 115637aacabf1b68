#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "controls/GlintState.h"

namespace skylob {

/// A keyed store of typed values, kept with a form's layout: one bag for each of its controls.
class PropertyBag {
  public:
    virtual ~PropertyBag() = default;

    /// The value under the key, or `fallback` when there is none.
    virtual std::int32_t readInteger(std::string_view key, std::int32_t fallback) const = 0;
    virtual bool readBoolean(std::string_view key, bool fallback) const = 0;
    virtual std::string readText(std::string_view key, const std::string& fallback) const = 0;
    virtual GlintFont readFont(std::string_view key, const GlintFont& fallback) const = 0;

    virtual void writeInteger(std::string_view key, std::int32_t value) = 0;
    virtual void writeBoolean(std::string_view key, bool value) = 0;
    virtual void writeText(std::string_view key, const std::string& value) = 0;
    virtual void writeFont(std::string_view key, const GlintFont& value) = 0;
};

}  // namespace skylob
