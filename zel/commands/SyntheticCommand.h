#pragma once

#include <zel/Export.h>
#include <zel/commands/CommandInfo.h>

#include <cstdint>
#include <optional>

namespace ZEL {

class Command;

/// Hands out command IDs at run time for commands that were not declared
/// with a fixed ID (plug-in panels, scripts). IDs count down from 32767; a
/// command name that was seen before gets its earlier ID back.
class ZEL_API SyntheticCommand {
public:
  static constexpr std::int32_t kFirstID = 32767;

  /// Creates the registry and starts counting again from kFirstID.
  static void Initialize();
  static void Terminate();

  /// The ID for a described command; the description is kept under it.
  static std::int32_t MakeID(const CommandInfo& description);
  static bool IsSynthetic(std::int32_t id) noexcept;
  static bool IsSynthetic(const Command& command) noexcept;
  static std::optional<CommandInfo> GetCommandInfo(std::int32_t id);
  static bool UnregisterCommand(std::int32_t id);
};

} // namespace ZEL
