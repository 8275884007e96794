#pragma once

// What a hot timecode control broadcasts: its time while the user scrubs and
// when a change is final (with the control's cookie), and the display it
// switched to, for a video time or an audio time.

#include <kromediaui/messages/ValueMessage.h>

#include <kromediatypes/TickTime.h>
#include <kromediatypes/TimeDisplay.h>

namespace kromediaui {

struct HotTimecodeValueChangingTag {
  static constexpr const char* kTypeID = "kromediaui.HotTimecodeValueChangingMessage";
};
struct HotTimecodeValueChangedTag {
  static constexpr const char* kTypeID = "kromediaui.HotTimecodeValueChangedMessage";
};
struct HotTimecodeVideoTimeDisplayChangedTag {
  static constexpr const char* kTypeID = "kromediaui.HotTimecodeVideoTimeDisplayChangedMessage";
};
struct HotTimecodeAudioTimeDisplayChangedTag {
  static constexpr const char* kTypeID = "kromediaui.HotTimecodeAudioTimeDisplayChangedMessage";
};

/// The time while the user scrubs.
using HotTimecodeValueChangingMessage = ValueMessage<HotTimecodeValueChangingTag, kromediatypes::TickTime>;
/// The time once a change is final.
using HotTimecodeValueChangedMessage = ValueMessage<HotTimecodeValueChangedTag, kromediatypes::TickTime>;
/// The new display of a video time.
using HotTimecodeVideoTimeDisplayChangedMessage =
    ValueMessage<HotTimecodeVideoTimeDisplayChangedTag, kromediatypes::TimeDisplay>;
/// The new display of an audio time.
using HotTimecodeAudioTimeDisplayChangedMessage =
    ValueMessage<HotTimecodeAudioTimeDisplayChangedTag, kromediatypes::TimeDisplay>;

} // namespace kromediaui
