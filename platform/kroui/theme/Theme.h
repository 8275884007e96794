#pragma once

#include <kroui/Export.h>
#include <kroui/drawbot/DrawTypes.h>
#include <kroui/theme/ThemeChangedFunctions.h>
#include <kroui/theme/ThemeDocument.h>

#include <krocore/utility/Result.h>

#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <string_view>
#include <vector>

namespace kroui::ui {

/// The application's theme: the colours of the loaded theme files at the
/// current brightness, their font sizes and values. One per process.
///
///   theme files --Load--> tracks by ID --GetColor(id) at GetBrightness()--> RGBA
///   SetBrightness, Load, Reset --> NotifyThemeChanged --> installed functions
///
/// Every operation may be called on any thread.
class KROUI_API Theme {
public:
  /// The dark level: a dark UI, the look the palettes are made for.
  static constexpr float kDefaultBrightness = 0.5f;

  static Theme& Get();

  float GetBrightness() const noexcept { return mBrightness.load(std::memory_order_relaxed); }
  /// Clamps to 0..1 and, when the brightness changes, notifies.
  void SetBrightness(float brightness);

  /// Calls the installed theme-changed functions on this thread.
  void NotifyThemeChanged();

  /// Adds a theme file's colours, fonts and values; an ID, font or value the
  /// file gives replaces what an earlier file said of it. Notifies. A file
  /// that cannot be read changes nothing.
  krocore::utility::Result<void> Load(std::string_view xml);
  /// The same for a resource compiled into a module.
  krocore::utility::Result<void> LoadFromModule(std::string_view module, std::u16string_view type,
                                                std::u16string_view name);
  /// Forgets every file and returns to the default brightness. Notifies.
  void Reset();

  /// Sets one key frame of an ID, replacing one at the same brightness.
  /// Does not notify: an editor makes several edits, then notifies once.
  void SetKeyFrame(const KeyFrame& frame);
  /// Removes the ID's key frame at brightness `t` (the ID loses its colour
  /// with its last frame); false when there is none. Does not notify.
  bool RemoveKeyFrame(ColorID id, float t);

  bool HasColor(ColorID id) const;
  /// The colour of an ID at the current brightness; opaque red for an ID no file gives.
  drawbot::ColorRGBA GetColor(ColorID id) const;
  drawbot::ColorRGBA GetColorAt(ColorID id, float brightness) const;
  /// The IDs that have colours, in ascending order.
  std::vector<ColorID> GetColorIDs() const;

  /// The ID that a loaded file's entity of this name stands for, when that ID has a colour.
  std::optional<ColorID> FindColorID(std::string_view entityName) const;

  std::optional<float> GetFontSize(FontText text, FontScheme scheme) const;
  std::optional<double> GetValue(ColorID id) const;

  Theme(const Theme&) = delete;
  Theme& operator=(const Theme&) = delete;

private:
  struct Palette;

  Theme();
  ~Theme();

  std::shared_ptr<const Palette> CurrentPalette() const;

  std::atomic<float> mBrightness{kDefaultBrightness};
  mutable std::mutex mPaletteLock;
  std::shared_ptr<const Palette> mPalette; // replaced whole, so readers never see half a load
};

/// Theme::Get().GetColor(id).
KROUI_API drawbot::ColorRGBA GetColor(ColorID id);

} // namespace kroui::ui
