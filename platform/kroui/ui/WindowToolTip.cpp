#include <kroui/ui/WindowToolTipImpl.h>

#include <kroui/ui/EventLoop.h>
#include <kroui/ui/ToolTipManager.h>
#include <kroui/ui/UI_Window.h>

#include <string>

namespace kroui::ui {
namespace {

// The timer of a window's pending tooltip, among the window's timers.
constexpr std::uint64_t kToolTipTimer = 1;
// Where a tooltip appears, from the pointer's hot spot: below the cursor image.
constexpr Point kToolTipOffset{0, 20};

} // namespace

// An ancestor that shows its own tooltip for this child wins over the child's text.
UI_Node* WindowToolTip::FindOwner(std::span<UI_Node* const> hover) {
  UI_Node* hovered = hover.empty() ? nullptr : hover.back();
  for (UI_Node* node : hover) {
    if (node != hovered && node->DisplaysToolTipForChildSelf(hovered)) return node;
  }
  for (UI_Node* node = hovered; node; node = node->GetParent()) {
    if (!node->GetEffectiveToolTipText().empty()) return node;
  }
  return nullptr;
}

void WindowToolTip::Start(std::span<UI_Node* const> hover) {
  UI_Node* owner = FindOwner(hover);
  if (owner == mNode) return;
  Cancel();
  if (!owner) return;
  mNode = owner;
  int delay = owner->GetToolTipDelay();
  if (delay < 0) delay = ToolTipManager::Instance().GetInitialDelay();
  EventLoop& loop = EventLoop::Instance();
  loop.GetTimers().Schedule(&mWindow, kToolTipTimer, loop.Now(), delay, false, [this] { ShowNow(); });
}

void WindowToolTip::ShowNow() {
  if (!mNode) return;
  const std::string text = mNode->GetEffectiveToolTipText();
  if (text.empty()) return;
  ToolTipManager::Instance().Show(text, mWindow.WindowToScreen(mPointer) + kToolTipOffset, &mWindow);
}

void WindowToolTip::Cancel() {
  EventLoop::Instance().GetTimers().Cancel(&mWindow, kToolTipTimer);
  mNode = nullptr;
  ToolTipManager& manager = ToolTipManager::Instance();
  if (manager.GetOwner() == &mWindow) manager.Hide();
}

} // namespace kroui::ui
