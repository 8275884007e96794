#pragma once

#include <kroui/Export.h>
#include <kroui/drawbot/Image.h>
#include <kroui/ui/PointerEvent.h>

#include <memory>

namespace kroui::ui {

class Cursor;
using CursorPtr = std::shared_ptr<const Cursor>;

/// A mouse cursor made from an image and the pixel of it that points (the hot
/// spot). The system arrow is the null CursorPtr. Immutable; shared freely.
class KROUI_API Cursor {
public:
  /// A hot spot outside the image is the caller's mistake: reported and moved to the nearest pixel.
  static CursorPtr Create(drawbot::Image image, Point hotSpot);

  const drawbot::Image& GetImage() const noexcept { return mImage; }
  Point GetHotSpot() const noexcept { return mHotSpot; }

private:
  Cursor(drawbot::Image image, Point hotSpot) : mImage(std::move(image)), mHotSpot(hotSpot) {}

  drawbot::Image mImage;
  Point mHotSpot;
};

/// Sets the current cursor through the backend; null shows the arrow.
KROUI_API void SetCursor(CursorPtr cursor);

} // namespace kroui::ui
