#pragma once

// Private: a window's invalid region and the pixels it paints into.

#include <kroui/Forward.h>
#include <kroui/base/PointerEvent.h>
#include <kroui/drawbot/DrawTypes.h>
#include <kroui/drawbot/Image.h>

#include <krocore/pointers/IntrusivePtr.h>

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace kroui::ui {

/// Keeps a window's invalid region as a few rectangles, and paints them:
///
///   Invalidate --> merged with what it touches or covers; past a few
///                  rectangles, the union of all
///   Paint      --> the layouts asked for, parents first
///              --> per rectangle: clip, background, the node tree
///              --> the changed area presented through the backend
///
/// The raster surface is made at the root's size on the first paint after a
/// resize; a new surface is painted whole.
class WindowPainter {
public:
  /// `state` is the window's, which outlives the painter.
  explicit WindowPainter(UI_WindowImpl& state);
  ~WindowPainter();
  WindowPainter(const WindowPainter&) = delete;
  WindowPainter& operator=(const WindowPainter&) = delete;

  /// Marks an area, in window coordinates.
  void Invalidate(const Rect& area);
  /// Makes the whole window, and nothing else, the invalid region (after a resize).
  void InvalidateOnlyAll();
  std::span<const Rect> GetInvalidRects() const noexcept { return mInvalid; }
  bool NeedsPaint() const noexcept { return !mInvalid.empty() || !mPendingLayouts.empty(); }
  /// Lays out and paints and presents the invalid region; does nothing when
  /// there is nothing to do, or while painting.
  void PaintNow();
  /// The node lays out (LayoutSelf) before the next paint, once however often asked.
  void ScheduleLayout(UI_Node& node);

  void SetBackgroundColor(const drawbot::ColorRGBA& color);
  std::uint64_t GetPaintCount() const noexcept { return mPaintCount; }
  drawbot::Image GetPixels() const;

private:
  void RunLayouts();
  void PaintInvalid();
  /// Makes the surface fit `extent`; true when a new one was made.
  bool FitSurface(Extent extent);
  Rect PaintAreas(drawbot::Drawbot& drawbot, bool isTranslucent);

  UI_WindowImpl& mState;
  std::vector<Rect> mInvalid;
  std::vector<krocore::IntrusivePtr<UI_Node>> mPendingLayouts;
  std::unique_ptr<drawbot::RasterSurface> mSurface;
  drawbot::ColorRGBA mBackground{1.f, 1.f, 1.f, 1.f};
  std::uint64_t mPaintCount = 0;
  bool mIsPainting = false;
};

} // namespace kroui::ui
