#pragma once

#include <kroui/Export.h>
#include <kroui/drawbot/Image.h>
#include <kroui/ui/PointerEvent.h>

#include <cstdint>
#include <memory>

namespace kroui::ui {

class Cursor;
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

/// How long a cursor set by SetCursor stands against the windows' own choice.
/// A window chooses on every pointer move: the first node under the pointer
/// whose SetCursorSelf sets one, else the arrow. A hold only keeps the
/// arrow from replacing the cursor; a node that sets its own still does.
enum class CursorHold : std::uint8_t {
  None,            ///< the next pointer move chooses again
  WhileButtonDown, ///< kept while a mouse button is held (drag feedback), then as None
  UntilNextSet,    ///< kept until the next SetCursor
};

/// Sets the current cursor through the backend; null shows the arrow.
KROUI_API void SetCursor(CursorPtr cursor);
KROUI_API void SetCursor(CursorPtr cursor, CursorHold hold);
/// Whether a window that found no node to set a cursor must leave the current one.
KROUI_API bool IsCursorHeld(bool isButtonDown) noexcept;

/// Hides or shows the pointer through the backend. Counted requests nest: the
/// pointer shows again after as many counted shows as counted hides, so that
/// two parts hiding it independently do not show it early. An uncounted show
/// shows it whatever the count; an uncounted hide only makes sure it is hidden
/// (as one counted hide when it was shown).
/// A hide `untilPointerMoves` lasts only until the pointer next moves over a
/// window (as while typing); it is ignored when showing.
KROUI_API void ShowPointer(bool show, bool counted, bool untilPointerMoves);
KROUI_API bool IsPointerShown() noexcept;
/// Windows call it for each pointer move: it ends a hide until the pointer moves.
KROUI_API void NotePointerMoved();

} // namespace kroui::ui
