#pragma once

#include <zel/Export.h>

#include <cstdint>

namespace ZEL::AnalyticsUtils {

/// The UI action and command the user is carrying out now, for usage
/// reports; zero when none.
struct RecentUIAction {
  std::int32_t uiAction = 0;
  std::int32_t commandID = 0;
};

ZEL_API RecentUIAction GetRecentUIAction() noexcept;

/// Records a UI action and its command for as long as it lives, and puts
/// back the one before when it goes, so that nested commands report right.
class ZEL_API ScLogRecentUIActionAndCommandID {
public:
  ScLogRecentUIActionAndCommandID(std::int32_t uiAction, std::int32_t commandID) noexcept;
  ~ScLogRecentUIActionAndCommandID();
  ScLogRecentUIActionAndCommandID(const ScLogRecentUIActionAndCommandID&) = delete;
  ScLogRecentUIActionAndCommandID& operator=(const ScLogRecentUIActionAndCommandID&) = delete;

private:
  RecentUIAction mPrevious;
};

} // namespace ZEL::AnalyticsUtils
