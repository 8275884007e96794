// HeadlessBackend: scripted input, queued as the events a real backend sends.

#include <backends/headless/HeadlessBackend.h>
#include <backends/headless/HeadlessStateImpl.h>

#include <kroui/base/KeyTable.h>

#include <cstdlib>

namespace kroui::backend {
namespace {

using Button = ui::PointerEvent::Button;
using Type = ui::OS_Event::Type;

// The characters of the digit row with Shift held, on a US layout.
constexpr char32_t kShiftedDigits[] = U")!@#$%^&*(";

// What a key types on a US layout; 0 for keys that type nothing here.
char32_t CharacterOf(ui::KeyboardCode key, ui::ModifierKeys modifiers) {
  const std::uint32_t code = key.GetControlCode(false);
  const bool shift = modifiers.Has(ui::kModKey_Shift);
  if (code >= 'A' && code <= 'Z') return shift ? code : code - 'A' + 'a';
  if (code >= '0' && code <= '9') return shift ? kShiftedDigits[code - '0'] : code;
  if (code >= 0x60 && code <= 0x69) return U'0' + (code - 0x60); // the keypad's digits
  if (code == 0x20) return U' ';
  return 0;
}

} // namespace

ui::OS_Event HeadlessBackend::MakePointerEvent(Type type, HWND window) const {
  ui::OS_Event event;
  event.type = type;
  event.window = window;
  event.screenPosition = mState->pointer;
  if (const HeadlessWindow* found = mState->Find(window)) {
    event.position = mState->pointer - found->record.description.bounds.Origin();
  }
  event.modifiers = GetModifierState();
  return event;
}

HWND HeadlessBackend::PointerTargetWindow() const {
  return mState->capture ? mState->capture : mState->WindowAt(mState->pointer);
}

// Pointer.

void HeadlessBackend::MoveMouseTo(Point screen) {
  mState->pointer = screen;
  const HWND target = PointerTargetWindow();
  if (!mState->capture) {
    if (mState->pointerWindow && mState->pointerWindow != target) {
      mState->Queue(MakePointerEvent(Type::MouseLeaveWindow, mState->pointerWindow));
    }
    mState->pointerWindow = target;
  }
  if (target) mState->Queue(MakePointerEvent(Type::MouseMove, target));
}

void HeadlessBackend::MoveMouseTo(HWND window, Point client) {
  const HeadlessWindow* found = mState->Find(window);
  MoveMouseTo(found ? client + found->record.description.bounds.Origin() : client);
}

void HeadlessBackend::PressButton(Button button) {
  const HWND target = PointerTargetWindow();
  if (!target) return; // a press on the desktop reaches no window of ours
  HeadlessWindow& window = *mState->Find(target);
  if (!window.record.description.style.Has(kWindowStyle_NoActivate)) {
    window.raisedAt = mState->nextRaise++;
    FocusNativeWindow(target);
  }
  const Point moved = mState->pointer - mState->lastPressPoint;
  const bool isRepeat = button == mState->lastPressButton &&
                        mState->clock - mState->lastPressTime <= kMultiClickTimeMs &&
                        std::abs(moved.x) <= kMultiClickDistance && std::abs(moved.y) <= kMultiClickDistance;
  mState->clickCount = isRepeat ? static_cast<std::uint8_t>(mState->clickCount + 1) : std::uint8_t{1};
  mState->lastPressButton = button;
  mState->lastPressTime = mState->clock;
  mState->lastPressPoint = mState->pointer;
  mState->buttonsDown.insert(button);
  ui::OS_Event event = MakePointerEvent(Type::MouseDown, target);
  event.button = button;
  event.clickCount = mState->clickCount;
  mState->Queue(std::move(event));
}

void HeadlessBackend::ReleaseButton(Button button) {
  mState->buttonsDown.erase(button);
  const HWND target = PointerTargetWindow();
  if (!target) return;
  ui::OS_Event event = MakePointerEvent(Type::MouseUp, target);
  event.button = button;
  event.clickCount = mState->clickCount;
  mState->Queue(std::move(event));
}

void HeadlessBackend::Click(Button button) {
  PressButton(button);
  ReleaseButton(button);
}

void HeadlessBackend::QueueGesture(Type type, const std::function<void(ui::OS_Event&)>& fill) {
  const HWND target = PointerTargetWindow();
  if (!target) return;
  ui::OS_Event event = MakePointerEvent(type, target);
  fill(event);
  mState->Queue(std::move(event));
}

void HeadlessBackend::Wheel(int deltaX, int deltaY, bool precise) {
  QueueGesture(Type::MouseWheel, [&](ui::OS_Event& event) {
    event.wheelDeltaX = deltaX;
    event.wheelDeltaY = deltaY;
    event.isPreciseWheel = precise;
  });
}

void HeadlessBackend::Magnify(float magnification) {
  QueueGesture(Type::MouseMagnify, [&](ui::OS_Event& event) { event.gestureValue = magnification; });
}

void HeadlessBackend::Rotate(float degrees) {
  QueueGesture(Type::MouseRotate, [&](ui::OS_Event& event) { event.gestureValue = degrees; });
}

void HeadlessBackend::Pan(Point delta) {
  QueueGesture(Type::MousePan, [&](ui::OS_Event& event) { event.panDelta = delta; });
}

void HeadlessBackend::EndGesture() {
  QueueGesture(Type::MouseGestureEnd, [](ui::OS_Event&) {});
}

// Keyboard.

void HeadlessBackend::QueueKey(const ui::KeyboardEvent& key, std::optional<std::set<std::uint32_t>> held) {
  if (!mState->focus) return; // no window has the keyboard
  ui::OS_Event event;
  event.type = key.GetAction() == ui::KeyboardEvent::kAction_KeyDown  ? Type::KeyDown
               : key.GetAction() == ui::KeyboardEvent::kAction_KeyUp ? Type::KeyUp
                                                                      : Type::CharacterInput;
  event.window = mState->focus;
  event.key = key;
  event.modifiers = key.GetModKey();
  event.screenPosition = mState->pointer;
  mState->Queue(std::move(event), std::move(held));
}

void HeadlessBackend::SendKeyDown(ui::KeyboardCode key, ui::ModifierKeys modifiers, bool autoRepeat) {
  QueueKey(ui::KeyboardEvent::MakeKeyDown(key, modifiers, autoRepeat, CharacterOf(key, modifiers)), std::nullopt);
}

void HeadlessBackend::SendKeyUp(ui::KeyboardCode key, ui::ModifierKeys modifiers) {
  QueueKey(ui::KeyboardEvent::MakeKeyUp(key, modifiers), std::nullopt);
}

void HeadlessBackend::TypeKey(ui::KeyboardCode key, ui::ModifierKeys modifiers) {
  // Work out the keys held during the key and after it, then put the live state back.
  const std::set<std::uint32_t> before = mState->keysDown;
  const std::optional<std::set<std::uint32_t>> eventKeys = std::exchange(mState->eventKeysDown, std::nullopt);
  SetModifiers(modifiers);
  PressKey(key);
  const std::set<std::uint32_t> whileDown = mState->keysDown;
  ReleaseKey(key);
  const std::set<std::uint32_t> afterUp = mState->keysDown;
  mState->keysDown = before;
  mState->eventKeysDown = eventKeys;

  const char32_t character = CharacterOf(key, modifiers);
  QueueKey(ui::KeyboardEvent::MakeKeyDown(key, modifiers, false, character), whileDown);
  if (character != 0 && !modifiers.HasAny(ui::kModKey_Control | ui::kModKey_Alt)) {
    QueueKey(ui::KeyboardEvent::MakeCharacterInput(character, modifiers, key), whileDown);
  }
  QueueKey(ui::KeyboardEvent::MakeKeyUp(key, modifiers), afterUp);
}

void HeadlessBackend::TypeText(std::u32string_view text) {
  for (const char32_t character : text) {
    QueueKey(ui::KeyboardEvent::MakeCharacterInput(character, GetModifierState()), std::nullopt);
  }
}

// Drag and drop.

std::shared_ptr<ui::DragSession> HeadlessBackend::BeginDrag(ui::DataObject data, int allowedEffects) {
  CancelDrag();
  auto session = std::make_shared<ui::DragSession>();
  session->data = std::move(data);
  session->allowedEffects = allowedEffects;
  mState->drag = session;
  DragTo(mState->pointer);
  return session;
}

void HeadlessBackend::DragTo(Point screen) {
  if (!mState->drag) return;
  mState->pointer = screen;
  const HWND target = mState->WindowAt(screen);
  if (mState->dragWindow && mState->dragWindow != target) QueueDrag(Type::DragLeave, mState->dragWindow);
  if (target) QueueDrag(target == mState->dragWindow ? Type::DragOver : Type::DragEnter, target);
  mState->dragWindow = target;
}

void HeadlessBackend::Drop() {
  if (mState->drag && mState->dragWindow) QueueDrag(Type::Drop, mState->dragWindow);
  mState->drag.reset();
  mState->dragWindow = nullptr;
}

void HeadlessBackend::CancelDrag() {
  if (mState->drag && mState->dragWindow) QueueDrag(Type::DragLeave, mState->dragWindow);
  mState->drag.reset();
  mState->dragWindow = nullptr;
}

void HeadlessBackend::QueueDrag(Type type, HWND window) {
  ui::OS_Event event = MakePointerEvent(type, window);
  event.drag = mState->drag;
  mState->Queue(std::move(event));
}

// The window and the application.

void HeadlessBackend::RequestClose(HWND window) {
  if (mState->Find(window)) mState->Queue(MakeWindowEvent(Type::WindowCloseRequest, window));
}

void HeadlessBackend::UserSetWindowBounds(HWND window, const Rect& bounds) {
  HeadlessWindow* found = mState->Find(window);
  if (!found) return;
  const Rect before = found->record.description.bounds;
  found->record.description.bounds = bounds;
  ui::OS_Event event = MakeWindowEvent(Type::WindowMoved, window);
  event.bounds = bounds;
  if (before.Origin() != bounds.Origin()) mState->Queue(event);
  event.type = Type::WindowResized;
  if (before.Extent() != bounds.Extent()) mState->Queue(event);
}

void HeadlessBackend::PostQuit() { mState->Queue(MakeWindowEvent(Type::Quit, nullptr)); }

} // namespace kroui::backend
