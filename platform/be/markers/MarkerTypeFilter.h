#pragma once

#include <be/Export.h>
#include <be/markers/IMarker.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace BE {

class MarkerTypeFilterImpl;

/// Which kinds of marker are shown, by type name. A filter that names no
/// kind shows every marker; one that names kinds shows those only.
class BE_API MarkerTypeFilter {
public:
  MarkerTypeFilter();
  explicit MarkerTypeFilter(std::vector<std::string> shownTypes);
  MarkerTypeFilter(const MarkerTypeFilter& other);
  MarkerTypeFilter& operator=(const MarkerTypeFilter& other);
  ~MarkerTypeFilter();

  /// The kinds shown, in the order given, each once; empty when all are.
  const std::vector<std::string>& GetShownTypes() const noexcept;
  bool IsShowingAll() const noexcept;
  bool ShowsType(std::string_view type) const noexcept;
  bool Shows(const IMarker& marker) const noexcept { return ShowsType(marker.GetType()); }

private:
  std::unique_ptr<MarkerTypeFilterImpl> mImpl;
};

} // namespace BE
