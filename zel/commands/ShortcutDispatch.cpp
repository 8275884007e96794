// The keyboard road of the shortcut manager: from a key event to a posted
// command. Nothing here allocates for a key that is bound to nothing.
#include <zel/commands/ShortcutManager.h>

#include <zel/commands/AnalyticsUtils.h>
#include <zel/commands/Command.h>
#include <zel/commands/Commander.h>

#include <krocore/debug/Assert.h>

namespace ZEL {
namespace {

using kroui::ui::KeyboardEvent;

const krocore::utility::ImmutableString kPathKeyboardShortcut{"key-press:keyboard-shortcut"};
constexpr std::int32_t kUIActionKeyboardShortcut = 2;

CommandKeyMapID MapInUse(bool minimal) { return minimal ? CommandKeyMapID::Minimal : CommandKeyMapID::Standard; }

} // namespace

KeySpec ShortcutManager::MakeKeySpec(const KeyboardEvent& event) {
  const kroui::ui::KeyboardCode code = event.GetCode();
  const std::uint32_t key =
      code.IsExtended() && !code.IsPrintable() ? code.GetControlCode(false) : code.GetValue(true);
  return KeySpec(key, KeyModifiers(event.GetModKey().GetValue()));
}

bool ShortcutManager::DispatchKeyboardEvent(const KeyboardEvent& event, bool preDispatch) {
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

bool ShortcutManager::TranslateKeyboardEvent(const KeyboardEvent& event, bool preDispatch) {
  return TranslateKeyboardEvent(MakeKeySpec(event), event.GetAction() == KeyboardEvent::kAction_KeyDown,
                                preDispatch);
}

bool ShortcutManager::KeyRepeatsTranslateKeyboardEvent(const KeyboardEvent& event) {
  if (event.GetAction() != KeyboardEvent::kAction_KeyDown || !event.IsAutoRepeat()) return false;
  CommandContext& context = CurrentContext();
  const KeySpec key = MakeKeySpec(event);
  return (!mMinimalMap || context.AllowedForExempt(key)) && !context.KeyRepeatAllowed(key);
}

bool ShortcutManager::KeyUsesUpAndDownState(const KeyboardEvent& event) {
  KROCORE_ASSERT(event.GetAction() == KeyboardEvent::kAction_KeyUp ||
                     event.GetAction() == KeyboardEvent::kAction_KeyDown,
                 "inKeyEvent.GetAction() == kroui::ui::KeyboardEvent::kAction_KeyUp || inKeyEvent.GetAction() == "
                 "kroui::ui::KeyboardEvent::kAction_KeyDown");
  return !mMinimalMap && CurrentContext().KeyUsesUpAndDown(MakeKeySpec(event));
}

// While a drag runs, keys of the drag context's drag-enabled commands (say,
// a modifier that changes what the drop does) go to them at once.
bool ShortcutManager::DragTranslateKeyboardEvent(const KeyboardEvent& event) {
  if (!mDragInProgress || mDragContextName.empty()) return false;
  if (event.GetAction() != KeyboardEvent::kAction_KeyDown && event.GetAction() != KeyboardEvent::kAction_KeyUp)
    return false;
  CommandContext& context = GetContext(mDragContextName);
  std::int32_t id = 0;
  if (!context.GetCommandIDFromKeySpec(MakeKeySpec(event), CommandKeyMapID::Standard, id)) return false;
  if (!context.IsDragEnabledCommand(id)) return false;
  CommanderPtr target = Commander::GetTarget();
  if (!target) return false;
  const bool keyDown = event.GetAction() == KeyboardEvent::kAction_KeyDown;
  target->PostCommand(Command(id, keyDown ? CommandPhase::Engaged : CommandPhase::Disengaged, kPathKeyboardShortcut));
  return true;
}

bool ShortcutManager::TranslateKeyboardEvent(const KeySpec& key, bool keyDown, bool preDispatch) {
  CommandContext& context = CurrentContext();
  std::int32_t id = 0;
  const bool found = context.GetCommandIDFromKeySpec(key, MapInUse(mMinimalMap), id);
  CommandContext& blockContext = context.GetCommandNameFromID(id).empty() ? GetGlobalContext() : context;
  if (!found) return false;
  if (blockContext.IsCommandBlockedForContext(id, mCurrentContextName)) return false;
  if (mAltPassesThrough && key.Alt()) return false;
  CommanderPtr target = Commander::GetTarget();
  if (!target || !CommandEnabled(target, id)) return false;
  if (preDispatch && !IsInPreDispatchMap(id) && !context.IsPreDispatchCommand(id)) return false;
  const Command command(id, keyDown ? CommandPhase::Engaged : CommandPhase::Disengaged, kPathKeyboardShortcut);
  AnalyticsUtils::ScLogRecentUIActionAndCommandID scope(kUIActionKeyboardShortcut, id);
  return target->PostCommand(command);
}

bool ShortcutManager::CommandEnabled(const CommanderPtr& target, std::int32_t commandID) {
  bool enabled = false, checked = false;
  MenuMark mark = MenuMark::None;
  UTF8String text;
  if (IsMenuCommand(commandID))
    return !target->GetCommandStatus(target, commandID, enabled, checked, mark, text) || enabled;
  return !target->UpdateCommandForDisableMenuAppStatus(commandID, enabled, checked, mark, text, CommanderWeakPtr()) ||
         enabled;
}

bool ShortcutManager::CheckMinimalShortcut(const KeyboardEvent& event) {
  if (!Instance()) Initialize();
  ShortcutManager* manager = Instance();
  if (!manager) return false;
  if (manager->DispatchKeyboardEvent(event, true)) return true;
  manager->SetOverrideMode(kOverrideMode_MinimalMap);
  const bool consumed = manager->DispatchKeyboardEvent(event, false);
  manager->SetOverrideMode(kOverrideMode_Everything);
  return consumed;
}

} // namespace ZEL
