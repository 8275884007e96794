#include <zel/views/FrameworkConsoleCommands.h>

#include <zel/appearance/ColorManager.h>
#include <zel/views/CustomSettings.h>
#include <zel/views/FrameworkStations.h>

#include <krocore/console/ConsoleCommands.h>
#include <krocore/messaging/Station.h>

#include <sstream>
#include <string>

namespace ZEL {
namespace {

using Arguments = krocore::console::ConsoleCommands::Arguments;

std::string DumpColors(const Arguments&) {
  std::ostringstream out;
  ColorManager::DumpColors(out);
  return out.str();
}

std::string ListStations(const Arguments&) {
  std::string text;
  for (const auto& station : FrameworkStations::GetStations()) {
    text += std::string(station.View()) + ": ";
    text += krocore::messaging::StationExists(station)
                ? std::to_string(krocore::messaging::GetListenerCount(station)) + " listeners\n"
                : "not created\n";
  }
  return text;
}

std::string ListSettings(const Arguments&) {
  std::string text;
  for (const std::string& line : CustomSettings::Describe()) text += line + "\n";
  return text;
}

} // namespace

void FrameworkConsoleCommands::Register() {
  auto& commands = krocore::console::ConsoleCommands::Instance();
  commands.Register(kColors, "Lists the colour registry", DumpColors);
  commands.Register(kStations, "Lists the framework's messaging stations", ListStations);
  commands.Register(kSettings, "Lists the custom settings applied at start-up", ListSettings);
}

void FrameworkConsoleCommands::Unregister() {
  auto& commands = krocore::console::ConsoleCommands::Instance();
  for (std::string_view name : {kColors, kStations, kSettings}) commands.Unregister(name);
}

} // namespace ZEL
