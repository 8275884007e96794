#pragma once

#include <zel/Export.h>

#include <memory>

namespace ZEL {

class ModalControlInterface;
struct ModalEventLoopDriverImpl;

/// Follows the mouse for a control until the left button is released or the
/// drag is cancelled, whatever window the pointer crosses:
///
///   control --RunEventLoop--> invisible topmost window over all monitors, mouse captured
///       move        --> ModalMouseMoved(point, modifiers)
///       key up/down --> ModalMouseMoved(last point, modifiers read again)
///       left down   --> ModalAboutToCommit, ModalMouseMoved
///       left up     --> ModalCommit(last point)              result Committed
///       Escape, Cancel, Ctrl+C, F4, capture lost, no more events,
///       ModalIsStillActive() false --> ModalCancel()         result Cancelled
///
/// Timers, the main-thread queue and painting keep running during the loop,
/// so the drag's feedback repaints; any other event is dispatched as usual.
/// Loops do not nest. UI thread only.
class ZEL_API ModalEventLoopDriver {
public:
  enum class EventLoopResult : int {
    Committed = 0,
    Cancelled = 1,
  };

  explicit ModalEventLoopDriver(ModalControlInterface& control);
  ~ModalEventLoopDriver();
  ModalEventLoopDriver(const ModalEventLoopDriver&) = delete;
  ModalEventLoopDriver& operator=(const ModalEventLoopDriver&) = delete;

  /// Returns when the drag ends; the control has heard ModalCommit or ModalCancel by then.
  EventLoopResult RunEventLoop();
  /// Does nothing here: the loop itself sees every cancel key.
  static void ModalCheckCancel(short key);

private:
  std::unique_ptr<ModalEventLoopDriverImpl> mImpl;
};

} // namespace ZEL
