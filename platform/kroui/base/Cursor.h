#pragma once

#include <kroui/Export.h>
#include <kroui/Forward.h>
#include <kroui/base/PointerEvent.h>
#include <kroui/drawbot/Image.h>

#include <cstdint>
#include <memory>

namespace kroui::ui {

using CursorPtr = std::shared_ptr<const Cursor>;

/// The operating system's own cursor shapes besides the arrow (which is the
/// null CursorPtr). A backend that has the system's cursor shows it; any
/// other shows the cursor's image, which is drawn to look the same.
enum class SystemCursor : std::uint8_t { None, IBeam, Wait, Cross, NoDrop, Copy, Link };

/// A mouse cursor made from an image and the pixel of it that points (the hot
/// spot). The system arrow is the null CursorPtr. Immutable; shared freely.
class KROUI_API Cursor {
public:
  /// A hot spot outside the image is the caller's mistake: reported and moved to the nearest pixel.
  static CursorPtr Create(drawbot::Image image, Point hotSpot);
  /// A cursor that stands for a system cursor; `image` is shown where the backend has none.
  static CursorPtr CreateSystem(SystemCursor shape, drawbot::Image image, Point hotSpot);

  const drawbot::Image& GetImage() const noexcept { return mImage; }
  Point GetHotSpot() const noexcept { return mHotSpot; }
  SystemCursor GetSystemShape() const noexcept { return mSystemShape; }

private:
  Cursor(drawbot::Image image, Point hotSpot, SystemCursor shape)
      : mImage(std::move(image)), mHotSpot(hotSpot), mSystemShape(shape) {}

  drawbot::Image mImage;
  Point mHotSpot;
  SystemCursor mSystemShape = SystemCursor::None;
};

} // namespace kroui::ui
