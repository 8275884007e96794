#include <kroui/ui/UI_Window.h>

#include <kroui/backend/Backend.h>
#include <kroui/ui/EventLoop.h>
#include <kroui/ui/UI_NodeExtras.h>
#include <kroui/ui/UI_WindowImpl.h>

#include <krocore/debug/Assert.h>

#include <algorithm>
#include <vector>

namespace kroui::ui {
namespace {

std::vector<UI_Window*>& Registry() {
  static std::vector<UI_Window*> sWindows;
  return sWindows;
}

} // namespace

UI_WindowImpl::UI_WindowImpl(UI_Window& front, const backend::WindowDescription& made)
    : window(front), description(made), root(krocore::MakeIntrusive<UI_Container>()), painter(*this),
      input(*this) {}

bool UI_WindowImpl::IsBackendCurrent() const noexcept {
  return backendGeneration == backend::GetBackendGeneration();
}

HWND UI_WindowImpl::GetLiveNative() const noexcept { return IsBackendCurrent() ? native : nullptr; }

// Making and destroying.

UI_Window::UI_Window(const backend::WindowDescription& description)
    : mImpl(std::make_unique<UI_WindowImpl>(*this, description)) {
  UI_Container& root = *mImpl->root;
  root.SetFlag(UI_Node::kFlag_WindowRoot, true);
  root.Extras().window = this;
  backend::Backend& backend = backend::GetBackend();
  mImpl->native = backend.CreateNativeWindow(description);
  mImpl->backendGeneration = backend::GetBackendGeneration();
  KROCORE_ASSERT(mImpl->native, "UI_Window: the backend could not make a window");
  mImpl->screenBounds = mImpl->native ? backend.GetNativeWindowBounds(mImpl->native) : description.bounds;
  root.mBounds = Rect::FromOriginAndExtent({}, mImpl->screenBounds.Extent());
  Registry().push_back(this);
  InvalidateWindowRect(root.GetLocalBounds());
}

UI_Window::~UI_Window() {
  mImpl->input.GetToolTip().Cancel();
  EventLoop::Instance().GetTimers().CancelOwner(this);
  // The tree may outlive the window (a handle holds the root): it keeps no
  // trace of it. The router's plain pointers go with the router, unused.
  UI_Container& root = *mImpl->root;
  root.mExtras->window = nullptr;
  root.SetFlag(UI_Node::kFlag_WindowRoot, false);
  std::erase(Registry(), this);
  if (const HWND native = mImpl->GetLiveNative()) {
    backend::Backend& backend = backend::GetBackend();
    if (backend.GetCapture() == native) backend.ReleaseCapture();
    backend.DestroyNativeWindow(native);
  }
}

UI_Window* UI_Window::FromNativeWindow(HWND native) {
  if (!native) return nullptr;
  for (UI_Window* window : Registry()) {
    if (window->mImpl->native == native && window->mImpl->IsBackendCurrent()) return window;
  }
  return nullptr;
}

std::span<UI_Window* const> UI_Window::GetAllWindows() { return Registry(); }

bool UI_Window::IsCreated() const noexcept { return mImpl->native != nullptr; }
HWND UI_Window::GetNativeWindow() const noexcept { return mImpl->native; }
UI_Container& UI_Window::GetRoot() const noexcept { return *mImpl->root; }

// The backend window.

void UI_Window::Show(bool activate) {
  const HWND native = mImpl->GetLiveNative();
  if (!native) return;
  const bool mayActivate = activate && !mImpl->description.style.Has(backend::kWindowStyle_NoActivate);
  backend::GetBackend().ShowNativeWindow(native, true, mayActivate);
  mImpl->isShown = true;
  InvalidateWindowRect(mImpl->root->GetLocalBounds());
}

void UI_Window::Hide() {
  const HWND native = mImpl->GetLiveNative();
  if (!native) return;
  mImpl->input.GetToolTip().Cancel();
  backend::GetBackend().ShowNativeWindow(native, false, false);
  mImpl->isShown = false;
}

bool UI_Window::IsShown() const noexcept { return mImpl->isShown; }
backend::Rect UI_Window::GetBounds() const noexcept { return mImpl->screenBounds; }

void UI_Window::SetBounds(const backend::Rect& screenBounds) {
  if (const HWND native = mImpl->GetLiveNative()) backend::GetBackend().SetNativeWindowBounds(native, screenBounds);
  SetScreenBounds(screenBounds);
}

void UI_Window::Move(Point screenOrigin) {
  SetBounds(Rect::FromOriginAndExtent(screenOrigin, mImpl->screenBounds.Extent()));
}

void UI_Window::Resize(Extent extent) { SetBounds(Rect::FromOriginAndExtent(mImpl->screenBounds.Origin(), extent)); }

void UI_Window::SetScreenBounds(const backend::Rect& bounds) {
  const Extent before = mImpl->screenBounds.Extent();
  mImpl->screenBounds = bounds;
  if (bounds.Extent() == before) return;
  mImpl->root->SetBounds(Rect::FromOriginAndExtent({}, bounds.Extent()));
  mImpl->painter.InvalidateOnlyAll();
}

void UI_Window::SetTitle(std::string utf8) {
  mImpl->description.title = std::move(utf8);
  if (const HWND native = mImpl->GetLiveNative()) {
    backend::GetBackend().SetNativeWindowTitle(native, mImpl->description.title);
  }
}

const std::string& UI_Window::GetTitle() const noexcept { return mImpl->description.title; }
backend::WindowStyle UI_Window::GetStyle() const noexcept { return mImpl->description.style; }

void UI_Window::Minimize() {
  if (const HWND native = mImpl->GetLiveNative()) backend::GetBackend().MinimizeNativeWindow(native);
}

void UI_Window::Focus() {
  if (const HWND native = mImpl->GetLiveNative()) backend::GetBackend().FocusNativeWindow(native);
}

bool UI_Window::IsActive() const noexcept { return mImpl->isActive; }

void UI_Window::SetEnabled(bool enabled) {
  mImpl->description.style.Set(backend::kWindowStyle_Disabled, !enabled);
  if (!enabled) {
    mImpl->input.GetToolTip().Cancel();
    SetCaptureNode(nullptr);
  }
  if (const HWND native = mImpl->GetLiveNative()) backend::GetBackend().SetNativeWindowEnabled(native, enabled);
}

bool UI_Window::IsEnabled() const noexcept { return !mImpl->description.style.Has(backend::kWindowStyle_Disabled); }

void UI_Window::SetAlpha(float alpha) {
  mImpl->description.alpha = std::clamp(alpha, 0.f, 1.f);
  if (const HWND native = mImpl->GetLiveNative()) {
    backend::GetBackend().SetNativeWindowAlpha(native, mImpl->description.alpha);
  }
}

float UI_Window::GetAlpha() const noexcept { return mImpl->description.alpha; }
Point UI_Window::WindowToScreen(Point p) const noexcept { return p + mImpl->screenBounds.Origin(); }
Point UI_Window::ScreenToWindow(Point p) const noexcept { return p - mImpl->screenBounds.Origin(); }

// Hooks.

void UI_Window::SetKeyboardPreDispatchHook(KeyboardHook hook) {
  mImpl->input.SetKeyboardPreDispatchHook(std::move(hook));
}

void UI_Window::SetKeyboardPostDispatchHook(KeyboardHook hook) {
  mImpl->input.SetKeyboardPostDispatchHook(std::move(hook));
}

void UI_Window::SetEventHook(EventHook hook) { mImpl->eventHook = std::move(hook); }
void UI_Window::SetCloseHook(CloseHook hook) { mImpl->closeHook = std::move(hook); }

// Invalidation and painting: the painter's.

void UI_Window::InvalidateWindowRect(const Rect& area) { mImpl->painter.Invalidate(area); }
std::span<const Rect> UI_Window::GetInvalidRects() const noexcept { return mImpl->painter.GetInvalidRects(); }
bool UI_Window::NeedsPaint() const noexcept { return mImpl->painter.NeedsPaint(); }
void UI_Window::PaintNow() { mImpl->painter.PaintNow(); }
void UI_Window::ScheduleLayout(UI_Node& node) { mImpl->painter.ScheduleLayout(node); }
void UI_Window::SetBackgroundColor(const drawbot::ColorRGBA& color) { mImpl->painter.SetBackgroundColor(color); }
std::uint64_t UI_Window::GetPaintCount() const noexcept { return mImpl->painter.GetPaintCount(); }
drawbot::Image UI_Window::GetPixels() const { return mImpl->painter.GetPixels(); }

// Focus, capture, pointer: the input router's.

UI_Node* UI_Window::GetFocusedNode() const noexcept { return mImpl->input.GetFocusedNode(); }
bool UI_Window::SetFocusedNode(UI_Node* node) { return mImpl->input.SetFocusedNode(node); }
bool UI_Window::AdvanceFocus(bool forward) { return mImpl->input.AdvanceFocus(forward); }
UI_Node* UI_Window::GetCaptureNode() const noexcept { return mImpl->input.GetCaptureNode(); }
bool UI_Window::SetCaptureNode(UI_Node* node) { return mImpl->input.SetCaptureNode(node); }
UI_Node* UI_Window::GetHoverNode() const noexcept { return mImpl->input.GetHoverNode(); }
UI_Node* UI_Window::GetToolTipNode() const noexcept { return mImpl->input.GetToolTip().GetNode(); }
void UI_Window::ForgetSubtree(UI_Node& node, Forget why) { mImpl->input.ForgetSubtree(node, why); }

// Events.

void UI_Window::DispatchEvent(const OS_Event& event) {
  if (mImpl->eventHook && mImpl->eventHook(event)) return;
  if (event.IsPointer() || event.IsKeyboard() || event.IsDrag()) {
    // Read here rather than through IsEnabled: an exported call on every pointer move.
    if (!mImpl->description.style.Has(backend::kWindowStyle_Disabled)) mImpl->input.Dispatch(event);
  } else {
    HandleWindowEvent(event);
  }
}

void UI_Window::HandleWindowEvent(const OS_Event& event) {
  switch (event.type) {
  case OS_Event::Type::WindowCloseRequest:
    if (mImpl->closeHook) {
      mImpl->closeHook(*this);
    } else {
      Hide();
    }
    break;
  case OS_Event::Type::WindowMoved:
  case OS_Event::Type::WindowResized: SetScreenBounds(event.bounds); break;
  case OS_Event::Type::WindowFocusIn: mImpl->isActive = true; break;
  case OS_Event::Type::WindowFocusOut:
    mImpl->isActive = false;
    mImpl->input.GetToolTip().Cancel();
    break;
  case OS_Event::Type::WindowExposed: InvalidateWindowRect(mImpl->root->GetLocalBounds()); break;
  case OS_Event::Type::CaptureLost: mImpl->input.DropCapture(); break;
  default: break;
  }
}

} // namespace kroui::ui
