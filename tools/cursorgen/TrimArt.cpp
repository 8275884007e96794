// Edit points: a bracket on the edit (its hot spot on the bracket's bar) with
// the arrows the edit moves along. "[" is a clip's head, "]" its tail; the
// arrows say what else moves: one thin pair trims, a heavy pair ripples.
#include "CursorArt.h"

#include <array>

namespace cursorgen {
namespace {

enum class Edge { Head, Tail };

/// "[" (head) or "]" (tail), its bar two pixels wide with `h` on the bar's inner column.
void Bracket(Canvas& c, P h, Edge edge, float halfHeight) {
  const bool isHead = edge == Edge::Head;
  const float bar = isHead ? h.x - 1.f : h.x, serif = isHead ? h.x - 1.f : h.x - 3.f;
  c.FillRect({bar, h.y - halfHeight, 1.f, 2.f * halfHeight});
  c.FillRect({serif, h.y - halfHeight, 4.f, 1.f});
  c.FillRect({serif, h.y + halfHeight - 1.f, 4.f, 1.f});
}

/// An edge whose kind does not matter here: a bare bar.
void Bar(Canvas& c, P h, float halfHeight) {
  c.FillRect({h.x - 1.f, h.y - halfHeight, 1.f, 2.f * halfHeight});
}

void Across(Canvas& c, P h, float width) { c.Arrow(At(h, -10, 0), At(h, 10, 0), width, 4.f, true); }

void Trim(Canvas& c, P h, Edge edge) {
  Bracket(c, h, edge, 8.f);
  Across(c, h, 1.f);
}
void Ripple(Canvas& c, P h, Edge edge) {
  Bracket(c, h, edge, 8.f);
  Across(c, h, 3.f);
}

void Roll(Canvas& c, P h) {
  Bracket(c, h, Edge::Tail, 8.f);
  Bracket(c, At(h, 2, 0), Edge::Head, 8.f);
  Across(c, h, 1.f);
}

/// The fast-forward sign: a rate stretch changes speed.
void FastForward(Canvas& c, P at) {
  c.Arrowhead(At(at, 2, 0), {1.f, 0.f}, 3.f);
  c.Arrowhead(At(at, 6, 0), {1.f, 0.f}, 3.f);
}

void Rate(Canvas& c, P h, Edge edge) {
  Bracket(c, h, edge, 7.f);
  c.Arrow(At(h, -9, 0), At(h, 9, 0), 1.f, 4.f, true);
  FastForward(c, At(h, -3, 12));
}

void Generate(Canvas& c, P h) {
  c.Arrow(At(h, -10, 0), At(h, 10, 0), 1.f, 4.f, true);
  Sparkle(c, At(h, 8, -7), 4.f);
  Sparkle(c, At(h, 3, -10), 2.f);
}

void TrimTransition(Canvas& c, P h, Edge edge, bool isClear) {
  Bracket(c, h, edge, 6.f);
  TransitionBox(c, At(h, edge == Edge::Head ? 5.f : -4.f, 0), isClear, 3.f);
  c.Arrow(At(h, -7, 10), At(h, 7, 10), 1.f, 3.f, true);
}

/// Two edges and the arrow between them: facing in ("[ ]", slip) or out ("] [", slide).
void Pair(Canvas& c, P h, bool facesIn) {
  const float halfHeight = facesIn ? 7.f : 6.f;
  Bracket(c, At(h, facesIn ? -6.f : -7.f, 0), facesIn ? Edge::Head : Edge::Tail, halfHeight);
  Bracket(c, At(h, facesIn ? 7.f : 6.f, 0), facesIn ? Edge::Tail : Edge::Head, halfHeight);
  const float reach = facesIn ? 4.f : 3.f;
  c.Arrow(At(h, -reach, 0), At(h, reach, 0), 1.f, 3.f, true);
}

void GlyphA(Canvas& c, P at) {
  const std::array<P, 3> strokes{At(at, -3, 4), At(at, 0, -4), At(at, 3, 4)};
  c.Polyline(strokes, 1.f);
  c.Line(At(at, -2, 1), At(at, 2, 1));
}

/// Track selection: heavy arrows with their points on `h`, one or two tracks deep.
void TrackSelect(Canvas& c, P h, float direction, bool isMulti) {
  for (int track = 0; track < (isMulti ? 2 : 1); ++track) {
    const float y = 8.f * static_cast<float>(track);
    c.Arrow(At(h, -direction * 14.f, y), At(h, 0, y), 3.f, 5.f);
  }
  c.FillRect({h.x - direction * 16.f, h.y - 4.f, 0.f, isMulti ? 16.f : 8.f});
}

const std::array<CursorArt, 28> kArt{{
    {u"Cur_TrimHead_15_11", [](Canvas& c, P h) { Trim(c, h, Edge::Head); }},
    {u"Cur_TrimTail_15_11", [](Canvas& c, P h) { Trim(c, h, Edge::Tail); }},
    {u"Cur_RippleHead_15_11", [](Canvas& c, P h) { Ripple(c, h, Edge::Head); }},
    {u"Cur_RippleTail_15_11", [](Canvas& c, P h) { Ripple(c, h, Edge::Tail); }},
    {u"Cur_RippleNA_15_11",
     [](Canvas& c, P h) {
       Bar(c, h, 8.f);
       Across(c, h, 3.f);
       NotAvailable(c, At(h, 10, 11));
     }},
    {u"Cur_RollingTrim_14_11", [](Canvas& c, P h) { Roll(c, h); }},
    {u"Cur_RollingTrimNA_14_11",
     [](Canvas& c, P h) {
       Roll(c, h);
       NotAvailable(c, At(h, 11, 11));
     }},
    {u"Cur_RateHead_11_10", [](Canvas& c, P h) { Rate(c, h, Edge::Head); }},
    {u"Cur_RateTail_11_10", [](Canvas& c, P h) { Rate(c, h, Edge::Tail); }},
    {u"Cur_RateNA_11_10",
     [](Canvas& c, P h) {
       Bar(c, h, 7.f);
       c.Arrow(At(h, -9, 0), At(h, 9, 0), 1.f, 4.f, true);
       FastForward(c, At(h, -3, 12));
       NotAvailable(c, At(h, 13, 12));
     }},
    {u"Cur_AIGenTrimHead_15_12",
     [](Canvas& c, P h) {
       Bracket(c, h, Edge::Head, 8.f);
       Generate(c, h);
     }},
    {u"Cur_AIGenTrimTail_15_12",
     [](Canvas& c, P h) {
       Bracket(c, h, Edge::Tail, 8.f);
       Generate(c, h);
     }},
    {u"Cur_AIGenExtendVideoOrAudioNA_15_12",
     [](Canvas& c, P h) {
       Bar(c, h, 8.f);
       Generate(c, h);
       NotAvailable(c, At(h, 10, 11));
     }},
    {u"Cur_TrimIn_9_10",
     [](Canvas& c, P h) {
       Bracket(c, h, Edge::Head, 6.f);
       c.Arrow(At(h, 2, 0), At(h, 10, 0), 1.f, 3.f);
     }},
    {u"Cur_TrimOut_9_10",
     [](Canvas& c, P h) {
       Bracket(c, h, Edge::Tail, 6.f);
       c.Arrow(At(h, -1, 0), At(h, -8, 0), 1.f, 3.f);
     }},
    {u"Cur_TrimTransitionHead_8_11", [](Canvas& c, P h) { TrimTransition(c, h, Edge::Head, false); }},
    {u"Cur_TrimTransitionTail_8_11", [](Canvas& c, P h) { TrimTransition(c, h, Edge::Tail, false); }},
    {u"Cur_TrimTransitionHeadClear_8_11", [](Canvas& c, P h) { TrimTransition(c, h, Edge::Head, true); }},
    {u"Cur_TrimTransitionTailClear_8_11", [](Canvas& c, P h) { TrimTransition(c, h, Edge::Tail, true); }},
    {u"Cur_Slip_13_10", [](Canvas& c, P h) { Pair(c, h, true); }},
    {u"Cur_SlipNA_13_10",
     [](Canvas& c, P h) {
       Pair(c, h, true);
       NotAvailable(c, At(h, 0, 13));
     }},
    {u"Cur_Slide_13_15", [](Canvas& c, P h) { Pair(c, h, false); }},
    {u"Cur_SlideNA_13_15",
     [](Canvas& c, P h) {
       Pair(c, h, false);
       NotAvailable(c, At(h, 0, 11));
     }},
    {u"Cur_SlideA_13_10",
     [](Canvas& c, P h) {
       Pair(c, h, false);
       GlyphA(c, At(h, 0, 13));
     }},
    {u"Cur_SelectLeft_2_5", [](Canvas& c, P h) { TrackSelect(c, h, -1.f, false); }},
    {u"Cur_SelectRight_19_5", [](Canvas& c, P h) { TrackSelect(c, h, 1.f, false); }},
    {u"Cur_MultiSelectLeft_2_5", [](Canvas& c, P h) { TrackSelect(c, h, -1.f, true); }},
    {u"Cur_MultiSelectRight_19_5", [](Canvas& c, P h) { TrackSelect(c, h, 1.f, true); }},
}};

} // namespace

std::span<const CursorArt> GetTrimArt() { return kArt; }

} // namespace cursorgen
