#include <zel/workspace/SwitchableTabView.h>

#include <zel/workspace/SwitchableTabViewImpl.h>
#include <zel/workspace/WindowClasses.h>

#include <algorithm>

namespace ZEL {

std::vector<SwitchableTabView::ContextMenuItem>::iterator SwitchableTabView::Impl::Find(unsigned int contextID) {
  return std::find_if(mItems.begin(), mItems.end(),
                      [&](const ContextMenuItem& item) { return item.mContextID == contextID; });
}

SwitchableTabView::SwitchableTabView(unsigned int viewID) : mImpl(std::make_unique<Impl>()) {
  mImpl->mViewID = viewID;
}

SwitchableTabView::~SwitchableTabView() = default;

unsigned int SwitchableTabView::GetViewID() const noexcept { return mImpl->mViewID; }

bool SwitchableTabView::AddContextMenuItem(unsigned int contextID, const UTF8String& name) {
  if (mImpl->Find(contextID) != mImpl->mItems.end()) return false;
  mImpl->mItems.push_back({contextID, name});
  return true;
}

bool SwitchableTabView::RemoveContextMenuItem(unsigned int contextID) {
  auto item = mImpl->Find(contextID);
  if (item == mImpl->mItems.end()) return false;
  mImpl->mItems.erase(item);
  if (mImpl->mSelected == contextID) mImpl->mSelected.reset();
  return true;
}

bool SwitchableTabView::RenameContextMenuItem(unsigned int contextID, const UTF8String& name) {
  auto item = mImpl->Find(contextID);
  if (item == mImpl->mItems.end()) return false;
  item->mName = name;
  return true;
}

bool SwitchableTabView::SelectContextMenuItem(unsigned int contextID) {
  if (mImpl->Find(contextID) == mImpl->mItems.end()) return false;
  mImpl->mSelected = contextID;
  return true;
}

const std::vector<SwitchableTabView::ContextMenuItem>& SwitchableTabView::GetContextMenuItems() const noexcept {
  return mImpl->mItems;
}

std::optional<unsigned int> SwitchableTabView::GetSelectedContextID() const noexcept { return mImpl->mSelected; }

void SwitchableTabView::SetContextHandler(std::shared_ptr<WindowContextHandler> handler) {
  mImpl->mHandler = std::move(handler);
}

unsigned int SwitchableTabView::GetEmptyContextID() const {
  return mImpl->mHandler ? mImpl->mHandler->GetEmptyContextID() : kDefaultWindowContextID;
}

} // namespace ZEL
