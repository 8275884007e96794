#pragma once

#include <be/markers/IMarker.h>
#include <be/markers/MarkerTypeFilter.h>

#include <kroui/drawbot/DrawTypes.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace ZEL {

/// One state of the marker filter. Never changed once published, so a reader
/// holds it without the lock.
struct MarkerFilterState {
  std::vector<kroui::drawbot::ColorRGBA> colors;
  std::uint32_t colorIDs = 0; ///< bit n: colour ID n is selected
  BE::MarkerTypeFilter types;

  bool IsColorSelected(const BE::IMarker& marker) const noexcept { return IsSelected(marker.GetColorID()); }
  bool Passes(const BE::IMarker& marker) const noexcept {
    const BE::MarkerFields& fields = marker.GetFields();
    return (colors.empty() || IsSelected(fields.color)) && types.ShowsType(fields.type);
  }

private:
  bool IsSelected(BE::MarkerUtils::MarkerColorID id) const noexcept {
    return (colorIDs >> static_cast<unsigned>(id)) & 1u;
  }
};

/// The process-wide filter: the current state behind a mutex, replaced whole
/// on every change, so that worker threads read while the main thread sets.
class MarkerFilterImpl {
public:
  static MarkerFilterImpl& Instance();

  std::shared_ptr<const MarkerFilterState> Get() const;
  /// Applies `change` to a copy of the state and publishes it.
  void Change(const std::function<void(MarkerFilterState&)>& change);

private:
  mutable std::mutex mMutex;
  std::shared_ptr<const MarkerFilterState> mState = std::make_shared<const MarkerFilterState>();
};

} // namespace ZEL
