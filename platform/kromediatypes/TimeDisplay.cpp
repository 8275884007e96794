#include <kromediatypes/TimeDisplay.h>

#include <krocore/debug/Assert.h>

namespace kromediatypes {

TimeDisplay TimeDisplay::Counting(Kind kind, const FrameRate& rate) {
  if (!KROCORE_ASSERT(rate.IsKnown(), "A time display that counts frames or samples needs a known rate"))
    return Milliseconds();
  TimeDisplay display;
  display.mKind = kind;
  display.mRate = rate;
  return display;
}

TimeDisplay TimeDisplay::Timecode(const FrameRate& rate) {
  return Counting(Kind::kTimecode, rate);
}

TimeDisplay TimeDisplay::DropFrameTimecode(const FrameRate& rate) {
  TimeDisplay display = Counting(Kind::kTimecode, rate);
  if (display.mKind == Kind::kTimecode &&
      KROCORE_ASSERT(rate.HasDropFrame(), "Drop-frame timecode exists only at 29.97 and 59.94 fps"))
    display.mIsDropFrame = true;
  return display;
}

TimeDisplay TimeDisplay::FeetAndFrames35mm(const FrameRate& rate) {
  return Counting(Kind::kFeetAndFrames35mm, rate);
}

TimeDisplay TimeDisplay::FeetAndFrames16mm(const FrameRate& rate) {
  return Counting(Kind::kFeetAndFrames16mm, rate);
}

TimeDisplay TimeDisplay::Frames(const FrameRate& rate) {
  return Counting(Kind::kFrames, rate);
}

TimeDisplay TimeDisplay::AudioSamples(const FrameRate& sampleRate) {
  return Counting(Kind::kAudioSamples, sampleRate);
}

int TimeDisplay::GetFramesPerFoot() const noexcept {
  switch (mKind) {
  case Kind::kFeetAndFrames35mm: return 16;
  case Kind::kFeetAndFrames16mm: return 40;
  default: return 0;
  }
}

} // namespace kromediatypes
