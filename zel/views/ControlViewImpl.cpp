#include <zel/views/ControlViewImpl.h>

#include <zel/views/ControlView.h>

namespace ZEL {

ControlViewImpl::ControlViewImpl() = default;

ControlViewImpl::~ControlViewImpl() = default;

void ControlViewImpl::SetFocusSelf() {
  // The focused control receives commands first; what it declines goes up its chain.
  if (const std::shared_ptr<ControlView> view = GetView()) Commander::SwitchTarget(view);
}

} // namespace ZEL
