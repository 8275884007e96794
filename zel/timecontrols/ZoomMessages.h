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

struct ZoomPositionChangingTag {
  static constexpr const char* kTypeID = "zel.ZoomPositionChangingMessage";
};
struct ZoomPositionChangedTag {
  static constexpr const char* kTypeID = "zel.ZoomPositionChangedMessage";
};
struct AudioZoomChangingTag {
  static constexpr const char* kTypeID = "zel.AudioZoomChangingMessage";
};
struct AudioZoomChangedTag {
  static constexpr const char* kTypeID = "zel.AudioZoomChangedMessage";
};

/// The slider's knob is being dragged: the position it gives now.
using ZoomPositionChangingMessage = kromediaui::ValueMessage<ZoomPositionChangingTag, ZoomPosition>;
/// The position changed and the change is complete: a button, a step, the end of a drag.
using ZoomPositionChangedMessage = kromediaui::ValueMessage<ZoomPositionChangedTag, ZoomPosition>;
/// The user is changing the audio zoom bar's window.
using AudioZoomChangingMessage = kromediaui::ValueMessage<AudioZoomChangingTag, AudioZoomRange>;
/// The audio zoom bar's window changed and the change is complete.
using AudioZoomChangedMessage = kromediaui::ValueMessage<AudioZoomChangedTag, AudioZoomRange>;

} // namespace ZEL
