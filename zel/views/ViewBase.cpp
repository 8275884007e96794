#include <zel/views/ViewBase.h>

#include <kroui/ui/UI_Node.h>

namespace ZEL {

ViewBase::ViewBase(const CommanderWeakPtr& superCommander) : Commander(superCommander) {}

ViewBase::~ViewBase() = default;

void ViewBase::RequestReflow() {}

ViewBase::Rect ViewBase::ClientRect() const {
  const Rect bounds = GetBounds();
  return {0, 0, bounds.Width(), bounds.Height()};
}

void ViewBase::Show(bool show) {
  if (const auto node = GetKRONode()) node->Show(show);
}

void ViewBase::Hide() { Show(false); }

bool ViewBase::IsShown() const {
  // Asking for the node changes nothing; it is not const only because overriders may make it.
  const auto node = const_cast<ViewBase*>(this)->GetKRONode();
  return node && node->IsShown();
}

void ViewBase::PrepareForKeyboardFocusFromAdvance(const std::weak_ptr<ViewBase>& view) {
  if (const auto parent = GetParent()) parent->PrepareForKeyboardFocusFromAdvance(view);
}

int ViewBase::GetStackedDimensionHeight() const { return 0; }

int ViewBase::GetStackedDimensionHeightMax() const { return 0; }

int ViewBase::GetStackedDimensionHeightMin(int) const { return 0; }

} // namespace ZEL
