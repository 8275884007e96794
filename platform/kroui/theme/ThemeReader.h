#pragma once

#include <kroui/Export.h>
#include <kroui/theme/ThemeDocument.h>

#include <krocore/utility/Result.h>

#include <string_view>

namespace kroui::ui {

/// Reads a theme file: XML with an inline DTD whose entities name the colour
/// IDs, the brightness levels and shared values.
///
///   <ThemeParameters>                      (version 1: <ThemeColors> is the root)
///     <ThemeColors>
///       <Theme t="&Dark;">                 a brightness position; "&General;" or
///         <KeyFrame name="&kColor_Focus;"  "&Generic;" marks colours that do not
///                   v=".8" h="210" s=".6"  follow the brightness
///                   a="1" hold="false"/>
///       </Theme>
///       <KeyFrame name=".." t="0.5" v=".."/>  a key frame may also stand alone
///     </ThemeColors>
///     <ThemeFonts><FontSize name="1" size="8" scheme="0"/></ThemeFonts>
///     <ThemeValues><ThemeValue name="&kOpacity;" v="0.6"/></ThemeValues>
///   </ThemeParameters>
///
/// A file that is not well-formed, names an undeclared entity or holds a
/// value out of its range is refused as a whole, with a message saying where.
class KROUI_API ThemeReader {
public:
  static krocore::utility::Result<ThemeDocument> Read(std::string_view xml);
};

} // namespace kroui::ui
