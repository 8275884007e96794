#pragma once

// The pictures of the framework's cursors, by resource name, and the marks
// they share. Every picture is drawn around its hot spot `h` (taken from the
// name) and inks the pixel there: the hot spot is where the cursor acts.

#include <kroui/utility/CursorCanvas.h>

#include <functional>
#include <span>
#include <string_view>

namespace cursorgen {

using Canvas = kroui::utility::CursorCanvas;
using P = Canvas::PointF;
using Ink = Canvas::Ink;

struct CursorArt {
  std::u16string_view name;
  std::function<void(Canvas& c, P h)> draw;
};

// The pictures, by family.
std::span<const CursorArt> GetPointerArt(); ///< the arrow with a badge
std::span<const CursorArt> GetToolArt();    ///< hands, pens, droppers, lenses, blades
std::span<const CursorArt> GetTrimArt();    ///< edit points: brackets and arrows
std::span<const CursorArt> GetMarkArt();    ///< crosshairs, scaling and rotating arrows, splitters

/// Null when no picture has that name.
const CursorArt* FindCursorArt(std::u16string_view name);

// Marks the pictures share.
inline P At(P h, float dx, float dy) { return {h.x + dx, h.y + dy}; }
/// Where the badge of a pointer cursor goes: below the pointer's wing, right of its tail.
inline P BadgeOf(P pointerTip) { return At(pointerTip, 16.f, 17.f); }
void DashedRect(Canvas& c, P topLeft, float width, float height);
/// A transition: a box crossed corner to corner; hollow for a clear one.
void TransitionBox(Canvas& c, P centre, bool isClear, float halfWidth = 4.f, float halfHeight = 3.f);
/// A clip on the timeline: a hollow bar.
void ClipBar(Canvas& c, P centre, float halfWidth, float halfHeight = 3.f);
/// Arrows out from `centre` in the four directions.
void FourWay(Canvas& c, P centre, float arm, float width, float head);
/// A four-pointed star, for generated media.
void Sparkle(Canvas& c, P centre, float size);
/// A hand the size of a badge.
void SmallHand(Canvas& c, P centre);
/// "Not available here", in a picture's free corner.
void NotAvailable(Canvas& c, P centre);

} // namespace cursorgen
