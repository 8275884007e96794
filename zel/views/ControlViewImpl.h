#pragma once

#include <zel/Export.h>
#include <zel/Forward.h>

#include <kroui/ui/UI_Container.h>

#include <memory>

namespace ZEL {

/// The node of a control: a concrete control derives its node from this and
/// overrides the platform hooks (PaintSelf, MouseDownSelf...) directly. It
/// knows its control weakly, the command the control fires, and the parent
/// view it was placed in. Focus makes the control the command target; a
/// node that overrides SetFocusSelf calls this class's version first.
class ZEL_API ControlViewImpl : public kroui::ui::UI_Container {
public:
  /// Null once the control is gone (or being destroyed).
  std::shared_ptr<ControlView> GetView() const { return mView.lock(); }
  std::shared_ptr<ViewBase> GetParentView() const { return mParentView.lock(); }
  int GetCommandID() const noexcept { return mCommandID; }
  void SetCommandID(int commandID) noexcept { mCommandID = commandID; }

protected:
  ControlViewImpl();
  ~ControlViewImpl() override;

  void SetFocusSelf() override;

private:
  friend class ControlView;

  std::weak_ptr<ControlView> mView;
  std::weak_ptr<ViewBase> mParentView;
  int mCommandID = 0;
};

} // namespace ZEL
