#pragma once

#include <string>
#include <string_view>

namespace kroui::testing {

/// A theme file with the given entity declarations and <ThemeColors> content.
inline std::string ThemeXML(std::string_view entities, std::string_view colors, std::string_view rest = "") {
  return std::string("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE ThemeParameters [\n") +
         "<!ENTITY General \"0.0\"> <!ENTITY Darkest \"0.0\"> <!ENTITY Dark \"0.5\">\n"
         "<!ENTITY Light \"0.5001\"> <!ENTITY Lightest \"1.0\">\n" +
         std::string(entities) + "\n]>\n<ThemeParameters><ThemeColors>" + std::string(colors) +
         "</ThemeColors>" + std::string(rest) + "</ThemeParameters>\n";
}

} // namespace kroui::testing
