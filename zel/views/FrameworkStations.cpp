#include <zel/views/FrameworkStations.h>

#include <krocore/messaging/Station.h>

namespace ZEL {
namespace {
// Internal: focus moves between panels, and the modal mouse loop's state.
const krocore::utility::ImmutableString kStation_Focus{"zel.internal.focus"};
const krocore::utility::ImmutableString kStation_ModalLoop{"zel.internal.modalloop"};
} // namespace

const krocore::utility::ImmutableString kStation_Workspace{"zel.workspace"};
const krocore::utility::ImmutableString kStation_Theme{"zel.station.theme"};
const krocore::utility::ImmutableString kStation_ModalColorPickerStatusActive{"zel.modalcolorpicker.active"};
const krocore::utility::ImmutableString kStation_ApplicationWindowMenu{"zel.applicationwindowmenu"};

const krocore::utility::ImmutableString ToolMessaging::kStation_Tool{"zel.tool"};

std::vector<krocore::utility::ImmutableString> FrameworkStations::GetStations() {
  return {kStation_Focus,    kStation_Workspace, kStation_Theme, kStation_ModalColorPickerStatusActive,
          kStation_ModalLoop, kStation_ApplicationWindowMenu};
}

void FrameworkStations::Register() {
  for (const auto& station : GetStations()) krocore::messaging::CreateStation(station);
}

void FrameworkStations::Dispose() {
  for (const auto& station : GetStations()) krocore::messaging::DisposeStation(station);
}

} // namespace ZEL
