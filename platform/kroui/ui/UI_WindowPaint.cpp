// UI_Window: painting the invalid region and presenting it.

#include <kroui/ui/UI_Window.h>

#include <kroui/backend/Backend.h>
#include <kroui/drawbot/Drawbot.h>
#include <kroui/ui/NodePainterImpl.h>
#include <kroui/ui/UI_WindowSurfaceImpl.h>

namespace kroui::ui {

void UI_Window::PaintInvalid() {
  const Extent extent = mRoot->GetBounds().Extent();
  if (extent.IsEmpty()) {
    mInvalid.clear();
    return;
  }
  const bool fits = mSurface && mSurface->raster.GetWidth() == extent.width &&
                    mSurface->raster.GetHeight() == extent.height;
  if (!fits) {
    // A new surface starts transparent: all of it must be painted.
    mSurface = std::make_unique<Surface>(extent.width, extent.height);
    mInvalid.assign(1, mRoot->GetLocalBounds());
  }
  // A translucent background (a layer over other windows) is painted whole,
  // from pixels set to it: blending it over what was shown before would keep
  // pixels that have since turned transparent.
  const bool isTranslucent = mBackground.alpha < 1.f;
  if (isTranslucent) {
    mSurface->raster.Clear(mBackground);
    mInvalid.assign(1, mRoot->GetLocalBounds());
  }
  mIsPainting = true;
  const std::vector<Rect> areas = std::move(mInvalid);
  mInvalid.clear();
  drawbot::Drawbot& drawbot = mSurface->raster.BeginDrawing();
  Rect changed;
  for (const Rect& area : areas) {
    const drawbot::RectF clip{static_cast<float>(area.left), static_cast<float>(area.top),
                              static_cast<float>(area.Width()), static_cast<float>(area.Height())};
    drawbot.Save();
    drawbot.ClipRect(clip);
    if (!isTranslucent) drawbot.FillRect(clip, mBackground);
    NodePainter::PaintNode(*mRoot, drawbot, area);
    drawbot.Restore();
    changed = changed.Union(area);
  }
  mSurface->raster.EndDrawing();
  ++mPaintCount;
  mIsPainting = false;
  if (IsCreated() && IsBackendCurrent()) {
    backend::GetBackend().PresentPixels(mNative, mSurface->raster.Snapshot(), changed);
  }
}

drawbot::Image UI_Window::GetPixels() const { return mSurface ? mSurface->raster.Snapshot() : drawbot::Image(); }

} // namespace kroui::ui
