#pragma once

#include <string>
#include <vector>

namespace BE {

class MarkerTypeFilterImpl {
public:
  std::vector<std::string> mShown;
};

} // namespace BE
