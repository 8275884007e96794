#include <kroui/ui/Cursor.h>

#include <kroui/backend/Backend.h>

#include <krocore/debug/Assert.h>

#include <algorithm>

namespace kroui::ui {
namespace {

// The hold and the pointer's visibility belong to the backend they were set
// on: a replaced backend starts with neither.
struct PointerState {
  std::uint64_t generation = 0;
  CursorHold hold = CursorHold::None;
  int hideCount = 0;
  bool isHiddenUntilMove = false;
};

PointerState& State() {
  static PointerState sState;
  if (sState.generation != backend::GetBackendGeneration()) sState = {backend::GetBackendGeneration()};
  return sState;
}

bool IsShown(const PointerState& state) { return state.hideCount == 0 && !state.isHiddenUntilMove; }

} // namespace

CursorPtr Cursor::Create(drawbot::Image image, Point hotSpot) {
  return CreateSystem(SystemCursor::None, std::move(image), hotSpot);
}

CursorPtr Cursor::CreateSystem(SystemCursor shape, drawbot::Image image, Point hotSpot) {
  if (!KROCORE_ASSERT(image.IsValid(), "Cursor: a cursor needs an image")) return nullptr;
  const Point clamped{std::clamp(hotSpot.x, 0, image.GetWidth() - 1), std::clamp(hotSpot.y, 0, image.GetHeight() - 1)};
  KROCORE_ASSERT(clamped == hotSpot, "Cursor: the hot spot lies outside the image");
  return CursorPtr(new Cursor(std::move(image), clamped, shape));
}

void SetCursor(CursorPtr cursor) { SetCursor(std::move(cursor), CursorHold::None); }

void SetCursor(CursorPtr cursor, CursorHold hold) {
  State().hold = hold;
  backend::GetBackend().SetCursor(std::move(cursor));
}

bool IsCursorHeld(bool isButtonDown) noexcept {
  switch (State().hold) {
  case CursorHold::None: return false;
  case CursorHold::WhileButtonDown: return isButtonDown;
  case CursorHold::UntilNextSet: return true;
  }
  return false;
}

void ShowPointer(bool show, bool counted, bool untilPointerMoves) {
  PointerState& state = State();
  const bool wasShown = IsShown(state);
  if (show) {
    state.hideCount = counted ? std::max(0, state.hideCount - 1) : 0;
    if (!counted) state.isHiddenUntilMove = false;
  } else if (untilPointerMoves) {
    state.isHiddenUntilMove = true;
  } else {
    state.hideCount = counted ? state.hideCount + 1 : std::max(1, state.hideCount);
  }
  if (IsShown(state) != wasShown) backend::GetBackend().SetCursorVisible(IsShown(state));
}

bool IsPointerShown() noexcept { return IsShown(State()); }

void NotePointerMoved() {
  PointerState& state = State();
  if (!state.isHiddenUntilMove) return;
  state.isHiddenUntilMove = false;
  if (IsShown(state)) backend::GetBackend().SetCursorVisible(true);
}

} // namespace kroui::ui
