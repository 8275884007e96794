#include <be/markers/MarkerTypeFilter.h>

#include <be/markers/MarkerTypeFilterImpl.h>

#include <algorithm>
#include <utility>

namespace BE {

MarkerTypeFilter::MarkerTypeFilter() : mImpl(std::make_unique<MarkerTypeFilterImpl>()) {}

MarkerTypeFilter::MarkerTypeFilter(std::vector<std::string> shownTypes) : MarkerTypeFilter() {
  auto& shown = mImpl->mShown;
  for (std::string& type : shownTypes)
    if (std::find(shown.begin(), shown.end(), type) == shown.end()) shown.push_back(std::move(type));
}

MarkerTypeFilter::MarkerTypeFilter(const MarkerTypeFilter& other)
    : mImpl(std::make_unique<MarkerTypeFilterImpl>(*other.mImpl)) {}

MarkerTypeFilter& MarkerTypeFilter::operator=(const MarkerTypeFilter& other) {
  *mImpl = *other.mImpl;
  return *this;
}

MarkerTypeFilter::~MarkerTypeFilter() = default;

const std::vector<std::string>& MarkerTypeFilter::GetShownTypes() const noexcept { return mImpl->mShown; }

bool MarkerTypeFilter::IsShowingAll() const noexcept { return mImpl->mShown.empty(); }

bool MarkerTypeFilter::ShowsType(std::string_view type) const noexcept {
  const auto& shown = mImpl->mShown;
  return shown.empty() || std::find(shown.begin(), shown.end(), type) != shown.end();
}

} // namespace BE
