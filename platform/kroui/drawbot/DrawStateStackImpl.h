#pragma once

#include <kroui/drawbot/DrawGeometryImpl.h>

#include <memory>
#include <span>
#include <vector>

namespace kroui::drawbot {

/// A polygon clipping drawing, in device pixels, and the one it lies inside.
/// States share the chain, so Save copies a pointer, not the polygons.
struct ClipPolygonNode {
  std::vector<PointF> points;
  std::shared_ptr<const ClipPolygonNode> outer;
};

struct DrawState {
  Transform transform;
  /// device: the bounds of the clip, empty when nothing can be drawn
  RectF clip;
  /// The clip is exactly `clip` and its edges lie on whole pixels: what
  /// pixel spans may be written under without changing a single pixel.
  bool isClipPixelRect = true;
  /// Innermost first; null while no polygon clips.
  std::shared_ptr<const ClipPolygonNode> polygons;
};

/// The transform-and-clip stack both surfaces keep, in device pixels, so
/// that the raster surface can choose its fast paths and the recording one
/// can say where everything landed. Clips only ever shrink.
class DrawStateStack {
public:
  explicit DrawStateStack(const RectF& deviceBounds);
  /// Forgets every saved state: identity transform, clip to these bounds.
  void Reset(const RectF& deviceBounds);

  const DrawState& Current() const noexcept { return mCurrent; }
  int GetDepth() const noexcept { return static_cast<int>(mSaved.size()); }
  bool IsClipEmpty() const noexcept { return IsEmpty(mCurrent.clip); }

  void Save();
  /// False (and nothing changes) when there is no Save to match.
  bool Restore();
  void Translate(float dx, float dy);
  void Scale(float sx, float sy);
  /// Returns the device rectangle now clipping.
  RectF ClipRect(const RectF& rect);
  void ClipPolygon(std::span<const PointF> polygon);
  /// The clip's bounds in user coordinates.
  RectF GetClipBounds() const;

private:
  DrawState mCurrent;
  std::vector<DrawState> mSaved;
};

} // namespace kroui::drawbot
