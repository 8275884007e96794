#pragma once

// What the zoom controls broadcast on their stations (GetStationID), each
// message with the control's cookie: ZoomControl and ZoomSlider their zoom
// position, AudioZoomBarControl its visible amplitude window.

#include <zel/timecontrols/ZoomPosition.h>

#include <kromediaui/messages/ValueMessage.h>

namespace ZEL {

/// The part of the amplitude scale an audio view shows, as fractions of full scale.
struct AudioZoomRange {
  float minimum = 0.f;
  float maximum = 1.f;
  bool operator==(const AudioZoomRange&) const noexcept = default;
};

/// The slider's knob is being dragged: the position it gives now.
using ZoomPositionChangingMessage = kromediaui::ValueMessage<"zel.ZoomPositionChangingMessage", ZoomPosition>;
/// The position changed and the change is complete: a button, a step, the end of a drag.
using ZoomPositionChangedMessage = kromediaui::ValueMessage<"zel.ZoomPositionChangedMessage", ZoomPosition>;
/// The user is changing the audio zoom bar's window.
using AudioZoomChangingMessage = kromediaui::ValueMessage<"zel.AudioZoomChangingMessage", AudioZoomRange>;
/// The audio zoom bar's window changed and the change is complete.
using AudioZoomChangedMessage = kromediaui::ValueMessage<"zel.AudioZoomChangedMessage", AudioZoomRange>;

} // namespace ZEL
