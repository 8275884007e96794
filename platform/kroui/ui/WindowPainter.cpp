#include <kroui/ui/WindowPainterImpl.h>

#include <kroui/backend/Backend.h>
#include <kroui/drawbot/Drawbot.h>
#include <kroui/drawbot/RasterSurface.h>
#include <kroui/ui/NodePainterImpl.h>
#include <kroui/ui/UI_Node.h>
#include <kroui/ui/UI_WindowImpl.h>

#include <algorithm>
#include <utility>

namespace kroui::ui {
namespace {

// More invalid rectangles than this cost more to paint one by one than their union.
constexpr std::size_t kMaxInvalidRects = 8;

// Layouts that ask for more layouts run them in the same paint, up to this
// many rounds; two layouts that keep asking for each other wait for the next
// paint rather than hang the window.
constexpr int kMaxLayoutRounds = 4;

int Depth(const UI_Node& node) {
  int depth = 0;
  for (const UI_Node* parent = node.GetParent(); parent; parent = parent->GetParent()) ++depth;
  return depth;
}

bool Covers(const Rect& outer, const Rect& inner) { return outer.Intersection(inner) == inner; }

// Overlapping or sharing an edge: painting them as one costs nothing extra.
bool Touches(const Rect& a, const Rect& b) {
  return a.left <= b.right && b.left <= a.right && a.top <= b.bottom && b.top <= a.bottom;
}

drawbot::RectF ToRectF(const Rect& rect) {
  return {static_cast<float>(rect.left), static_cast<float>(rect.top), static_cast<float>(rect.Width()),
          static_cast<float>(rect.Height())};
}

} // namespace

WindowPainter::WindowPainter(UI_WindowImpl& state) : mState(state) {}

WindowPainter::~WindowPainter() = default;

// Invalidation.

void WindowPainter::Invalidate(const Rect& area) {
  Rect merged = area.Intersection(mState.root->GetLocalBounds());
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

void WindowPainter::InvalidateOnlyAll() {
  mInvalid.clear();
  Invalidate(mState.root->GetLocalBounds());
}

void WindowPainter::SetBackgroundColor(const drawbot::ColorRGBA& color) {
  mBackground = color;
  Invalidate(mState.root->GetLocalBounds());
}

// Painting.

void WindowPainter::PaintNow() {
  if (!NeedsPaint() || mIsPainting) return;
  RunLayouts();
  if (!mInvalid.empty()) PaintInvalid();
}

// Layout.

void WindowPainter::ScheduleLayout(UI_Node& node) {
  const krocore::IntrusivePtr<UI_Node> pending(&node);
  if (std::find(mPendingLayouts.begin(), mPendingLayouts.end(), pending) == mPendingLayouts.end())
    mPendingLayouts.push_back(pending);
  // A layout moves and resizes children: what the node shows is to be painted again.
  node.Invalidate();
}

// Parents first, so that a child's layout starts from the place its parent gave it.
void WindowPainter::RunLayouts() {
  for (int round = 0; round < kMaxLayoutRounds && !mPendingLayouts.empty(); ++round) {
    std::vector<krocore::IntrusivePtr<UI_Node>> nodes = std::exchange(mPendingLayouts, {});
    std::stable_sort(nodes.begin(), nodes.end(),
                     [](const auto& a, const auto& b) { return Depth(*a) < Depth(*b); });
    for (const auto& node : nodes) {
      // A node removed from the window since it asked has nothing to lay out here.
      if (node->GetWindow() == &mState.window) node->LayoutSelf();
    }
  }
}

bool WindowPainter::FitSurface(Extent extent) {
  if (mSurface && mSurface->GetWidth() == extent.width && mSurface->GetHeight() == extent.height) return false;
  mSurface = std::make_unique<drawbot::RasterSurface>(extent.width, extent.height);
  return true;
}

void WindowPainter::PaintInvalid() {
  const Extent extent = mState.root->GetBounds().Extent();
  if (extent.IsEmpty()) {
    mInvalid.clear();
    return;
  }
  // A new surface starts transparent: all of it must be painted.
  if (FitSurface(extent)) mInvalid.assign(1, mState.root->GetLocalBounds());
  // A translucent background (a layer over other windows) is painted whole,
  // from pixels set to it: blending it over what was shown before would keep
  // pixels that have since turned transparent.
  const bool isTranslucent = mBackground.alpha < 1.f;
  if (isTranslucent) {
    mSurface->Clear(mBackground);
    mInvalid.assign(1, mState.root->GetLocalBounds());
  }
  mIsPainting = true;
  const Rect changed = PaintAreas(mSurface->BeginDrawing(), isTranslucent);
  mSurface->EndDrawing();
  ++mPaintCount;
  mIsPainting = false;
  if (const HWND native = mState.GetLiveNative()) {
    backend::GetBackend().PresentPixels(native, mSurface->Snapshot(), changed);
  }
}

// Paints each invalid rectangle under its clip; returns their union.
Rect WindowPainter::PaintAreas(drawbot::Drawbot& drawbot, bool isTranslucent) {
  const std::vector<Rect> areas = std::move(mInvalid);
  mInvalid.clear();
  Rect changed;
  for (const Rect& area : areas) {
    const drawbot::RectF clip = ToRectF(area);
    drawbot.Save();
    drawbot.ClipRect(clip);
    if (!isTranslucent) drawbot.FillRect(clip, mBackground);
    NodePainter::PaintNode(*mState.root, drawbot, area);
    drawbot.Restore();
    changed = changed.Union(area);
  }
  return changed;
}

drawbot::Image WindowPainter::GetPixels() const { return mSurface ? mSurface->Snapshot() : drawbot::Image(); }

} // namespace kroui::ui
