#pragma once

#include <kroui/Export.h>

#include <map>
#include <string>
#include <string_view>

namespace kroui::ui {

/// What a drop target answers: the operation the drop would perform. The
/// values are those of Windows' drop effects, so a native backend copies them across.
inline constexpr int kDropEffect_None = 0;
inline constexpr int kDropEffect_Copy = 1;
inline constexpr int kDropEffect_Move = 2;
inline constexpr int kDropEffect_Link = 4;

/// The data carried by a drag: one payload per format, named by a MIME-like
/// string ("text/plain;charset=utf-8", "application/x-zel-clip").
class KROUI_API DataObject {
public:
  static constexpr std::string_view kFormat_Text = "text/plain;charset=utf-8";

  void SetData(std::string_view format, std::string bytes);
  /// Null when the format is not carried.
  const std::string* GetData(std::string_view format) const;
  bool HasFormat(std::string_view format) const;
  std::size_t GetFormatCount() const noexcept { return mPayloads.size(); }

  void SetText(std::string utf8) { SetData(kFormat_Text, std::move(utf8)); }
  /// Empty when no text is carried.
  std::string GetText() const;

private:
  std::map<std::string, std::string, std::less<>> mPayloads;
};

} // namespace kroui::ui
