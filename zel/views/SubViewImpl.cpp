// SubViewImpl: painting, drag and drop, timers, tooltips and notifications.

#include <zel/views/SubViewImpl.h>

#include <zel/commands/ShortcutManager.h>
#include <zel/views/ViewSupport.h>

#include <kroui/base/DataObject.h>
#include <kroui/ui/DataSource.h>

#include <utility>

namespace ZEL {

SubViewImpl::SubViewImpl(std::weak_ptr<SubView> view) : Base(std::move(view)) {}

SubViewImpl::~SubViewImpl() { EndDrag(); }

// Painting.

template <typename Hook>
void SubViewImpl::Paint(kroui::drawbot::Drawbot& drawbot, Hook&& hook) {
  const std::shared_ptr<SubView> view = GetView();
  if (!view) return;
  // Remembered so that GetDC() inside the hook draws on the same surface.
  kroui::drawbot::Drawbot* const outer = std::exchange(mPainting, &drawbot);
  {
    DC dc(drawbot);
    hook(*view, dc);
  }
  mPainting = outer;
}

void SubViewImpl::PaintSelf(kroui::drawbot::Drawbot& drawbot) {
  Paint(drawbot, [](SubView& view, DC& dc) { view.PaintSelf(dc); });
}

void SubViewImpl::AddendumPaintSelf(kroui::drawbot::Drawbot& drawbot) {
  Paint(drawbot, [](SubView& view, DC& dc) { view.AddendumPaintSelf(dc); });
}

kroui::drawbot::ColorRGBAOptional SubViewImpl::GetBackgroundColorSelf() const {
  const std::shared_ptr<SubView> view = GetView();
  return view ? view->GetBackgroundColor() : std::nullopt;
}

DC& SubViewImpl::GetOffscreen() {
  const kroui::ui::Extent extent = GetBounds().Extent();
  if (!mOffscreen || mOffscreen->extent != extent) {
    mOffscreen = std::make_unique<Offscreen>(Offscreen{DC::MakeOffscreen(extent.width, extent.height), extent});
  }
  return mOffscreen->dc;
}

// Drag and drop.

std::shared_ptr<kroui::ui::DataSource> SubViewImpl::GetDataSource() {
  if (!mDataSource) mDataSource = std::make_shared<kroui::ui::DataSource>();
  return mDataSource;
}

void SubViewImpl::FinishDragAndDrop() {
  if (mDataSource) mDataSource->Finish();
}

int SubViewImpl::DragEnterSelf(kroui::ui::DataObject& data, kroui::ui::ModifierKeys modifiers, kroui::ui::Point local) {
  const std::shared_ptr<SubView> view = GetView();
  if (!view) return kroui::ui::kDropEffect_None;
  const std::string context = view->GetDragCommandContextName();
  if (ShortcutManager* manager = ShortcutManager::Instance(); manager && !context.empty()) {
    manager->SetDragCommandContext(context);
    manager->SetDragInProgress(true);
    mHasDragContext = true;
  }
  return Base::DragEnterSelf(data, modifiers, local);
}

void SubViewImpl::DragLeaveSelf() {
  EndDrag();
  Base::DragLeaveSelf();
}

bool SubViewImpl::DropSelf(kroui::ui::DataObject& data, int effect, kroui::ui::Point local) {
  EndDrag();
  return Base::DropSelf(data, effect, local);
}

void SubViewImpl::EndDrag() {
  if (!std::exchange(mHasDragContext, false)) return;
  if (ShortcutManager* manager = ShortcutManager::Instance()) manager->SetDragInProgress(false);
}

// Timers, tooltips, notifications.

bool SubViewImpl::TimerNotifySelf(unsigned timerID) {
  const std::shared_ptr<SubView> view = GetView();
  return view && view->TimerNotifySelf(timerID);
}

bool SubViewImpl::DisplaysToolTipForChildSelf(const kroui::ui::UI_Node* child) const {
  const std::shared_ptr<SubView> view = GetView();
  return view && view->DisplaysToolTipForChildSelf(child);
}

void SubViewImpl::VisibilityChangedSelf() {
  if (const std::shared_ptr<SubView> view = GetView()) view->VisibilityChangedSelf();
}

} // namespace ZEL
