// Tools held in the hand: pens, the lasso, droppers, hands, text beams,
// blades, lights, lenses and the lock.
#include "CursorArt.h"

#include <array>
#include <cmath>
#include <numbers>
#include <vector>

namespace cursorgen {
namespace {

/// A point `along` a diagonal from `h` (down-right when `down`, else up-right) and `across` it.
P Diagonal(P h, bool down, float along, float across) {
  constexpr float k = std::numbers::sqrt2_v<float> / 2.f;
  const float dy = down ? 1.f : -1.f;
  return {h.x + k * (along - dy * across), h.y + k * (dy * along + across)};
}

// The pen nib: its point on `h`, the pen lying down to the right; slit and breather hole in white.
void Nib(Canvas& c, P h) {
  const std::array<P, 5> nib{Diagonal(h, true, -0.5f, 0.f), Diagonal(h, true, 7.f, -4.5f),
                             Diagonal(h, true, 11.f, -3.f), Diagonal(h, true, 11.f, 3.f),
                             Diagonal(h, true, 7.f, 4.5f)};
  c.FillPolygon(nib);
  c.Line(Diagonal(h, true, 2.f, 0.f), Diagonal(h, true, 6.f, 0.f), 1.f, Ink::White);
  c.Disc(Diagonal(h, true, 7.5f, 0.f), 1.2f, Ink::White);
  const std::array<P, 4> barrel{Diagonal(h, true, 12.5f, -3.5f), Diagonal(h, true, 16.f, -3.5f),
                                Diagonal(h, true, 16.f, 3.5f), Diagonal(h, true, 12.5f, 3.5f)};
  c.FillPolygon(barrel);
}

void Asterisk(Canvas& c, P b) {
  c.Line(At(b, 0, -4), At(b, 0, 4));
  c.Line(At(b, -3.5f, -2), At(b, 3.5f, 2));
  c.Line(At(b, -3.5f, 2), At(b, 3.5f, -2));
}

// The lasso: its rope ends on `h`, the loop lies below to the right.
void Lasso(Canvas& c, P h) {
  std::vector<P> loop;
  for (int i = 0; i <= 48; ++i) {
    const float angle = 2.f * std::numbers::pi_v<float> * static_cast<float>(i) / 48.f;
    loop.push_back(At(h, 13.f + 9.f * std::cos(angle), 11.f + 6.f * std::sin(angle)));
  }
  c.Polyline(loop, 1.5f);
  const std::array<P, 3> rope{h, At(h, 1, 5), At(h, 5, 9)};
  c.Polyline(rope, 1.f);
  c.Disc(h, 1.2f);
}

// The dropper: its spout on `h`, the bulb up to the right. `tube` is the glass's half width.
void Dropper(Canvas& c, P h, float tube, Ink glass) {
  c.Line(h, Diagonal(h, false, 3.f, 0.f), 2.f);
  const std::array<P, 4> body{Diagonal(h, false, 3.f, -tube), Diagonal(h, false, 11.f, -tube),
                              Diagonal(h, false, 11.f, tube), Diagonal(h, false, 3.f, tube)};
  c.FillPolygon(body, glass);
  const std::array<P, 4> collar{Diagonal(h, false, 11.f, -4.f), Diagonal(h, false, 13.f, -4.f),
                                Diagonal(h, false, 13.f, 4.f), Diagonal(h, false, 11.f, 4.f)};
  c.FillPolygon(collar);
  c.Disc(Diagonal(h, false, 16.f, 0.f), 3.5f);
}

void TextBeam(Canvas& c, P h) {
  c.Line(At(h, 0, -7), At(h, 0, 7));
  for (float side : {-1.f, 1.f}) {
    c.Line(At(h, -3, side * 8.f), At(h, -1, side * 8.f));
    c.Line(At(h, 1, side * 8.f), At(h, 3, side * 8.f));
  }
}

void SidewaysTextBeam(Canvas& c, P h) {
  c.Line(At(h, -7, 0), At(h, 7, 0));
  for (float side : {-1.f, 1.f}) {
    c.Line(At(h, side * 8.f, -3), At(h, side * 8.f, -1));
    c.Line(At(h, side * 8.f, 1), At(h, side * 8.f, 3));
  }
}

// The blade, standing: its cutting edge is the left side, through `h`, its
// thick back slants away to the right, with a hole to fix it by.
void Razor(Canvas& c, P h) {
  const std::array<P, 4> blade{At(h, -0.5f, -8.5f), At(h, 5.f, -8.5f), At(h, 9.5f, 7.5f), At(h, -0.5f, 7.5f)};
  c.FillPolygon(blade, Ink::Hollow);
  c.Line(At(h, 4.5f, -7.5f), At(h, 8.5f, 6.5f), 2.5f);
  c.FillRect({h.x + 3.f, h.y + 1.f, 1.f, 1.f});
}

void Light(Canvas& c, P h, int number) {
  c.Disc(h, 3.5f);
  for (int ray = 0; ray < 8; ++ray) {
    const float angle = std::numbers::pi_v<float> * static_cast<float>(ray) / 4.f;
    const P direction{std::cos(angle), std::sin(angle)};
    c.Line(At(h, 5.5f * direction.x, 5.5f * direction.y), At(h, 7.5f * direction.x, 7.5f * direction.y),
           1.5f);
  }
  // Its number as pips below.
  for (int pip = 0; pip < number; ++pip)
    c.FillRect({h.x - 7.f + 3.f * static_cast<float>(pip), h.y + 11.f, 1.f, 1.f});
}

// The lens: centred on `h`, its handle down to the right, `sign` +1 (in) or -1 (out).
void Lens(Canvas& c, P h, int sign, bool isTimeline) {
  c.Ring(h, 6.f, 2.f);
  c.Line(At(h, 5, 5), At(h, 11, 11), 3.f);
  if (sign > 0)
    c.Plus(h, 3.f);
  else
    c.Minus(h, 3.f);
  if (isTimeline) c.Arrow(At(h, -7, 11), At(h, 3, 11), 1.f, 3.f, true);
}

void Lock(Canvas& c, P h) {
  c.FillRect({h.x - 5.f, h.y - 2.f, 10.f, 8.f});
  c.Line(At(h, 0, 2), At(h, 0, 3), 1.f, Ink::White);
  c.Arc(At(h, 0, -4), 3.5f, 180.f, 360.f, 2.f);
  c.Line(At(h, -3.5f, -4), At(h, -3.5f, -2.5f), 2.f);
  c.Line(At(h, 3.5f, -4), At(h, 3.5f, -2.5f), 2.f);
}

using Hand = Canvas::Hand;

const std::array<CursorArt, 36> kArt{{
    {u"Cur_Pen_1_1", [](Canvas& c, P h) { Nib(c, h); }},
    {u"Cur_PenAdd_1_1",
     [](Canvas& c, P h) {
       Nib(c, h);
       c.Plus(BadgeOf(h), 3.f);
     }},
    {u"Cur_PenSubstract_1_1",
     [](Canvas& c, P h) {
       Nib(c, h);
       c.Minus(BadgeOf(h), 3.f);
     }},
    {u"Cur_PenClose_1_1",
     [](Canvas& c, P h) {
       Nib(c, h);
       c.Ring(BadgeOf(h), 3.f, 1.6f);
     }},
    {u"Cur_PenContinue_1_1",
     [](Canvas& c, P h) {
       Nib(c, h);
       c.Line(At(BadgeOf(h), -5, 3), At(BadgeOf(h), 2, -2));
       c.FillRect({BadgeOf(h).x + 2.f, BadgeOf(h).y - 4.f, 2.f, 2.f});
     }},
    {u"Cur_PenNew_1_1",
     [](Canvas& c, P h) {
       Nib(c, h);
       Asterisk(c, BadgeOf(h));
     }},
    {u"Cur_PenSelection_1_1",
     [](Canvas& c, P h) {
       Nib(c, h);
       c.FillRect({BadgeOf(h).x - 2.f, BadgeOf(h).y - 2.f, 4.f, 4.f});
     }},
    {u"Cur_PenVerticalAdjust_1_1",
     [](Canvas& c, P h) {
       Nib(c, h);
       c.Arrow(At(BadgeOf(h), 0, -5), At(BadgeOf(h), 0, 5), 1.f, 3.f, true);
     }},
    {u"Cur_ObjectLassoSelection_1_1", [](Canvas& c, P h) { Lasso(c, h); }},
    {u"Cur_ObjectLassoSelectionAdd_1_1",
     [](Canvas& c, P h) {
       Lasso(c, h);
       c.Plus(At(h, 20, 23), 3.f);
     }},
    {u"Cur_ObjectLassoSelectionSubstract_1_1",
     [](Canvas& c, P h) {
       Lasso(c, h);
       c.Minus(At(h, 20, 23), 3.f);
     }},
    {u"Cur_Eyedropper_2_17", [](Canvas& c, P h) { Dropper(c, h, 2.f, Ink::Hollow); }},
    {u"Cur_EyedropperBlack_2_17", [](Canvas& c, P h) { Dropper(c, h, 2.f, Ink::Black); }},
    {u"Cur_EyedropperFat_2_17", [](Canvas& c, P h) { Dropper(c, h, 3.5f, Ink::Hollow); }},
    {u"Cur_AreaSample_3_20",
     [](Canvas& c, P h) {
       Dropper(c, h, 2.f, Ink::Hollow);
       c.StrokeRect({h.x - 3.f, h.y - 3.f, 6.f, 6.f});
     }},
    {u"Cur_Hand_11_11", [](Canvas& c, P h) { c.DrawHand(Hand::Open, h); }},
    {u"Cur_Fist_11_11", [](Canvas& c, P h) { c.DrawHand(Hand::Fist, h); }},
    {u"Cur_FistAdd_11_11",
     [](Canvas& c, P h) {
       c.DrawHand(Hand::Fist, h);
       c.Plus(At(h, 11, 9), 3.f);
     }},
    {u"Cur_FistNo_11_11",
     [](Canvas& c, P h) {
       c.DrawHand(Hand::Fist, h);
       NotAvailable(c, At(h, 12, 9));
     }},
    {u"Cur_HandPoint_8_3", [](Canvas& c, P h) { c.DrawHand(Hand::Pointing, h); }},
    {u"Cur_HandPointSlider_8_3",
     [](Canvas& c, P h) {
       c.DrawHand(Hand::Pointing, h);
       c.Arrowhead(At(h, -6, 4), {-1.f, 0.f}, 3.f);
       c.Arrowhead(At(h, 6, 4), {1.f, 0.f}, 3.f);
     }},
    {u"Cur_TextEdit_4_12", [](Canvas& c, P h) { TextBeam(c, h); }},
    {u"Cur_VerticalText_9_4",
     [](Canvas& c, P h) {
       SidewaysTextBeam(c, h);
       DashedRect(c, At(h, -7, 6), 14.f, 9.f);
     }},
    {u"Cur_Razor_3_9", [](Canvas& c, P h) { Razor(c, h); }},
    {u"Cur_MultiRazor_3_9",
     [](Canvas& c, P h) {
       Razor(c, h);
       c.Line(At(h, 0, 8), At(h, 0, 17));
       for (float track : {11.f, 15.f}) c.Line(At(h, -2, track), At(h, 2, track));
     }},
    {u"Cur_RazorNA_3_9",
     [](Canvas& c, P h) {
       Razor(c, h);
       NotAvailable(c, At(h, 15, 12));
     }},
    {u"Cur_Light1_10_11", [](Canvas& c, P h) { Light(c, h, 1); }},
    {u"Cur_Light2_10_11", [](Canvas& c, P h) { Light(c, h, 2); }},
    {u"Cur_Light3_10_11", [](Canvas& c, P h) { Light(c, h, 3); }},
    {u"Cur_Light4_10_11", [](Canvas& c, P h) { Light(c, h, 4); }},
    {u"Cur_Light5_10_11", [](Canvas& c, P h) { Light(c, h, 5); }},
    {u"Cur_ZoomIn_8_8", [](Canvas& c, P h) { Lens(c, h, 1, false); }},
    {u"Cur_ZoomOut_8_8", [](Canvas& c, P h) { Lens(c, h, -1, false); }},
    {u"Cur_TLZoomIn_8_8", [](Canvas& c, P h) { Lens(c, h, 1, true); }},
    {u"Cur_TLZoomOut_8_8", [](Canvas& c, P h) { Lens(c, h, -1, true); }},
    {u"Cur_LockToMedia_8_8", [](Canvas& c, P h) { Lock(c, h); }},
}};

} // namespace

std::span<const CursorArt> GetToolArt() { return kArt; }

} // namespace cursorgen
