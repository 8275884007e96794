#pragma once

// The cursor on screen and whether the pointer shows: one state for every
// window, kept per backend (a replaced backend starts with the arrow, shown).

#include <kroui/Export.h>
#include <kroui/base/Cursor.h>

#include <cstdint>

namespace kroui::ui {

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
