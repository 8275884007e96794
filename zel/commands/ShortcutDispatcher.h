#pragma once
// Private to the shortcut manager (ShortcutManagerImpl.h).

#include <zel/commands/CommandTypes.h>
#include <zel/commands/KeySpec.h>
#include <zel/commands/ShortcutManager.h>

#include <kroui/Forward.h>

#include <cstdint>
#include <string>

namespace ZEL {

class ContextRegistry;

/// The keyboard road of the shortcut manager: from a key event to a command
/// posted to the target, by the rules of the current context in the
/// registry. Before a key is looked up in the current context:
///
///   suspended                      -> nothing is dispatched
///   auto-repeat of a non-repeating -> swallowed
///   drag in progress               -> the drag context's drag-enabled commands
///   key-up                         -> only for up-and-down commands
///
/// Nothing here allocates for a key that is bound to nothing.
class ShortcutDispatcher {
public:
  explicit ShortcutDispatcher(ContextRegistry& registry) noexcept : mRegistry(registry) {}

  bool DispatchKeyboardEvent(const kroui::ui::KeyboardEvent& event, bool preDispatch);
  /// Both passes with only the minimal map, then back to every shortcut.
  bool CheckMinimalShortcut(const kroui::ui::KeyboardEvent& event);
  static KeySpec MakeKeySpec(const kroui::ui::KeyboardEvent& event);
  bool CommandEnabled(const CommanderPtr& target, std::int32_t commandID) const;

  void SetSuspended(bool suspended) noexcept { mSuspended = suspended; }
  bool IsSuspended() const noexcept { return mSuspended; }

  std::int32_t GetOverrideMode() const noexcept { return mOverrideMode; }
  void SetOverrideMode(std::int32_t mode) noexcept;
  bool UsesMinimalMap() const noexcept { return mMinimalMap; }
  bool AltPassesThrough() const noexcept { return mAltPassesThrough; }

  void SetDragCommandContext(const std::string& name) { mDragContextName = name; }
  void SetDragInProgress(bool inProgress) noexcept { mDragInProgress = inProgress; }
  bool IsDragInProgress() const noexcept { return mDragInProgress; }

private:
  bool TranslateKeyboardEvent(const kroui::ui::KeyboardEvent& event, bool preDispatch);
  bool TranslateKeyboardEvent(const KeySpec& key, bool keyDown, bool preDispatch);
  bool KeyRepeatsTranslateKeyboardEvent(const kroui::ui::KeyboardEvent& event);
  bool KeyUsesUpAndDownState(const kroui::ui::KeyboardEvent& event);
  bool DragTranslateKeyboardEvent(const kroui::ui::KeyboardEvent& event);

  ContextRegistry& mRegistry;
  std::int32_t mOverrideMode = ShortcutManager::kOverrideMode_Everything;
  bool mMinimalMap = false;
  bool mAltPassesThrough = false;
  bool mSuspended = false;
  bool mDragInProgress = false;
  std::string mDragContextName;
};

} // namespace ZEL
