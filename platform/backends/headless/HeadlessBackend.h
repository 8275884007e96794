#pragma once

#include <kroui/Export.h>
#include <kroui/backend/Backend.h>
#include <kroui/ui/KeyboardCode.h>

#include <cstddef>
#include <memory>
#include <span>

namespace kroui::backend {

/// The backend with no screen and no keyboard: what tests and offscreen runs
/// use. Its input is scripted: keys are pressed and released by calls, and each
/// message box is recorded and answered with a queued button, or, with none
/// queued, with its default button, as if the user pressed Enter.
class KROUI_API HeadlessBackend final : public Backend {
public:
  HeadlessBackend();
  ~HeadlessBackend() override;

  /// Makes a fresh headless backend current and returns it.
  static HeadlessBackend& Install();

  std::string_view GetName() const override;
  ui::ModifierKeys GetModifierState() const override;
  bool IsKeyDown(std::uint32_t virtualKey) const override;
  int ShowMessageBox(const ui::MessageBoxRequest& request) override;

  /// Holds a key down. A generic Ctrl or Alt is held on the side its extended
  /// bit names (set: right), a generic Shift on the left, as a PC keyboard sends them.
  void PressKey(ui::KeyboardCode key);
  void ReleaseKey(ui::KeyboardCode key);
  /// Holds exactly these of Shift, Ctrl and Alt: a modifier not held yet goes
  /// down on the left, one not in `modifiers` is released on both sides.
  void SetModifiers(ui::ModifierKeys modifiers);
  void ReleaseAllKeys();

  /// The button the next message box answers with; answers are used in the order queued.
  void QueueMessageBoxAnswer(int button);
  std::size_t GetQueuedAnswerCount() const;
  /// Every message box shown, oldest first.
  std::span<const ui::MessageBoxRequest> GetShownMessageBoxes() const;

  /// All keys up, no message box recorded, no answer queued.
  void Reset();

private:
  struct State;
  std::unique_ptr<State> mState;
};

} // namespace kroui::backend
