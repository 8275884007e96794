#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace kroscripting::events {

/// A named number scripts can compare an event's values with.
struct ScriptConstant {
  std::string_view name;
  std::int64_t value;
};

/// The constants the scripting layer publishes. The command phases are the
/// values of a "ZELCommandEvent"'s "phase": none for a command posted by
/// ID, engaged on key down, disengaged on key up.
inline constexpr std::array kScriptConstants{
  ScriptConstant{"COMMAND_PHASE_NONE", 1},
  ScriptConstant{"COMMAND_PHASE_ENGAGED", 2},
  ScriptConstant{"COMMAND_PHASE_DISENGAGED", 3},
};

/// The value of a published constant; none for a name not published.
constexpr std::optional<std::int64_t> FindScriptConstant(std::string_view name) {
  for (const ScriptConstant& constant : kScriptConstants)
    if (constant.name == name) return constant.value;
  return std::nullopt;
}

} // namespace kroscripting::events
