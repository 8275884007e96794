#include <zel/commands/AnalyticsUtils.h>

namespace ZEL::AnalyticsUtils {
namespace {
RecentUIAction sRecent; // UI thread only
} // namespace

RecentUIAction GetRecentUIAction() noexcept { return sRecent; }

ScLogRecentUIActionAndCommandID::ScLogRecentUIActionAndCommandID(std::int32_t uiAction,
                                                                 std::int32_t commandID) noexcept
    : mPrevious(sRecent) {
  sRecent = {uiAction, commandID};
}

ScLogRecentUIActionAndCommandID::~ScLogRecentUIActionAndCommandID() { sRecent = mPrevious; }

} // namespace ZEL::AnalyticsUtils
