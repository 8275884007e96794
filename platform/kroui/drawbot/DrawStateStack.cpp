#include <kroui/drawbot/DrawStateStackImpl.h>

namespace kroui::drawbot {

DrawStateStack::DrawStateStack(const RectF& deviceBounds) { Reset(deviceBounds); }

void DrawStateStack::Reset(const RectF& deviceBounds) {
  mSaved.clear();
  mCurrent = DrawState{};
  mCurrent.clip = IsEmpty(deviceBounds) ? RectF{} : deviceBounds;
  mCurrent.isClipPixelRect = IsWholePixels(mCurrent.clip);
}

void DrawStateStack::Save() { mSaved.push_back(mCurrent); }

bool DrawStateStack::Restore() {
  if (mSaved.empty()) return false;
  mCurrent = std::move(mSaved.back());
  mSaved.pop_back();
  return true;
}

void DrawStateStack::Translate(float dx, float dy) {
  Transform& t = mCurrent.transform;
  t.translateX += t.scaleX * dx;
  t.translateY += t.scaleY * dy;
}

void DrawStateStack::Scale(float sx, float sy) {
  mCurrent.transform.scaleX *= sx;
  mCurrent.transform.scaleY *= sy;
  // A collapsed transform can draw nothing, not even where it started.
  if (!mCurrent.transform.IsInvertible()) mCurrent.clip = {};
}

RectF DrawStateStack::ClipRect(const RectF& rect) {
  const RectF device = mCurrent.transform.Apply(rect);
  mCurrent.clip = Intersect(mCurrent.clip, device);
  // The intersection of boxes is a box: it stays exact while its edges are whole.
  mCurrent.isClipPixelRect = mCurrent.isClipPixelRect && IsWholePixels(mCurrent.clip);
  return device;
}

void DrawStateStack::ClipPolygon(std::span<const PointF> polygon) {
  auto node = std::make_shared<ClipPolygonNode>();
  node->points.reserve(polygon.size());
  for (PointF p : polygon) node->points.push_back(mCurrent.transform.Apply(p));
  node->outer = mCurrent.polygons;
  mCurrent.clip = Intersect(mCurrent.clip, BoundsOf(node->points));
  mCurrent.isClipPixelRect = false;
  mCurrent.polygons = std::move(node);
}

RectF DrawStateStack::GetClipBounds() const {
  if (IsClipEmpty() || !mCurrent.transform.IsInvertible()) return {};
  return mCurrent.transform.Invert(mCurrent.clip);
}

} // namespace kroui::drawbot
