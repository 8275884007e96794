// The marker filter's half of MarkerUtils.h.
#include <zel/timecontrols/MarkerFilterImpl.h>
#include <zel/timecontrols/MarkerUtils.h>

#include <algorithm>
#include <cmath>

namespace ZEL {
namespace {

using kroui::drawbot::ColorRGBA;

unsigned char ToByte(float channel) noexcept {
  if (!(channel > 0.f)) return 0; // NaN too
  return static_cast<unsigned char>(std::lround(std::min(channel, 1.f) * 255.f));
}

BE::MarkerUtils::MarkerColorID ColorIDOf(const ColorRGBA& color) noexcept {
  return BE::MarkerUtils::FindNearestMarkerColor({ToByte(color.red), ToByte(color.green), ToByte(color.blue)});
}

void SetColors(MarkerFilterState& state, std::vector<ColorRGBA> colors) {
  state.colors = std::move(colors);
  state.colorIDs = 0;
  for (const ColorRGBA& color : state.colors) state.colorIDs |= 1u << static_cast<unsigned>(ColorIDOf(color));
}

} // namespace

MarkerFilterImpl& MarkerFilterImpl::Instance() {
  // Never destroyed: a worker thread may still read it while the process ends.
  static auto* sFilter = new MarkerFilterImpl;
  return *sFilter;
}

std::shared_ptr<const MarkerFilterState> MarkerFilterImpl::Get() const {
  std::lock_guard lock(mMutex);
  return mState;
}

void MarkerFilterImpl::Change(const std::function<void(MarkerFilterState&)>& change) {
  std::lock_guard lock(mMutex);
  auto next = std::make_shared<MarkerFilterState>(*mState);
  change(*next);
  mState = std::move(next);
}

void AddColorToMarkerFilter(const ColorRGBA& color) {
  MarkerFilterImpl::Instance().Change([&color](MarkerFilterState& state) {
    std::vector<ColorRGBA> colors = state.colors;
    colors.push_back(color);
    SetColors(state, std::move(colors));
  });
}

void ClearMarkerFilter() {
  MarkerFilterImpl::Instance().Change([](MarkerFilterState& state) { state = MarkerFilterState(); });
}

void SetSelectedMarkerFilterColors(const std::vector<ColorRGBA>& colors) {
  MarkerFilterImpl::Instance().Change([&colors](MarkerFilterState& state) { SetColors(state, colors); });
}

std::vector<ColorRGBA> GetSelectedMarkerFilterColors() { return MarkerFilterImpl::Instance().Get()->colors; }

void SetSelectedMarkerFilterTypes(const std::vector<std::string>& types) {
  MarkerFilterImpl::Instance().Change(
      [&types](MarkerFilterState& state) { state.types = BE::MarkerTypeFilter(types); });
}

std::vector<std::string> GetSelectedMarkerFilterTypes() {
  return MarkerFilterImpl::Instance().Get()->types.GetShownTypes();
}

void FilterMarkers(BE::MarkerList& markers) {
  const auto filter = MarkerFilterImpl::Instance().Get();
  std::erase_if(markers, [&filter](const BE::IMarkerRef& m) { return !m || !filter->Passes(*m); });
}

bool IsMarkerColorSelected(const BE::IMarker& marker) {
  return MarkerFilterImpl::Instance().Get()->IsColorSelected(marker);
}

bool IsMarkerVisible(const BE::IMarker& marker) { return MarkerFilterImpl::Instance().Get()->Passes(marker); }

} // namespace ZEL
