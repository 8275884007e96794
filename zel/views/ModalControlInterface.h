#pragma once

#include <zel/Export.h>
#include <zel/commands/KeySpec.h>

#include <krocore/geom/Geometry.h>

namespace ZEL {

/// What a control that follows the mouse until the button is released (a
/// dragged value, a marker, a splitter) answers to while a
/// ModalEventLoopDriver runs its loop. Points are on the screen.
///
///   ModalMouseMoved* ... [ModalAboutToCommit, ModalMouseMoved] ... ModalCommit   (button released)
///   ModalMouseMoved* ... ModalCancel                                              (Escape, capture lost...)
class ZEL_API ModalControlInterface {
public:
  using Point = krocore::geom::PointT<int>;

  virtual ~ModalControlInterface();

  /// False ends the loop as cancelled; asked before the first event and after each one.
  virtual bool ModalIsStillActive() const = 0;
  virtual void ModalMouseMoved(const Point& point, KeyModifiers modifiers) = 0;
  virtual void ModalKeyModifiersChanged(const Point& point, KeyModifiers modifiers) = 0;
  /// A left button went down during the drag; the commit follows when it is released.
  void ModalAboutToCommit(const Point& point, KeyModifiers modifiers);
  virtual void ModalCommit(const Point& point, KeyModifiers modifiers) = 0;
  virtual void ModalCancel() = 0;

protected:
  ModalControlInterface() = default;
  ModalControlInterface(const ModalControlInterface&) = default;
  ModalControlInterface& operator=(const ModalControlInterface&) = default;

private:
  /// Does nothing unless the control prepares its commit here.
  virtual void ModalAboutToCommitSelf(const Point& point, KeyModifiers modifiers);
};

} // namespace ZEL
