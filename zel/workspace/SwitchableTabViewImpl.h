#pragma once

#include <zel/workspace/SwitchableTabView.h>
#include <zel/workspace/WindowContextHandler.h>

namespace ZEL {

struct SwitchableTabView::Impl {
  unsigned int mViewID = 0;
  std::vector<ContextMenuItem> mItems;
  std::optional<unsigned int> mSelected;
  std::shared_ptr<WindowContextHandler> mHandler;

  std::vector<ContextMenuItem>::iterator Find(unsigned int contextID);
};

} // namespace ZEL
