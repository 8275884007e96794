#pragma once

#include <kroui/Export.h>
#include <kroui/Forward.h>
#include <kroui/base/PointerEvent.h>

#include <memory>
#include <string>

namespace kroui::ui {

/// Shows the one tooltip of the process: a small topmost pop-up window that
/// does not take the focus, with the text on one line per line of text.
/// Windows ask for it when the pointer has rested on a node with a tooltip
/// for that node's delay, and take it down on a press, a key, a wheel or
/// when the pointer leaves. UI thread only.
class KROUI_API ToolTipManager {
public:
  static constexpr int kDefaultInitialDelay = 500;

  static ToolTipManager& Instance();
  ToolTipManager(const ToolTipManager&) = delete;
  ToolTipManager& operator=(const ToolTipManager&) = delete;

  /// The delay, in milliseconds, of nodes that give none.
  void SetInitialDelay(int delayMs);
  int GetInitialDelay() const noexcept { return mInitialDelay; }

  /// Shows `text` with its top-left corner at `screenPoint`, moved inside the
  /// monitor that holds the point; `owner` is the window it speaks for.
  void Show(const std::string& text, Point screenPoint, const UI_Window* owner);
  void Hide();
  bool IsShown() const noexcept;
  const std::string& GetText() const noexcept { return mText; }
  const UI_Window* GetOwner() const noexcept { return mOwner; }
  /// The tooltip's own window while shown, else null.
  UI_Window* GetWindow() const noexcept { return mWindow.get(); }

  /// Hides the tooltip and restores the initial delay.
  void Reset();

private:
  ToolTipManager();
  ~ToolTipManager();

  std::unique_ptr<UI_Window> mWindow;
  std::string mText;
  const UI_Window* mOwner = nullptr;
  int mInitialDelay = kDefaultInitialDelay;
};

} // namespace kroui::ui
