#include <zel/commands/ShortcutDispatcher.h>

#include <zel/commands/AnalyticsUtils.h>
#include <zel/commands/Command.h>
#include <zel/commands/Commander.h>
#include <zel/commands/ContextRegistry.h>

#include <krocore/debug/Assert.h>
#include <kroui/base/KeyboardEvent.h>

namespace ZEL {
namespace {

using kroui::ui::KeyboardEvent;

const krocore::utility::ImmutableString kPathKeyboardShortcut{"key-press:keyboard-shortcut"};
constexpr std::int32_t kUIActionKeyboardShortcut = 2;

CommandKeyMapID MapInUse(bool minimal) { return minimal ? CommandKeyMapID::Minimal : CommandKeyMapID::Standard; }

CommandPhase PhaseOf(bool keyDown) { return keyDown ? CommandPhase::Engaged : CommandPhase::Disengaged; }

} // namespace

KeySpec ShortcutDispatcher::MakeKeySpec(const KeyboardEvent& event) {
  const kroui::ui::KeyboardCode code = event.GetCode();
  const std::uint32_t key =
      code.IsExtended() && !code.IsPrintable() ? code.GetControlCode(false) : code.GetValue(true);
  return KeySpec(key, KeyModifiers(event.GetModKey().GetValue()));
}

void ShortcutDispatcher::SetOverrideMode(std::int32_t mode) noexcept {
  if (mode == mOverrideMode) return;
  mOverrideMode = mode;
  switch (mode) {
  case ShortcutManager::kOverrideMode_MinimalMap: mMinimalMap = true, mAltPassesThrough = false; break;
  case ShortcutManager::kOverrideMode_Everything: mMinimalMap = false, mAltPassesThrough = false; break;
  case ShortcutManager::kOverrideMode_MinimalMapAltToSystem: mMinimalMap = true, mAltPassesThrough = true; break;
  default: break;
  }
}

bool ShortcutDispatcher::DispatchKeyboardEvent(const KeyboardEvent& event, bool preDispatch) {
  if (mSuspended) return false;
  if (KeyRepeatsTranslateKeyboardEvent(event)) return true;
  if (DragTranslateKeyboardEvent(event)) return true;
  switch (event.GetAction()) {
  case KeyboardEvent::kAction_KeyDown:
    if (event.IsAutoRepeat() && KeyUsesUpAndDownState(event)) return false;
    return TranslateKeyboardEvent(event, preDispatch);
  case KeyboardEvent::kAction_KeyUp:
    return KeyUsesUpAndDownState(event) && TranslateKeyboardEvent(event, preDispatch);
  default: return false;
  }
}

bool ShortcutDispatcher::CheckMinimalShortcut(const KeyboardEvent& event) {
  if (DispatchKeyboardEvent(event, true)) return true;
  SetOverrideMode(ShortcutManager::kOverrideMode_MinimalMap);
  const bool consumed = DispatchKeyboardEvent(event, false);
  SetOverrideMode(ShortcutManager::kOverrideMode_Everything);
  return consumed;
}

bool ShortcutDispatcher::TranslateKeyboardEvent(const KeyboardEvent& event, bool preDispatch) {
  return TranslateKeyboardEvent(MakeKeySpec(event), event.GetAction() == KeyboardEvent::kAction_KeyDown,
                                preDispatch);
}

bool ShortcutDispatcher::KeyRepeatsTranslateKeyboardEvent(const KeyboardEvent& event) {
  if (event.GetAction() != KeyboardEvent::kAction_KeyDown || !event.IsAutoRepeat()) return false;
  CommandContext& context = mRegistry.GetCurrentContext();
  const KeySpec key = MakeKeySpec(event);
  return (!mMinimalMap || context.AllowedForExempt(key)) && !context.KeyRepeatAllowed(key);
}

bool ShortcutDispatcher::KeyUsesUpAndDownState(const KeyboardEvent& event) {
  KROCORE_ASSERT(event.GetAction() == KeyboardEvent::kAction_KeyUp ||
                     event.GetAction() == KeyboardEvent::kAction_KeyDown,
                 "inKeyEvent.GetAction() == kroui::ui::KeyboardEvent::kAction_KeyUp || inKeyEvent.GetAction() == "
                 "kroui::ui::KeyboardEvent::kAction_KeyDown");
  return !mMinimalMap && mRegistry.GetCurrentContext().KeyUsesUpAndDown(MakeKeySpec(event));
}

// While a drag runs, keys of the drag context's drag-enabled commands (say,
// a modifier that changes what the drop does) go to them at once.
bool ShortcutDispatcher::DragTranslateKeyboardEvent(const KeyboardEvent& event) {
  if (!mDragInProgress || mDragContextName.empty()) return false;
  if (event.GetAction() != KeyboardEvent::kAction_KeyDown && event.GetAction() != KeyboardEvent::kAction_KeyUp)
    return false;
  CommandContext& context = mRegistry.GetContext(mDragContextName);
  std::int32_t id = 0;
  if (!context.GetCommandIDFromKeySpec(MakeKeySpec(event), CommandKeyMapID::Standard, id)) return false;
  if (!context.IsDragEnabledCommand(id)) return false;
  CommanderPtr target = Commander::GetTarget();
  if (!target) return false;
  target->PostCommand(Command(id, PhaseOf(event.GetAction() == KeyboardEvent::kAction_KeyDown), kPathKeyboardShortcut));
  return true;
}

bool ShortcutDispatcher::TranslateKeyboardEvent(const KeySpec& key, bool keyDown, bool preDispatch) {
  CommandContext& context = mRegistry.GetCurrentContext();
  std::int32_t id = 0;
  const bool found = context.GetCommandIDFromKeySpec(key, MapInUse(mMinimalMap), id);
  CommandContext& blockContext = context.GetCommandNameFromID(id).empty() ? mRegistry.GetGlobalContext() : context;
  if (!found) return false;
  if (blockContext.IsCommandBlockedForContext(id, mRegistry.GetCurrentContextName())) return false;
  if (mAltPassesThrough && key.Alt()) return false;
  CommanderPtr target = Commander::GetTarget();
  if (!target || !CommandEnabled(target, id)) return false;
  if (preDispatch && !mRegistry.IsInPreDispatchMap(id) && !context.IsPreDispatchCommand(id)) return false;
  const Command command(id, PhaseOf(keyDown), kPathKeyboardShortcut);
  AnalyticsUtils::ScLogRecentUIActionAndCommandID scope(kUIActionKeyboardShortcut, id);
  return target->PostCommand(command);
}

bool ShortcutDispatcher::CommandEnabled(const CommanderPtr& target, std::int32_t commandID) const {
  bool enabled = false, checked = false;
  MenuMark mark = MenuMark::None;
  UTF8String text;
  if (mRegistry.IsMenuCommand(commandID))
    return !target->GetCommandStatus(target, commandID, enabled, checked, mark, text) || enabled;
  return !target->UpdateCommandForDisableMenuAppStatus(commandID, enabled, checked, mark, text, CommanderWeakPtr()) ||
         enabled;
}

} // namespace ZEL
