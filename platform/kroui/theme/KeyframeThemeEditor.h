#pragma once

#include <kroui/Export.h>
#include <kroui/theme/ThemeDocument.h>

#include <cstddef>

namespace kroui::ui {

/// Edits the key frames of the process's theme, as a theme designer or a
/// framework's colour tools do: several edits, then one theme change.
///
///   KeyframeThemeEditor::Create().SetKeyFrame(frame)   the theme changes at once
///   ...RemoveKeyFrame(id, t)                           ...without telling anyone
///   ...NotifyThemeChanged()                            one notification for them all
///
/// There is at most one editor, between Create and Destroy. UI thread only.
class KROUI_API KeyframeThemeEditor {
public:
  /// The editor, made on the first call.
  static KeyframeThemeEditor& Create();
  /// Destroys the editor; edits not yet notified are notified first.
  static void Destroy();
  /// The editor, or null when none was created.
  static KeyframeThemeEditor* Get() noexcept;

  void SetKeyFrame(const KeyFrame& frame);
  /// False, and nothing to notify, when the ID has no key frame at `t`.
  bool RemoveKeyFrame(ColorID id, float t);
  /// The edits made since the last notification.
  std::size_t GetPendingEditCount() const noexcept { return mPendingEdits; }
  /// Notifies a theme change when there are edits to tell of.
  void NotifyThemeChanged();

  KeyframeThemeEditor(const KeyframeThemeEditor&) = delete;
  KeyframeThemeEditor& operator=(const KeyframeThemeEditor&) = delete;

private:
  KeyframeThemeEditor() = default;
  ~KeyframeThemeEditor() = default;

  std::size_t mPendingEdits = 0;
};

} // namespace kroui::ui
