// Marks centred on their hot spot: crosshairs, scaling and rotating arrows,
// splitters, and signs.
#include "CursorArt.h"

#include <array>
#include <cmath>
#include <numbers>
#include <vector>

namespace cursorgen {
namespace {

float Degrees(P direction) {
  return std::atan2(direction.y, direction.x) * 180.f / std::numbers::pi_v<float>;
}

/// A crosshair with its arms from `gap` to `arm` pixels out, and the centre pixel.
void Crosshair(Canvas& c, P h, float gap, float arm) {
  for (const P d : {P{1, 0}, P{-1, 0}, P{0, 1}, P{0, -1}})
    c.Line(At(h, d.x * gap, d.y * gap), At(h, d.x * arm, d.y * arm));
  c.FillRect({h.x, h.y, 0.f, 0.f});
}

void Precise(Canvas& c, P h) { Crosshair(c, h, 3.f, 8.f); }

/// A rotation about a box's side or corner: the arc through `h` bulges away from the box, which lies towards
/// -`d`.
void RotateAbout(Canvas& c, P h, P d) {
  const float length = std::hypot(d.x, d.y), radius = 7.f;
  const P centre = At(h, -d.x / length * radius, -d.y / length * radius);
  const float middle = Degrees(d);
  c.ArcArrow(centre, radius, middle - 80.f, middle + 80.f, 2.f, 3.5f, true);
}

void Scale(Canvas& c, P h, P d) {
  c.FillRect({h.x - 2.f, h.y - 2.f, 4.f, 4.f}, Ink::Hollow);
  c.Arrow(At(h, -d.x, -d.y), At(h, d.x, d.y), 1.f, 4.f, true);
}

/// A splitter's two edges, moved up and down (or sideways) by the arrow through them.
void Splitter(Canvas& c, P h, bool movesVertically, bool isBig) {
  const float reach = isBig ? 7.f : 8.f, arm = isBig ? 8.f : 9.f, thickness = isBig ? 1.f : 0.f;
  for (float edge : {isBig ? -3.f : -2.f, 2.f}) {
    if (movesVertically)
      c.FillRect({h.x - reach, h.y + edge, 2.f * reach, thickness});
    else
      c.FillRect({h.x + edge, h.y - reach, thickness, 2.f * reach});
  }
  const P d = movesVertically ? P{0, arm} : P{arm, 0};
  c.Arrow(At(h, -d.x, -d.y), At(h, d.x, d.y), isBig ? 3.f : 1.f, 4.f, true);
}

void Sphere(Canvas& c, P h) {
  c.Ring(h, 5.5f, 1.f);
  c.Disc(h, 1.2f);
  // The orbit, a flat ellipse round the front, ending in a head.
  std::vector<P> orbit;
  const auto onOrbit = [h](float degrees) {
    const float radians = degrees * std::numbers::pi_v<float> / 180.f;
    return At(h, 7.5f * std::cos(radians), 2.5f * std::sin(radians));
  };
  for (float degrees = -10.f; degrees <= 170.f; degrees += 10.f) orbit.push_back(onOrbit(degrees));
  c.Polyline(orbit, 1.f);
  c.Arrowhead(onOrbit(180.f), {-0.3f, -1.f}, 3.f);
}

void Cube(Canvas& c, P b) {
  std::array<P, 7> outline{};
  for (std::size_t i = 0; i < outline.size(); ++i) {
    const float radians = (-90.f + 60.f * static_cast<float>(i)) * std::numbers::pi_v<float> / 180.f;
    outline[i] = At(b, 4.5f * std::cos(radians), 4.5f * std::sin(radians));
  }
  c.Polyline(outline, 1.f);
  for (std::size_t corner : {1u, 3u, 5u}) c.Line(b, outline[corner]);
}

void PathBadge(Canvas& c, P b) {
  std::vector<P> path;
  for (int i = 0; i <= 8; ++i) {
    const float t = static_cast<float>(i) / 8.f;
    path.push_back(At(b, -5.f + 10.f * t, 3.f - 8.f * t * (1.f - t) * 2.f));
  }
  c.Polyline(path, 1.f);
  c.FillRect({b.x - 6.f, b.y + 2.f, 2.f, 2.f});
  c.FillRect({b.x + 4.f, b.y + 2.f, 2.f, 2.f});
}

void ObjectSelection(Canvas& c, P h) {
  Precise(c, h);
  DashedRect(c, At(h, 5, 5), 12.f, 9.f);
}

void Marquee(Canvas& c, P h, float arm) {
  Crosshair(c, h, 0.f, arm);
  DashedRect(c, At(h, arm - 2.f, arm - 2.f), arm + 2.f, arm);
}

void HoldSegment(Canvas& c, P h) {
  c.Line(At(h, -7, 0), At(h, 7, 0));
  c.Line(At(h, -7, -3), At(h, -7, 3));
  c.Line(At(h, 7, -3), At(h, 7, 3));
  c.FillRect({h.x - 3.f, h.y - 7.f, 1.f, 4.f});
  c.FillRect({h.x + 2.f, h.y - 7.f, 1.f, 4.f});
}

void Reverse(Canvas& c, P h) {
  c.Line(At(h, 0, -6), At(h, 0, 6));
  c.Arrow(At(h, 1, -3), At(h, 8, -3), 1.f, 3.f);
  c.Arrow(At(h, -1, 3), At(h, -8, 3), 1.f, 3.f);
}

constexpr float kDiagonal = 1.f;

const std::array<CursorArt, 31> kArt{{
    {u"Cur_3DRotate_7_7", [](Canvas& c, P h) { Sphere(c, h); }},
    {u"Cur_Precise_9_9", [](Canvas& c, P h) { Precise(c, h); }},
    {u"Cur_PrecisePath_9_9",
     [](Canvas& c, P h) {
       Precise(c, h);
       PathBadge(c, At(h, 11, 12));
     }},
    {u"Cur_CubeCrossSelection_9_9",
     [](Canvas& c, P h) {
       Precise(c, h);
       Cube(c, At(h, 11, 11));
     }},
    {u"Cur_ObjectSelection_9_9", [](Canvas& c, P h) { ObjectSelection(c, h); }},
    {u"Cur_ObjectSelectionAdd_9_9",
     [](Canvas& c, P h) {
       ObjectSelection(c, h);
       c.Plus(At(h, 12, -4), 3.f);
     }},
    {u"Cur_ObjectSelectionSubstract_9_9",
     [](Canvas& c, P h) {
       ObjectSelection(c, h);
       c.Minus(At(h, 12, -4), 3.f);
     }},
    {u"Cur_SmallMarquee_7_7", [](Canvas& c, P h) { Marquee(c, h, 7.f); }},
    {u"Cur_TinyMarquee_5_5", [](Canvas& c, P h) { Marquee(c, h, 5.f); }},
    {u"Cur_CrossArrow_10_10", [](Canvas& c, P h) { FourWay(c, h, 9.f, 1.f, 4.f); }},
    {u"Cur_No_8_8", [](Canvas& c, P h) { c.NoSign(h, 7.f); }},
    {u"Cur_HoldFrameSegment_8_8", [](Canvas& c, P h) { HoldSegment(c, h); }},
    {u"Cur_ReverseSegment_8_8", [](Canvas& c, P h) { Reverse(c, h); }},
    {u"Cur_ResizeHorizontal_7_3", [](Canvas& c, P h) { c.Arrow(At(h, -6, 0), At(h, 6, 0), 1.f, 3.f, true); }},
    {u"Cur_ResizeVertical_3_7", [](Canvas& c, P h) { c.Arrow(At(h, 0, -6), At(h, 0, 6), 1.f, 3.f, true); }},
    {u"Cur_RotateFromTop_8_8",
     [](Canvas& c, P h) {
       RotateAbout(c, h, {0, -1});
     }},
    {u"Cur_RotateFromBottom_8_8",
     [](Canvas& c, P h) {
       RotateAbout(c, h, {0, 1});
     }},
    {u"Cur_RotateFromLeft_8_8",
     [](Canvas& c, P h) {
       RotateAbout(c, h, {-1, 0});
     }},
    {u"Cur_RotateFromRight_8_8",
     [](Canvas& c, P h) {
       RotateAbout(c, h, {1, 0});
     }},
    {u"Cur_RotateTopLeftCorner_8_8",
     [](Canvas& c, P h) {
       RotateAbout(c, h, {-kDiagonal, -kDiagonal});
     }},
    {u"Cur_RotateTopRightCorner_8_8",
     [](Canvas& c, P h) {
       RotateAbout(c, h, {kDiagonal, -kDiagonal});
     }},
    {u"Cur_RotateBottomLeftCorner_8_8",
     [](Canvas& c, P h) {
       RotateAbout(c, h, {-kDiagonal, kDiagonal});
     }},
    {u"Cur_RotateBottomRightCorner_8_8",
     [](Canvas& c, P h) {
       RotateAbout(c, h, {kDiagonal, kDiagonal});
     }},
    {u"Cur_ScaleHorizontal_9_9",
     [](Canvas& c, P h) {
       Scale(c, h, {8, 0});
     }},
    {u"Cur_ScaleVertical_9_9",
     [](Canvas& c, P h) {
       Scale(c, h, {0, 8});
     }},
    {u"Cur_ScaleTLBR_9_9",
     [](Canvas& c, P h) {
       Scale(c, h, {6, 6});
     }},
    {u"Cur_ScaleTRBL_9_9",
     [](Canvas& c, P h) {
       Scale(c, h, {6, -6});
     }},
    {u"Cur_SplitterHorizontal_10_10", [](Canvas& c, P h) { Splitter(c, h, true, false); }},
    {u"Cur_SplitterHorizontalBig_8_8", [](Canvas& c, P h) { Splitter(c, h, true, true); }},
    {u"Cur_SplitterVertical_10_10", [](Canvas& c, P h) { Splitter(c, h, false, false); }},
    {u"Cur_SplitterVerticalBig_8_8", [](Canvas& c, P h) { Splitter(c, h, false, true); }},
}};

} // namespace

std::span<const CursorArt> GetMarkArt() { return kArt; }

} // namespace cursorgen
