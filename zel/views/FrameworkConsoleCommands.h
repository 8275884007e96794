#pragma once

#include <zel/Export.h>

#include <string_view>

namespace ZEL {

/// The framework's diagnostics in the platform console:
///
///   zel.colors     the colour registry, one "key = formula -> colour" line each
///   zel.stations   the framework's messaging stations and their listener counts
///   zel.settings   the custom settings the framework applies at start-up
class ZEL_API FrameworkConsoleCommands {
public:
  static constexpr std::string_view kColors = "zel.colors";
  static constexpr std::string_view kStations = "zel.stations";
  static constexpr std::string_view kSettings = "zel.settings";

  static void Register();
  static void Unregister();

  FrameworkConsoleCommands() = delete;
};

} // namespace ZEL
