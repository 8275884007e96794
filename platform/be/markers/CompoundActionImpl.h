#pragma once

#include <functional>
#include <string>
#include <vector>

namespace BE {

class CompoundActionImpl {
public:
  struct Change {
    std::function<void()> undo;
    std::function<void()> redo;
  };

  std::string mName;
  std::vector<Change> mChanges;
};

} // namespace BE
