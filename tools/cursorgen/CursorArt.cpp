#include "CursorArt.h"

#include <array>

namespace cursorgen {

const CursorArt* FindCursorArt(std::u16string_view name) {
  for (const auto family : {GetPointerArt(), GetToolArt(), GetTrimArt(), GetMarkArt()}) {
    for (const CursorArt& art : family)
      if (art.name == name) return &art;
  }
  return nullptr;
}

void DashedRect(Canvas& c, P topLeft, float width, float height) {
  // Dashes of two pixels and gaps of two, which the outline fills white.
  const float right = topLeft.x + width, bottom = topLeft.y + height;
  for (float x = topLeft.x; x <= right; x += 4.f) {
    const float end = x + 1.f > right ? right : x + 1.f;
    c.Line({x, topLeft.y}, {end, topLeft.y});
    c.Line({x, bottom}, {end, bottom});
  }
  for (float y = topLeft.y; y <= bottom; y += 4.f) {
    const float end = y + 1.f > bottom ? bottom : y + 1.f;
    c.Line({topLeft.x, y}, {topLeft.x, end});
    c.Line({right, y}, {right, end});
  }
}

void TransitionBox(Canvas& c, P centre, bool isClear, float halfWidth, float halfHeight) {
  const P topLeft = At(centre, -halfWidth, -halfHeight), bottomRight = At(centre, halfWidth, halfHeight);
  const Canvas::RectF box{topLeft.x, topLeft.y, 2.f * halfWidth, 2.f * halfHeight};
  if (isClear) {
    c.FillRect(box, Ink::Hollow);
    c.Line({topLeft.x, bottomRight.y}, {bottomRight.x, topLeft.y});
  } else {
    c.FillRect(box);
    c.Line(At(topLeft, 1.f, 2.f * halfHeight - 1.f), At(bottomRight, -1.f, 1.f - 2.f * halfHeight), 1.f,
           Ink::White);
  }
}

void ClipBar(Canvas& c, P centre, float halfWidth, float halfHeight) {
  c.FillRect({centre.x - halfWidth, centre.y - halfHeight, 2.f * halfWidth, 2.f * halfHeight}, Ink::Hollow);
}

void FourWay(Canvas& c, P centre, float arm, float width, float head) {
  c.Arrow(At(centre, -arm, 0.f), At(centre, arm, 0.f), width, head, true);
  c.Arrow(At(centre, 0.f, -arm), At(centre, 0.f, arm), width, head, true);
}

void Sparkle(Canvas& c, P centre, float size) {
  const float waist = size / 4.f;
  const std::array<P, 8> star{At(centre, 0.f, -size),   At(centre, waist, -waist), At(centre, size, 0.f),
                              At(centre, waist, waist), At(centre, 0.f, size),     At(centre, -waist, waist),
                              At(centre, -size, 0.f),   At(centre, -waist, -waist)};
  c.FillPolygon(star);
}

void SmallHand(Canvas& c, P centre) {
  c.FillRect({centre.x - 3.f, centre.y - 1.f, 6.f, 5.f});
  for (float finger : {-3.f, -1.f, 1.f, 3.f})
    c.Line(At(centre, finger, finger == -3.f || finger == 3.f ? -4.f : -5.f), At(centre, finger, -1.f));
  c.Line(At(centre, -4.f, 2.f), At(centre, -6.f, 0.f));
}

void NotAvailable(Canvas& c, P centre) { c.NoSign(centre, 4.5f); }

} // namespace cursorgen
