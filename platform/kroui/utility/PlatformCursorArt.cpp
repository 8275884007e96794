#include <kroui/utility/PlatformCursorArtImpl.h>

#include <kroui/utility/OS_ResourceManager.h>

#include <array>

namespace kroui::utility {
namespace {

using P = CursorCanvas::PointF;
using Ink = CursorCanvas::Ink;
using Hand = CursorCanvas::Hand;
using ui::SystemCursor;

// Each picture is drawn around its hot spot `h`, which it inks.

void IBeam(CursorCanvas& c, P h) {
  c.Line({h.x, h.y - 7.f}, {h.x, h.y + 7.f});
  c.Line({h.x - 3.f, h.y - 8.f}, {h.x - 1.f, h.y - 8.f});
  c.Line({h.x + 1.f, h.y - 8.f}, {h.x + 3.f, h.y - 8.f});
  c.Line({h.x - 3.f, h.y + 8.f}, {h.x - 1.f, h.y + 8.f});
  c.Line({h.x + 1.f, h.y + 8.f}, {h.x + 3.f, h.y + 8.f});
}

void Wait(CursorCanvas& c, P h) {
  const std::array<P, 6> glass{P{h.x - 5.f, h.y - 7.f}, P{h.x + 5.f, h.y - 7.f}, P{h.x + 1.f, h.y},
                               P{h.x + 5.f, h.y + 7.f}, P{h.x - 5.f, h.y + 7.f}, P{h.x - 1.f, h.y}};
  c.FillPolygon(glass, Ink::Hollow);
  c.FillRect({h.x - 6.f, h.y - 9.f, 12.f, 1.f});
  c.FillRect({h.x - 6.f, h.y + 8.f, 12.f, 1.f});
  // The sand: a heap below, a thread falling through the waist.
  const std::array<P, 3> heap{P{h.x, h.y + 3.f}, P{h.x + 4.f, h.y + 7.f}, P{h.x - 4.f, h.y + 7.f}};
  c.FillPolygon(heap);
  c.Line({h.x, h.y - 1.f}, {h.x, h.y + 3.f});
}

void Cross(CursorCanvas& c, P h) {
  c.Line({h.x, h.y - 9.f}, {h.x, h.y + 9.f});
  c.Line({h.x - 9.f, h.y}, {h.x + 9.f, h.y});
}

void NoDrop(CursorCanvas& c, P h) { c.NoSign(h, 7.f); }

void Copy(CursorCanvas& c, P h) {
  c.Pointer(h);
  c.FillRect({h.x + 10.f, h.y + 11.f, 8.f, 8.f}, Ink::Hollow);
  c.Plus({h.x + 14.f, h.y + 15.f}, 2.f);
}

void Link(CursorCanvas& c, P h) {
  c.Pointer(h);
  c.Ring({h.x + 12.f, h.y + 16.f}, 3.f, 1.6f);
  c.Ring({h.x + 17.f, h.y + 16.f}, 3.f, 1.6f);
}

void MoveVSplitter(CursorCanvas& c, P h) {
  c.FillRect({h.x - 2.f, h.y - 7.f, 0.f, 14.f});
  c.FillRect({h.x + 2.f, h.y - 7.f, 0.f, 14.f});
  c.Arrow({h.x - 9.f, h.y}, {h.x + 9.f, h.y}, 1.f, 4.f, true);
}

void MoveHSplitter(CursorCanvas& c, P h) {
  c.FillRect({h.x - 7.f, h.y - 2.f, 14.f, 0.f});
  c.FillRect({h.x - 7.f, h.y + 2.f, 14.f, 0.f});
  c.Arrow({h.x, h.y - 9.f}, {h.x, h.y + 9.f}, 1.f, 4.f, true);
}

void MoveHVSplitter(CursorCanvas& c, P h) {
  for (float side : {-2.f, 2.f}) {
    c.FillRect({h.x + side, h.y - 5.f, 0.f, 10.f});
    c.FillRect({h.x - 5.f, h.y + side, 10.f, 0.f});
  }
  c.Arrow({h.x - 10.f, h.y}, {h.x + 10.f, h.y}, 1.f, 3.f, true);
  c.Arrow({h.x, h.y - 10.f}, {h.x, h.y + 10.f}, 1.f, 3.f, true);
}

void OpenHand(CursorCanvas& c, P h) { c.DrawHand(Hand::Open, h); }

void ClosedHand(CursorCanvas& c, P h) { c.DrawHand(Hand::Fist, h); }

void ResizeHorizontal(CursorCanvas& c, P h) { c.Arrow({h.x - 9.f, h.y}, {h.x + 9.f, h.y}, 3.f, 5.f, true); }

void ResizeVertical(CursorCanvas& c, P h) { c.Arrow({h.x, h.y - 9.f}, {h.x, h.y + 9.f}, 3.f, 5.f, true); }

void FingerPointy(CursorCanvas& c, P h) { c.DrawHand(Hand::Pointing, h); }

void FingerScrub(CursorCanvas& c, P h) {
  c.DrawHand(Hand::Pointing, h);
  c.Arrowhead({h.x - 6.f, h.y + 3.f}, {-1.f, 0.f}, 3.f);
  c.Arrowhead({h.x + 6.f, h.y + 3.f}, {1.f, 0.f}, 3.f);
}

void DragTab(CursorCanvas& c, P h) {
  c.Pointer(h);
  const std::array<P, 6> tab{P{h.x + 9.f, h.y + 20.f},  P{h.x + 9.f, h.y + 14.f},  P{h.x + 11.f, h.y + 12.f},
                             P{h.x + 17.f, h.y + 12.f}, P{h.x + 19.f, h.y + 14.f}, P{h.x + 19.f, h.y + 20.f}};
  c.FillPolygon(tab, Ink::Hollow);
  c.FillRect({h.x + 7.f, h.y + 20.f, 16.f, 1.f});
}

void DragFrame(CursorCanvas& c, P h) {
  c.Pointer(h);
  c.FillRect({h.x + 8.f, h.y + 12.f, 14.f, 10.f}, Ink::Hollow);
  c.FillRect({h.x + 8.f, h.y + 12.f, 14.f, 2.f});
}

void Circle(CursorCanvas& c, P h) {
  c.Ring(h, 7.f, 2.f);
  c.Disc(h, 1.f);
}

void MoveCross(CursorCanvas& c, P h) {
  c.Arrow({h.x - 9.f, h.y}, {h.x + 9.f, h.y}, 1.f, 4.f, true);
  c.Arrow({h.x, h.y - 9.f}, {h.x, h.y + 9.f}, 1.f, 4.f, true);
}

void Pencil(CursorCanvas& c, P h) {
  // Lying from the tip at the bottom left up to the right, at 45 degrees.
  const auto at = [h](float along, float across) {
    return P{h.x + 0.7071f * (along + across), h.y - 0.7071f * (along - across)};
  };
  const std::array<P, 5> body{at(-0.5f, 0.f), at(6.f, -3.5f), at(22.f, -3.5f), at(22.f, 3.5f), at(6.f, 3.5f)};
  c.FillPolygon(body, Ink::Hollow);
  const std::array<P, 3> lead{at(-0.5f, 0.f), at(3.f, -1.9f), at(3.f, 1.9f)};
  c.FillPolygon(lead);
  const std::array<P, 4> ferrule{at(17.f, -3.5f), at(19.f, -3.5f), at(19.f, 3.5f), at(17.f, 3.5f)};
  c.FillPolygon(ferrule);
}

constexpr std::array<PlatformCursorArt, 20> kArt{{
    {OS_ResourceManager::kOSIBeam, SystemCursor::IBeam, {7, 9}, IBeam},
    {OS_ResourceManager::kOSWait, SystemCursor::Wait, {8, 10}, Wait},
    {OS_ResourceManager::kOSCross, SystemCursor::Cross, {10, 10}, Cross},
    {OS_ResourceManager::kOSNoDrop, SystemCursor::NoDrop, {9, 9}, NoDrop},
    {OS_ResourceManager::kOSCopy, SystemCursor::Copy, {1, 1}, Copy},
    {OS_ResourceManager::kOSLink, SystemCursor::Link, {1, 1}, Link},
    {OS_ResourceManager::kMoveVSplitter, SystemCursor::None, {11, 10}, MoveVSplitter},
    {OS_ResourceManager::kMoveHSplitter, SystemCursor::None, {10, 11}, MoveHSplitter},
    {OS_ResourceManager::kMoveHVSplitter, SystemCursor::None, {11, 11}, MoveHVSplitter},
    {OS_ResourceManager::kHand, SystemCursor::None, {11, 11}, OpenHand},
    {OS_ResourceManager::kHandClosed, SystemCursor::None, {11, 11}, ClosedHand},
    {OS_ResourceManager::kResizeHorizontal, SystemCursor::None, {11, 7}, ResizeHorizontal},
    {OS_ResourceManager::kResizeVertical, SystemCursor::None, {7, 11}, ResizeVertical},
    {OS_ResourceManager::kFingerPointy, SystemCursor::None, {8, 3}, FingerPointy},
    {OS_ResourceManager::kFingerScrub, SystemCursor::None, {10, 3}, FingerScrub},
    {OS_ResourceManager::kDragTab, SystemCursor::None, {1, 1}, DragTab},
    {OS_ResourceManager::kDragFrame, SystemCursor::None, {1, 1}, DragFrame},
    {OS_ResourceManager::kCircle, SystemCursor::None, {9, 9}, Circle},
    {OS_ResourceManager::kMoveCross, SystemCursor::None, {11, 11}, MoveCross},
    {OS_ResourceManager::kPencil, SystemCursor::None, {1, 20}, Pencil},
}};

} // namespace

std::span<const PlatformCursorArt> GetPlatformCursorArt() { return kArt; }

} // namespace kroui::utility
