#include <zel/appearance/Cursor.h>
#include <zel/views/ModalControlInterface.h>
#include <zel/views/ModalEventLoopDriver.h>
#include <zel/views/ModalEventLoopDriverImpl.h>
#include <zel/views/ViewSupport.h>

#include <krocore/debug/Assert.h>
#include <kroui/backend/Backend.h>
#include <kroui/base/OS_Event.h>
#include <kroui/ui/EventLoop.h>
#include <kroui/ui/ModalEventWait.h>
#include <kroui/utility/KeyState.h>
#include <kroui/utility/TrackingWindow.h>

#include <cstdint>

namespace ZEL {
namespace {

using Result = ModalEventLoopDriver::EventLoopResult;
using Point = ModalControlInterface::Point;
using Type = kroui::ui::OS_Event::Type;

// The keys that end a drag without its commit, as Windows numbers them.
constexpr std::uint32_t kKeyCancel = 0x03;
constexpr std::uint32_t kKeyEscape = 0x1B;
constexpr std::uint32_t kKeyC = 0x43;
constexpr std::uint32_t kKeyF4 = 0x73;

bool IsCancelKey(std::uint32_t key, KeyModifiers modifiers) {
  if (key == kKeyC) return modifiers.Has(kModifier_Control);
  return key == kKeyEscape || key == kKeyCancel || key == kKeyF4;
}

KeyModifiers CurrentModifiers() { return detail::ToKeyModifiers(kroui::utility::GetCurrentModKeys()); }

// The process is in a modal loop while one of these lives; the cursor's modal
// note says so to everyone else.
class ModalFlag {
public:
  ModalFlag() {
    sIsSet = true;
    Cursor::SetModal(true);
  }
  ~ModalFlag() {
    Cursor::SetModal(false);
    sIsSet = false;
  }
  ModalFlag(const ModalFlag&) = delete;
  ModalFlag& operator=(const ModalFlag&) = delete;
  static bool IsSet() noexcept { return sIsSet; }

private:
  static inline bool sIsSet = false;
};

// One drag: reads events until the control commits or the drag is cancelled,
// keeping the last point and modifiers for the commit.
class TrackingSession {
public:
  TrackingSession(ModalControlInterface& control, HWND trackingWindow)
      : mControl(control), mTrackingWindow(trackingWindow),
        mPoint(kroui::backend::GetBackend().GetCursorPosition()), mModifiers(CurrentModifiers()) {}

  /// True when the drag ended with the button's release.
  bool Run() {
    while (mControl.ModalIsStillActive()) {
      kroui::ui::OS_Event event;
      if (kroui::ui::WaitForModalEvent(event) != kroui::backend::WaitResult::Event) return false;
      const Step step = Handle(event);
      if (step != Step::Continue) return step == Step::Commit;
    }
    return false;
  }

  const Point& GetPoint() const noexcept { return mPoint; }
  KeyModifiers GetModifiers() const noexcept { return mModifiers; }

private:
  enum class Step { Continue, Commit, Cancel };

  Step Handle(const kroui::ui::OS_Event& event) {
    switch (event.type) {
      case Type::KeyDown: return KeyDown(event.key.GetCode().GetControlCode(false));
      case Type::KeyUp: return ModifiersMayHaveChanged();
      case Type::MouseMove: return Moved(event);
      case Type::MouseDown: return IsLeft(event) ? LeftDown(event) : Dispatch(event);
      case Type::MouseUp: return IsLeft(event) ? Step::Commit : Dispatch(event);
      // Another window losing the capture to ours is not the end of the drag.
      case Type::CaptureLost: return event.window == mTrackingWindow ? Step::Cancel : Dispatch(event);
      default: return Dispatch(event);
    }
  }

  static bool IsLeft(const kroui::ui::OS_Event& event) {
    return event.button == kroui::ui::PointerEvent::Button::Left;
  }

  Step KeyDown(std::uint32_t key) {
    ModifiersMayHaveChanged();
    return IsCancelKey(key, mModifiers) ? Step::Cancel : Step::Continue;
  }

  Step ModifiersMayHaveChanged() {
    mModifiers = CurrentModifiers();
    mControl.ModalMouseMoved(mPoint, mModifiers);
    return Step::Continue;
  }

  Step Moved(const kroui::ui::OS_Event& event) {
    Record(event);
    mControl.ModalMouseMoved(mPoint, mModifiers);
    return Step::Continue;
  }

  Step LeftDown(const kroui::ui::OS_Event& event) {
    Record(event);
    mControl.ModalAboutToCommit(mPoint, mModifiers);
    mControl.ModalMouseMoved(mPoint, mModifiers);
    return Step::Continue;
  }

  void Record(const kroui::ui::OS_Event& event) {
    mPoint = event.screenPosition;
    mModifiers = detail::ToKeyModifiers(event.modifiers);
  }

  static Step Dispatch(const kroui::ui::OS_Event& event) {
    kroui::ui::EventLoop::Instance().DispatchEvent(event);
    return Step::Continue;
  }

  ModalControlInterface& mControl;
  HWND mTrackingWindow;
  Point mPoint;
  KeyModifiers mModifiers;
};

// What the tracking ended with, once its window is gone.
struct TrackingOutcome {
  bool isCommitted = false;
  Point point;
  KeyModifiers modifiers;
};

// The window, the modal flag and the capture, in that order, live only while
// the session runs; they go in the reverse order before the control hears the end.
// Windows also sends the tracking window a button down and up around the
// capture; here the window has no procedure that would receive them.
TrackingOutcome Track(ModalControlInterface& control) {
  kroui::utility::TrackingWindow window;
  if (!window.IsCreated()) return {};
  const ModalFlag flag;
  if (!window.CaptureMouse()) return {};
  TrackingSession session(control, window.GetNativeWindow());
  const bool isCommitted = session.Run();
  window.ReleaseMouse();
  return {isCommitted, session.GetPoint(), session.GetModifiers()};
}

} // namespace

ModalEventLoopDriver::ModalEventLoopDriver(ModalControlInterface& control)
    : mImpl(std::make_unique<ModalEventLoopDriverImpl>(ModalEventLoopDriverImpl{control})) {}

ModalEventLoopDriver::~ModalEventLoopDriver() = default;

ModalEventLoopDriver::EventLoopResult ModalEventLoopDriver::RunEventLoop() {
  ModalControlInterface& control = mImpl->control;
  TrackingOutcome outcome;
  if (KROCORE_ASSERT(!ModalFlag::IsSet(), "ModalEventLoopDriver: modal loops do not nest")) {
    outcome = Track(control);
  }
  if (outcome.isCommitted) {
    control.ModalCommit(outcome.point, outcome.modifiers);
    return Result::Committed;
  }
  control.ModalCancel();
  return Result::Cancelled;
}

void ModalEventLoopDriver::ModalCheckCancel(short) {}

} // namespace ZEL
