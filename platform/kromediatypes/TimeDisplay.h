#pragma once

#include <kromediatypes/Export.h>
#include <kromediatypes/FrameRate.h>
#include <kromediatypes/TickTime.h>
#include <kromediatypes/TimeText.h>

#include <krocore/utility/Result.h>

#include <cstdint>
#include <string_view>

namespace kromediatypes {

/// How a time is shown to an editor, and how what they type is read back.
///
///   display                            shows          counts
///   Timecode(kFrameRate25)             01:02:03:04    frames, 25 labels a second
///   DropFrameTimecode(kFrameRate2997)  00:01:00;02    frames, SMPTE 12M drop-frame labels
///   FeetAndFrames35mm(kFrameRate24)    0005+08        frames, 16 a foot
///   FeetAndFrames16mm(kFrameRate24)    0005+08        frames, 40 a foot
///   Frames(kFrameRate25)               1234           frames
///   AudioSamples(kSampleRate48000)     48000          samples
///   Milliseconds()                     01:02:03.456   milliseconds
///
/// Formatting shows the unit that holds the time, rounded down. A negative
/// time is "-" followed by the label of the unit as far from zero (frame -1
/// is "-00:00:00:01"). Hours go on counting past 24. The unknown time is the
/// empty text, so that a control shows its own placeholder.
///
/// Parsing reads what a user types into a time field (UTF-8; full-width
/// digits, signs and separators, the minus sign U+2212 and spaces around the
/// entry are accepted):
/// - Timecode: fields separated by ':', ';' or '.' (any of them, in either
///   kind of timecode), filled from the right: frames, seconds, minutes,
///   hours. An empty field is 00, so "1." is one second, "1.." one minute and
///   "1.2.3.4" is 01:02:03:04. Digits without a separator pair up from the
///   right: "10" is ten frames, "1000" ten seconds, "1000000" one hour.
///   A field may overflow and carries ("90" at 30 fps is 00:00:03:00).
///   A drop-frame label that does not exist means the next one that does
///   (00:01:00;00 at 29.97 is 00:01:00;02).
/// - Feet and frames: "123+4"; "123+" is whole feet; "4" alone is frames.
/// - Frames and samples: a whole number.
/// - Milliseconds: "h:m:s.mmm", with ':' or ';' between the clock fields
///   and '.' before a decimal fraction of a second (".5" is 500 ms, at most
///   three digits; "1." is one second). Clock digits without a separator pair
///   up from the right as in timecode ("130.5" is 00:01:30.500); digits alone
///   end with three of milliseconds ("1500" is 1.5 s).
/// - A leading '+' or '-' makes the entry an offset from the current time:
///   "+10" is ten frames later, "-1:00" a second earlier. A drop-frame offset
///   is the duration its label shows. With the default current time (zero) a
///   leading '-' is simply a negative time, so every label reads back as its
///   own time.
class KROMEDIATYPES_API TimeDisplay {
public:
  enum class Kind : std::uint8_t {
    kTimecode,
    kFeetAndFrames35mm,
    kFeetAndFrames16mm,
    kFrames,
    kAudioSamples,
    kMilliseconds,
  };

  /// Milliseconds, the one display that needs no rate.
  constexpr TimeDisplay() noexcept = default;

  // A display that counts frames or samples needs a known rate; without one
  // these report an assertion and give Milliseconds().
  static TimeDisplay Timecode(const FrameRate& rate);
  /// Drop-frame exists only at 29.97 and 59.94 fps; at any other rate this
  /// reports an assertion and gives non-drop-frame timecode.
  static TimeDisplay DropFrameTimecode(const FrameRate& rate);
  static TimeDisplay FeetAndFrames35mm(const FrameRate& rate);
  static TimeDisplay FeetAndFrames16mm(const FrameRate& rate);
  static TimeDisplay Frames(const FrameRate& rate);
  static TimeDisplay AudioSamples(const FrameRate& sampleRate);
  static TimeDisplay Milliseconds() noexcept { return TimeDisplay(); }

  Kind GetKind() const noexcept { return mKind; }
  /// The frame or sample rate counted; unknown for Milliseconds().
  const FrameRate& GetRate() const noexcept { return mRate; }
  bool IsDropFrame() const noexcept { return mIsDropFrame; }
  /// 16 for 35 mm film, 40 for 16 mm, 0 for displays without feet.
  int GetFramesPerFoot() const noexcept;

  TimeText Format(TickTime time) const noexcept;
  /// Rounds the time down to a frame of `quantizeRate` first, so that a
  /// milliseconds or samples display follows the video frames.
  TimeText Format(TickTime time, const FrameRate& quantizeRate) const noexcept;

  /// The time that `typed` stands for, or a message that tells the user what
  /// is wrong with it. `current` is where relative entries start from.
  krocore::utility::Result<TickTime> Parse(std::string_view typed, TickTime current = TickTime()) const;

  bool operator==(const TimeDisplay&) const noexcept = default;

private:
  static TimeDisplay Counting(Kind kind, const FrameRate& rate);

  FrameRate mRate;
  Kind mKind = Kind::kMilliseconds;
  bool mIsDropFrame = false;
};

} // namespace kromediatypes
