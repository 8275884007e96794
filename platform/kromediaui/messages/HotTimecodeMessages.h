#pragma once

// What a hot timecode control broadcasts: its time while the user scrubs and
// when a change is final (with the control's cookie), and the display it
// switched to, for a video time or an audio time.

#include <kromediaui/messages/ValueMessage.h>

#include <kromediatypes/TickTime.h>
#include <kromediatypes/TimeDisplay.h>

namespace kromediaui {

/// The time while the user scrubs.
using HotTimecodeValueChangingMessage =
    ValueMessage<"kromediaui.HotTimecodeValueChangingMessage", kromediatypes::TickTime>;
/// The time once a change is final.
using HotTimecodeValueChangedMessage =
    ValueMessage<"kromediaui.HotTimecodeValueChangedMessage", kromediatypes::TickTime>;
/// The new display of a video time.
using HotTimecodeVideoTimeDisplayChangedMessage =
    ValueMessage<"kromediaui.HotTimecodeVideoTimeDisplayChangedMessage", kromediatypes::TimeDisplay>;
/// The new display of an audio time.
using HotTimecodeAudioTimeDisplayChangedMessage =
    ValueMessage<"kromediaui.HotTimecodeAudioTimeDisplayChangedMessage", kromediatypes::TimeDisplay>;

} // namespace kromediaui
