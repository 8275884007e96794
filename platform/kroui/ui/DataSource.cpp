#include <kroui/ui/DataSource.h>

#include <kroui/backend/Backend.h>
#include <kroui/base/DragCursorSupport.h>
#include <kroui/base/KeyTable.h>
#include <kroui/base/OS_Event.h>
#include <kroui/ui/EventLoop.h>
#include <kroui/ui/ModalEventWait.h>
#include <kroui/ui/UI_Window.h>
#include <kroui/utility/CursorDisplay.h>
#include <kroui/utility/OS_ResourceManager.h>
#include <kroui/utility/TrackingWindow.h>

namespace kroui::ui {
namespace {

using Type = OS_Event::Type;

bool IsEscape(const OS_Event& event) {
  return event.type == Type::KeyDown && event.key.GetCode().GetControlCode(false) == kKey_Escape.GetControlCode(false);
}

// The top one of our windows under a screen point, leaving out the tracking window.
UI_Window* WindowAt(Point screen, HWND tracking) {
  backend::Backend& backend = backend::GetBackend();
  for (const HWND native : backend.GetTopLevelWindows()) {
    if (native == tracking || backend.IsNativeWindowMinimized(native)) continue;
    UI_Window* window = UI_Window::FromNativeWindow(native);
    if (window && window->IsShown() && backend.GetNativeWindowBounds(native).Contains(screen)) return window;
  }
  return nullptr;
}

CursorPtr EffectCursor(int effect) {
  static const utility::OS_ResourceManager sCursors;
  if (effect & kDropEffect_Copy) return sCursors.GetCursor(utility::OS_ResourceManager::kOSCopy);
  if (effect & kDropEffect_Move) return nullptr; // the arrow carries a move
  if (effect & kDropEffect_Link) return sCursors.GetCursor(utility::OS_ResourceManager::kOSLink);
  return sCursors.GetCursor(utility::OS_ResourceManager::kOSNoDrop);
}

// One drag: sends drag events to the window under the pointer as it moves and
// writes the targets' answers into its session.
class DragLoop {
public:
  DragLoop(const DataObject& data, int allowedEffects, HWND tracking, const bool& isCancelled)
      : mSession(std::make_shared<DragSession>()), mTracking(tracking), mIsCancelled(isCancelled) {
    mSession->data = data;
    mSession->allowedEffects = allowedEffects;
  }

  int Run() {
    backend::Backend& backend = backend::GetBackend();
    MoveTo(backend.GetCursorPosition(), backend.GetModifierState());
    while (!mIsCancelled) {
      OS_Event event;
      if (WaitForModalEvent(event, [this] { return mIsCancelled; }) != backend::WaitResult::Event) break;
      if (event.type == Type::MouseUp) return Drop(event);
      if (IsEscape(event) || event.type == Type::CaptureLost) break;
      Handle(event);
    }
    Leave();
    return kDropEffect_None;
  }

private:
  void Handle(const OS_Event& event) {
    if (event.type == Type::MouseMove) {
      MoveTo(event.screenPosition, event.modifiers);
    } else if (event.IsKeyboard()) {
      // Ctrl or Shift pressed or let go may change copy into move: ask again.
      MoveTo(mScreenPoint, backend::GetBackend().GetModifierState());
    } else if (!event.IsPointer()) {
      EventLoop::Instance().DispatchEvent(event); // window changes, closes, exposures
    }
  }

  void MoveTo(Point screen, ModifierKeys modifiers) {
    mScreenPoint = screen;
    mModifiers = modifiers;
    UI_Window* window = WindowAt(screen, mTracking);
    if (mOver && mOver != window) Send(Type::DragLeave, *mOver);
    mOver = window;
    if (mOver) Send(Type::DragOver, *mOver);
    if (HasDefaultCursorSupport()) SetCursor(EffectCursor(mOver ? mSession->acceptedEffect : kDropEffect_None));
  }

  int Drop(const OS_Event& event) {
    if (event.screenPosition != mScreenPoint) MoveTo(event.screenPosition, event.modifiers);
    if (!mOver || mSession->acceptedEffect == kDropEffect_None) {
      Leave();
      return kDropEffect_None;
    }
    const int effect = mSession->acceptedEffect & mSession->allowedEffects;
    Send(Type::Drop, *std::exchange(mOver, nullptr));
    return mSession->isDropAccepted ? effect : kDropEffect_None;
  }

  void Leave() {
    if (mOver) Send(Type::DragLeave, *std::exchange(mOver, nullptr));
    mSession->acceptedEffect = kDropEffect_None;
  }

  void Send(Type type, UI_Window& window) {
    OS_Event event;
    event.type = type;
    event.window = window.GetNativeWindow();
    event.screenPosition = mScreenPoint;
    event.position = window.ScreenToWindow(mScreenPoint);
    event.modifiers = mModifiers;
    event.drag = mSession;
    window.DispatchEvent(event);
  }

  std::shared_ptr<DragSession> mSession;
  HWND mTracking;
  const bool& mIsCancelled;
  UI_Window* mOver = nullptr;
  Point mScreenPoint;
  ModifierKeys mModifiers;
};

} // namespace

struct DataSourceImpl {
  DataObject data;
  int allowedEffects = kDropEffect_Copy | kDropEffect_Move;
  bool hasData = false;
  bool isDragging = false;
  bool isCancelled = false;
  DataSource::FinishedHook finished;
};

DataSource::DataSource() : mImpl(std::make_unique<DataSourceImpl>()) {}

DataSource::~DataSource() = default;

void DataSource::SetData(DataObject data, int allowedEffects) {
  mImpl->data = std::move(data);
  mImpl->allowedEffects = allowedEffects;
  mImpl->hasData = true;
}

const DataObject& DataSource::GetData() const noexcept { return mImpl->data; }
int DataSource::GetAllowedEffects() const noexcept { return mImpl->allowedEffects; }
void DataSource::SetFinishedHook(FinishedHook hook) { mImpl->finished = std::move(hook); }
bool DataSource::IsDragging() const noexcept { return mImpl->isDragging; }

int DataSource::DoDragDrop() {
  if (mImpl->isDragging || !mImpl->hasData || mImpl->allowedEffects == kDropEffect_None) return kDropEffect_None;
  utility::TrackingWindow tracking;
  if (!tracking.CaptureMouse()) return kDropEffect_None;
  mImpl->isDragging = true;
  mImpl->isCancelled = false;
  const int effect = DragLoop(mImpl->data, mImpl->allowedEffects, tracking.GetNativeWindow(), mImpl->isCancelled).Run();
  mImpl->isDragging = false;
  SetCursor(nullptr);
  // The hook may forget this source (its view closing): call a copy.
  if (const FinishedHook finished = mImpl->finished) finished(effect);
  return effect;
}

void DataSource::Finish() {
  mImpl->isCancelled = mImpl->isDragging;
  mImpl->data = DataObject();
  mImpl->hasData = false;
}

} // namespace kroui::ui
