#include <kroui/utility/CursorDisplay.h>

#include <kroui/backend/Backend.h>

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
