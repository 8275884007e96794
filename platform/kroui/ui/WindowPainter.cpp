#include <kroui/ui/WindowPainterImpl.h>

#include <kroui/backend/Backend.h>
#include <kroui/drawbot/Drawbot.h>
#include <kroui/drawbot/RasterSurface.h>
#include <kroui/ui/NodePainterImpl.h>
#include <kroui/ui/UI_WindowImpl.h>

namespace kroui::ui {
namespace {

// More invalid rectangles than this cost more to paint one by one than their union.
constexpr std::size_t kMaxInvalidRects = 8;

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
  if (NeedsPaint() && !mIsPainting) PaintInvalid();
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
