#include <kroui/base/Cursor.h>

#include <krocore/debug/Assert.h>

#include <algorithm>

namespace kroui::ui {

CursorPtr Cursor::Create(drawbot::Image image, Point hotSpot) {
  return CreateSystem(SystemCursor::None, std::move(image), hotSpot);
}

CursorPtr Cursor::CreateSystem(SystemCursor shape, drawbot::Image image, Point hotSpot) {
  if (!KROCORE_ASSERT(image.IsValid(), "Cursor: a cursor needs an image")) return nullptr;
  const Point clamped{std::clamp(hotSpot.x, 0, image.GetWidth() - 1), std::clamp(hotSpot.y, 0, image.GetHeight() - 1)};
  KROCORE_ASSERT(clamped == hotSpot, "Cursor: the hot spot lies outside the image");
  return CursorPtr(new Cursor(std::move(image), clamped, shape));
}

} // namespace kroui::ui
