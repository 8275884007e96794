#pragma once

#include <be/markers/ICompoundAction.h>

#include <memory>
#include <vector>

namespace BE {

class UndoStackImpl {
public:
  std::vector<std::unique_ptr<ICompoundAction>> mDone;
  std::vector<std::unique_ptr<ICompoundAction>> mUndone;
};

} // namespace BE
