// The arrow with a badge below its wing that says what a click will do. The
// solid arrow selects; the hollow one selects directly (points, handles).
#include "CursorArt.h"

#include <array>

namespace cursorgen {
namespace {

enum class Arrow { Solid, Hollow };

// Badges, around the badge centre b.
void Handle(Canvas& c, P b) {
  c.Line(At(b, -5.f, 3.f), At(b, 5.f, -3.f));
  c.Disc(At(b, -5.f, 3.f), 1.6f);
  c.Disc(At(b, 5.f, -3.f), 1.6f);
  c.FillRect({b.x - 1.f, b.y - 1.f, 2.f, 2.f});
}

void Anchor(Canvas& c, P b) {
  c.Ring(b, 3.5f, 1.f);
  c.FillRect({b.x, b.y, 0.f, 0.f});
}

void Glyph_T(Canvas& c, P b) {
  c.FillRect({b.x - 4.f, b.y - 4.f, 8.f, 1.f});
  c.FillRect({b.x - 1.f, b.y - 4.f, 2.f, 9.f});
}

void Glyph_SidewaysT(Canvas& c, P b) {
  c.FillRect({b.x + 3.f, b.y - 4.f, 1.f, 8.f});
  c.FillRect({b.x - 4.f, b.y - 1.f, 8.f, 2.f});
}

/// One clip with a transition at its start (-1), middle (0) or end (1).
void SingleTransition(Canvas& c, P b, float where) {
  ClipBar(c, At(b, 2, 0), 7.f, 4.f);
  TransitionBox(c, At(b, 2.f + where * 3.f, 0.f), false, 3.f, 2.f);
}

/// Two clips meeting at a cut, the transition starting at it (-1), centred on it (0) or ending at it (1).
void DoubleTransition(Canvas& c, P b, float where) {
  ClipBar(c, At(b, -2.5f, 0.f), 3.5f, 4.f);
  ClipBar(c, At(b, 6.5f, 0.f), 3.5f, 4.f);
  TransitionBox(c, At(b, 2.f - where * 3.f, 0.f), false, 3.f, 2.f);
}

/// A bar the clip leaves, with the arrow it leaves by; the gap closes when `closesGap`.
void LiftOut(Canvas& c, P b, bool closesGap) {
  ClipBar(c, At(b, -6.f, 3.f), 2.f);
  ClipBar(c, At(b, 6.f, 3.f), 2.f);
  c.Arrow(At(b, 0.f, 4.f), At(b, 0.f, -5.f), 1.f, 3.f);
  if (closesGap) {
    c.Arrowhead(At(b, -2.f, 3.f), {1.f, 0.f}, 2.f);
    c.Arrowhead(At(b, 2.f, 3.f), {-1.f, 0.f}, 2.f);
  }
}

/// A clip dropped into a track: pushing the rest along (insert) or over it (overlay).
void DropIn(Canvas& c, P b, bool isInsert) {
  c.Arrow(At(b, 0.f, -6.f), At(b, 0.f, 0.f), 1.f, 3.f);
  if (isInsert) {
    ClipBar(c, At(b, -5.f, 4.f), 3.f);
    ClipBar(c, At(b, 5.f, 4.f), 3.f);
  } else {
    c.FillRect({b.x - 7.f, b.y + 2.f, 14.f, 4.f});
  }
}

void LimitedShift(Canvas& c, P b) {
  DropIn(c, b, true);
  c.FillRect({b.x + 8.f, b.y - 4.f, 0.f, 5.f});
  c.Arrow(At(b, 2.f, -2.f), At(b, 6.f, -2.f), 1.f, 2.f);
}

void Rearrange(Canvas& c, P b, float direction) {
  ClipBar(c, At(b, direction * -3.f, 0.f), 4.f);
  c.Arrow(At(b, direction * -1.f, 0.f), At(b, direction * 7.f, 0.f), 1.f, 3.f);
}

void Waveform(Canvas& c, P b) {
  constexpr std::array<float, 5> kHeights{2.f, 5.f, 3.f, 6.f, 2.f};
  for (std::size_t i = 0; i < kHeights.size(); ++i) {
    const float x = b.x - 4.f + 2.f * static_cast<float>(i);
    c.Line({x, b.y - kHeights[i]}, {x, b.y + kHeights[i]});
  }
}

void Rotation(Canvas& c, P b, float radius) { c.ArcArrow(b, radius, 160.f, 420.f, 1.5f, 3.5f); }

void VerticalArrows(Canvas& c, P b) { c.Arrow(At(b, 0, -5), At(b, 0, 5), 1.f, 3.f, true); }

/// A transition being moved: the box above a pair of arrows.
void MovedTransition(Canvas& c, P b, bool isClear) {
  TransitionBox(c, At(b, 2, -2), isClear);
  c.Arrow(At(b, -4, 5), At(b, 8, 5), 1.f, 2.5f, true);
}

void CopyBadge(Canvas& c, P b) {
  c.FillRect({b.x - 4.f, b.y - 4.f, 8.f, 8.f}, Ink::Hollow);
  c.Plus(b, 2.f);
}

/// The arrow, and the badge drawn around the badge centre.
CursorArt WithBadge(std::u16string_view name, Arrow arrow, void (*badge)(Canvas& c, P b)) {
  return {name, [arrow, badge](Canvas& c, P h) {
            c.Pointer(h, 17.f, arrow == Arrow::Hollow ? Ink::Hollow : Ink::Black);
            badge(c, BadgeOf(h));
          }};
}

using enum Arrow;

const std::array<CursorArt, 43> kArt{{
    {u"Cur_Select_1_1", [](Canvas& c, P h) { c.Pointer(h); }},
    {u"Cur_NadaArrow_0_0", [](Canvas& c, P h) { c.Pointer(h, 13.f); }},
    WithBadge(u"Cur_DirectControlPointSelect_1_1", Hollow,
              [](Canvas& c, P b) {
                c.FillRect({b.x - 2.f, b.y - 2.f, 4.f, 4.f});
              }),
    WithBadge(u"Cur_DirectionHandleSelection_1_1", Hollow, Handle),
    WithBadge(u"Cur_DirectSelectAdd_1_1", Hollow, [](Canvas& c, P b) { c.Plus(b, 3.f); }),
    WithBadge(u"Cur_DirectSelectMove_1_1", Hollow, [](Canvas& c, P b) { FourWay(c, b, 5.f, 1.f, 2.5f); }),
    WithBadge(u"Cur_DirectSelectNo_1_1", Hollow, [](Canvas& c, P b) { c.NoSign(b, 4.5f); }),
    WithBadge(u"Cur_DirectSelectVerticalDrag_1_1", Hollow, VerticalArrows),
    WithBadge(u"Cur_DoubleTransitionCenter_1_1", Solid, [](Canvas& c, P b) { DoubleTransition(c, b, 0.f); }),
    WithBadge(u"Cur_DoubleTransitionEnd_1_1", Solid, [](Canvas& c, P b) { DoubleTransition(c, b, 1.f); }),
    WithBadge(u"Cur_DoubleTransitionStart_1_1", Solid, [](Canvas& c, P b) { DoubleTransition(c, b, -1.f); }),
    WithBadge(u"Cur_SingleTransitionCenter_1_1", Solid, [](Canvas& c, P b) { SingleTransition(c, b, 0.f); }),
    WithBadge(u"Cur_SingleTransitionEnd_1_1", Solid, [](Canvas& c, P b) { SingleTransition(c, b, 1.f); }),
    WithBadge(u"Cur_SingleTransitionStart_1_1", Solid, [](Canvas& c, P b) { SingleTransition(c, b, -1.f); }),
    WithBadge(u"Cur_MoveTransition_1_1", Solid, [](Canvas& c, P b) { MovedTransition(c, b, false); }),
    WithBadge(u"Cur_MoveTransitionClear_1_1", Solid, [](Canvas& c, P b) { MovedTransition(c, b, true); }),
    WithBadge(u"Cur_DragFrame_1_1", Solid,
              [](Canvas& c, P b) {
                c.FillRect({b.x - 6.f, b.y - 4.f, 12.f, 9.f}, Ink::Hollow);
                c.FillRect({b.x - 6.f, b.y - 4.f, 12.f, 2.f});
              }),
    WithBadge(u"Cur_DragTab_1_1", Solid,
              [](Canvas& c, P b) {
                c.FillRect({b.x - 6.f, b.y - 4.f, 6.f, 3.f});
                c.FillRect({b.x - 6.f, b.y - 1.f, 12.f, 6.f}, Ink::Hollow);
              }),
    WithBadge(u"Cur_EditAnchor_1_1", Solid, Anchor),
    WithBadge(u"Cur_MoveAnchor_1_1", Solid,
              [](Canvas& c, P b) {
                Anchor(c, b);
                FourWay(c, b, 7.f, 1.f, 2.f);
              }),
    WithBadge(u"Cur_Extract_1_1", Solid, [](Canvas& c, P b) { LiftOut(c, b, true); }),
    WithBadge(u"Cur_Lift_1_1", Solid, [](Canvas& c, P b) { LiftOut(c, b, false); }),
    WithBadge(u"Cur_HorizontalText_1_1", Solid, Glyph_T),
    WithBadge(u"Cur_VerticalText_1_1", Solid, Glyph_SidewaysT),
    WithBadge(u"Cur_InsertLimitedShift_1_1", Solid, LimitedShift),
    WithBadge(u"Cur_ZELInsert_1_1", Solid, [](Canvas& c, P b) { DropIn(c, b, true); }),
    WithBadge(u"Cur_ZELOverlay_1_1", Solid, [](Canvas& c, P b) { DropIn(c, b, false); }),
    WithBadge(u"Cur_MoveCopy_1_1", Solid, CopyBadge),
    WithBadge(u"Cur_MoveCopyNo_1_1", Solid,
              [](Canvas& c, P b) {
                CopyBadge(c, b);
                c.Line(At(b, -6, -6), At(b, 6, 6), 2.f);
              }),
    WithBadge(u"Cur_MoveLine_1_1", Solid,
              [](Canvas& c, P b) {
                c.Line(At(b, -5, 4), At(b, 5, -4));
                c.FillRect({b.x - 6.f, b.y + 3.f, 2.f, 2.f});
                c.FillRect({b.x + 4.f, b.y - 5.f, 2.f, 2.f});
              }),
    WithBadge(u"Cur_Move_1_1", Solid, [](Canvas& c, P b) { FourWay(c, b, 5.f, 1.f, 2.5f); }),
    WithBadge(u"Cur_MoveCrossArrow_1_1", Solid, [](Canvas& c, P b) { FourWay(c, b, 6.f, 3.f, 3.f); }),
    WithBadge(u"Cur_MoveHorizontal_1_1", Solid,
              [](Canvas& c, P b) { c.Arrow(At(b, -6, 0), At(b, 6, 0), 1.f, 3.f, true); }),
    // The small turn sits above the badge, right of the arrow's point.
    WithBadge(u"Cur_MoveRotate_1_1", Solid,
              [](Canvas& c, P b) {
                FourWay(c, b, 5.f, 1.f, 2.5f);
                Rotation(c, At(b, 3, -12), 3.5f);
              }),
    WithBadge(u"Cur_Rotate_1_1", Solid, [](Canvas& c, P b) { Rotation(c, At(b, 1, 0), 5.f); }),
    WithBadge(u"Cur_Reselect_1_1", Solid, [](Canvas& c, P b) { DashedRect(c, At(b, -6, -5), 12.f, 10.f); }),
    WithBadge(u"Cur_SelectVerticalAdjust_1_1", Solid, VerticalArrows),
    WithBadge(u"Cur_PanBehindTool_1_1", Solid, [](Canvas& c, P b) { SmallHand(c, At(b, 0, 1)); }),
    WithBadge(u"Cur_PanBehindToolAlt_1_1", Hollow, [](Canvas& c, P b) { SmallHand(c, At(b, 0, 1)); }),
    WithBadge(u"Cur_RearrangeLeft_1_1", Solid, [](Canvas& c, P b) { Rearrange(c, b, -1.f); }),
    WithBadge(u"Cur_RearrangeRight_1_1", Solid, [](Canvas& c, P b) { Rearrange(c, b, 1.f); }),
    WithBadge(u"Cur_RemixTool_1_1", Solid, Waveform),
    // Not available: the sign goes above, where the waveform leaves room.
    WithBadge(u"Cur_RemixToolNA_1_1", Solid,
              [](Canvas& c, P b) {
                Waveform(c, b);
                NotAvailable(c, At(b, 8, -12));
              }),
}};

} // namespace

std::span<const CursorArt> GetPointerArt() { return kArt; }

} // namespace cursorgen
