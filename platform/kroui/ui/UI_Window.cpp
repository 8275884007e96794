#include <kroui/ui/UI_Window.h>

#include <kroui/backend/Backend.h>
#include <kroui/ui/EventLoop.h>
#include <kroui/ui/UI_NodeExtras.h>
#include <kroui/ui/UI_WindowSurfaceImpl.h>

#include <krocore/debug/Assert.h>

#include <algorithm>

namespace kroui::ui {
namespace {

// More invalid rectangles than this cost more to paint one by one than their union.
constexpr std::size_t kMaxInvalidRects = 8;

std::vector<UI_Window*>& Registry() {
  static std::vector<UI_Window*> sWindows;
  return sWindows;
}

bool Covers(const Rect& outer, const Rect& inner) { return outer.Intersection(inner) == inner; }

// Overlapping or sharing an edge: painting them as one costs nothing extra.
bool Touches(const Rect& a, const Rect& b) {
  return a.left <= b.right && b.left <= a.right && a.top <= b.bottom && b.top <= a.bottom;
}

} // namespace

UI_Window::UI_Window(const backend::WindowDescription& description)
    : mDescription(description), mRoot(krocore::MakeIntrusive<UI_Container>()) {
  mRoot->SetFlag(UI_Node::kFlag_WindowRoot, true);
  mRoot->Extras().window = this;
  backend::Backend& backend = backend::GetBackend();
  mNative = backend.CreateNativeWindow(description);
  mBackendGeneration = backend::GetBackendGeneration();
  KROCORE_ASSERT(mNative, "UI_Window: the backend could not make a window");
  mScreenBounds = mNative ? backend.GetNativeWindowBounds(mNative) : description.bounds;
  mRoot->mBounds = Rect::FromOriginAndExtent({}, mScreenBounds.Extent());
  Registry().push_back(this);
  InvalidateWindowRect(mRoot->GetLocalBounds());
}

UI_Window::~UI_Window() {
  CancelToolTip();
  EventLoop::Instance().GetTimers().CancelOwner(this);
  // The tree may outlive the window (a handle holds the root): it keeps no trace of it.
  mFocus = mCapture = mDragTarget = nullptr;
  mHover.clear();
  for (UI_Node*& pressed : mPressed) pressed = nullptr;
  mRoot->mExtras->window = nullptr;
  mRoot->SetFlag(UI_Node::kFlag_WindowRoot, false);
  std::erase(Registry(), this);
  if (mNative && IsBackendCurrent()) {
    backend::Backend& backend = backend::GetBackend();
    if (backend.GetCapture() == mNative) backend.ReleaseCapture();
    backend.DestroyNativeWindow(mNative);
  }
}

UI_Window* UI_Window::FromNativeWindow(HWND native) {
  if (!native) return nullptr;
  for (UI_Window* window : Registry()) {
    if (window->mNative == native && window->IsBackendCurrent()) return window;
  }
  return nullptr;
}

std::span<UI_Window* const> UI_Window::GetAllWindows() { return Registry(); }

bool UI_Window::IsBackendCurrent() const noexcept { return mBackendGeneration == backend::GetBackendGeneration(); }

// The backend window.

void UI_Window::Show(bool activate) {
  if (!IsCreated() || !IsBackendCurrent()) return;
  const bool mayActivate = activate && !mDescription.style.Has(backend::kWindowStyle_NoActivate);
  backend::GetBackend().ShowNativeWindow(mNative, true, mayActivate);
  mIsShown = true;
  InvalidateWindowRect(mRoot->GetLocalBounds());
}

void UI_Window::Hide() {
  if (!IsCreated() || !IsBackendCurrent()) return;
  CancelToolTip();
  backend::GetBackend().ShowNativeWindow(mNative, false, false);
  mIsShown = false;
}

void UI_Window::SetBounds(const backend::Rect& screenBounds) {
  if (IsCreated() && IsBackendCurrent()) backend::GetBackend().SetNativeWindowBounds(mNative, screenBounds);
  SetScreenBounds(screenBounds);
}

void UI_Window::Move(Point screenOrigin) { SetBounds(Rect::FromOriginAndExtent(screenOrigin, mScreenBounds.Extent())); }

void UI_Window::Resize(Extent extent) { SetBounds(Rect::FromOriginAndExtent(mScreenBounds.Origin(), extent)); }

void UI_Window::SetScreenBounds(const backend::Rect& bounds) {
  const Extent before = mScreenBounds.Extent();
  mScreenBounds = bounds;
  if (bounds.Extent() != before) ResizeRoot(bounds.Extent());
}

void UI_Window::ResizeRoot(Extent extent) {
  mRoot->SetBounds(Rect::FromOriginAndExtent({}, extent));
  mInvalid.clear();
  InvalidateWindowRect(mRoot->GetLocalBounds());
}

void UI_Window::SetTitle(std::string utf8) {
  mDescription.title = std::move(utf8);
  if (IsCreated() && IsBackendCurrent()) backend::GetBackend().SetNativeWindowTitle(mNative, mDescription.title);
}

void UI_Window::Minimize() {
  if (IsCreated() && IsBackendCurrent()) backend::GetBackend().MinimizeNativeWindow(mNative);
}

void UI_Window::Focus() {
  if (IsCreated() && IsBackendCurrent()) backend::GetBackend().FocusNativeWindow(mNative);
}

void UI_Window::SetEnabled(bool enabled) {
  mDescription.style.Set(backend::kWindowStyle_Disabled, !enabled);
  if (!enabled) {
    CancelToolTip();
    SetCaptureNode(nullptr);
  }
  if (IsCreated() && IsBackendCurrent()) backend::GetBackend().SetNativeWindowEnabled(mNative, enabled);
}

void UI_Window::SetAlpha(float alpha) {
  mDescription.alpha = std::clamp(alpha, 0.f, 1.f);
  if (IsCreated() && IsBackendCurrent()) backend::GetBackend().SetNativeWindowAlpha(mNative, mDescription.alpha);
}

// Invalidation.

void UI_Window::InvalidateWindowRect(const Rect& area) {
  Rect merged = area.Intersection(mRoot->GetLocalBounds());
  if (merged.IsEmpty()) return;
  for (std::size_t i = 0; i < mInvalid.size();) {
    if (Covers(mInvalid[i], merged)) return;
    if (Touches(mInvalid[i], merged)) {
      merged = merged.Union(mInvalid[i]);
      mInvalid.erase(mInvalid.begin() + static_cast<std::ptrdiff_t>(i));
      i = 0; // the grown rectangle may now touch one already passed
    } else {
      ++i;
    }
  }
  mInvalid.push_back(merged);
  if (mInvalid.size() > kMaxInvalidRects) {
    Rect all;
    for (const Rect& rect : mInvalid) all = all.Union(rect);
    mInvalid.assign(1, all);
  }
}

void UI_Window::PaintNow() {
  if (NeedsPaint() && !mIsPainting) PaintInvalid();
}

void UI_Window::SetBackgroundColor(const drawbot::ColorRGBA& color) {
  mBackground = color;
  InvalidateWindowRect(mRoot->GetLocalBounds());
}

// Forgetting nodes that leave.

bool UI_Window::Contains(const UI_Node& ancestor, const UI_Node* node) const {
  for (; node; node = node->GetParent()) {
    if (node == &ancestor) return true;
  }
  return false;
}

void UI_Window::ForgetSubtree(UI_Node& node, Forget why) {
  const UI_NodePtr keep(&node);
  if (Contains(node, mCapture)) {
    // Released without looking under the pointer again: the subtree is still
    // in place and would be found. The next move brings the hover up to date.
    mCapture = nullptr;
    if (IsCreated() && IsBackendCurrent() && backend::GetBackend().GetCapture() == mNative) {
      backend::GetBackend().ReleaseCapture();
    }
  }
  if (Contains(node, mFocus)) SetFocusedNode(nullptr);
  for (UI_Node*& pressed : mPressed) {
    if (!Contains(node, pressed)) continue;
    pressed->SetFlag(UI_Node::kFlag_LeftDown | UI_Node::kFlag_RightDown | UI_Node::kFlag_MiddleDown, false);
    pressed = nullptr;
  }
  if (Contains(node, mToolTipNode)) CancelToolTip();
  if (Contains(node, mDragTarget)) {
    const UI_NodePtr target(std::exchange(mDragTarget, nullptr));
    target->DragLeaveSelf();
  }
  // A disabled node is still under the pointer: only leaving the tree or hiding ends hovering.
  if (why == Forget::Disabled) return;
  const auto first = std::find_if(mHover.begin(), mHover.end(), [&](UI_Node* hovered) { return hovered == &node; });
  if (first == mHover.end()) return;
  std::vector<UI_NodePtr> leaving(first, mHover.end());
  mHover.erase(first, mHover.end());
  for (auto it = leaving.rbegin(); it != leaving.rend(); ++it) (*it)->MouseLeaveSelf();
}

} // namespace kroui::ui
