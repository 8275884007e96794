// Time to text. Digits are written straight into a small buffer: labels are
// drawn for every ruler tick and every played frame, and a formatted print
// would cost several times more than the arithmetic.
#include <kromediatypes/TimeDisplay.h>

#include <kromediatypes/TimeDisplayImpl.h>

#include <array>

namespace kromediatypes {

using detail::FloorDivide;
using detail::Magnitude;
using detail::TimecodeFields;
using detail::TimecodeNumbering;

namespace {

// "00" to "99": two digits cost one division instead of two.
constexpr std::array<char, 200> kDigitPairs = [] {
  std::array<char, 200> pairs{};
  for (int i = 0; i < 100; ++i) {
    pairs[2 * i] = static_cast<char>('0' + i / 10);
    pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
  }
  return pairs;
}();

// Labels are written through a cursor into a buffer of TimeText::kCapacity
// characters. The longest label of any time (about ten thousand hours, up to
// twelve digits of frames at the fastest rate) needs 25 of them.

char* PutSign(char* out, bool isNegative) noexcept {
  if (isNegative) *out++ = '-';
  return out;
}

std::size_t DigitCount(std::uint64_t value) noexcept {
  std::size_t count = 1;
  for (; value >= 100; value /= 100) count += 2;
  return value >= 10 ? count + 1 : count;
}

/// Decimal, zero-padded to at least `width` digits, written from the right
/// straight into place.
char* PutNumber(char* out, std::uint64_t value, std::size_t width) noexcept {
  std::size_t length = DigitCount(value);
  if (length < width) length = width;
  char* const end = out + length;
  char* at = end;
  for (; at - out >= 2; value /= 100) {
    at -= 2;
    const char* pair = &kDigitPairs[2 * (value % 100)];
    at[0] = pair[0];
    at[1] = pair[1];
  }
  if (at != out) *out = static_cast<char>('0' + value % 10);
  return end;
}

/// At least two digits, and the separator after them.
char* PutField(char* out, std::uint64_t value, char separator) noexcept {
  out = PutNumber(out, value, 2);
  *out++ = separator;
  return out;
}

TimeText ToText(const char* text, const char* end) noexcept {
  return TimeText(text, static_cast<std::size_t>(end - text));
}

/// Frame labels are as wide as the largest frame number of a second, at least two digits.
std::size_t FrameDigits(std::uint64_t base) noexcept {
  std::size_t digits = 2;
  for (std::uint64_t largest = base - 1; largest >= 100; largest /= 10) ++digits;
  return digits;
}

TimeText FormatTimecode(std::int64_t frame, std::int64_t base, bool isDropFrame) noexcept {
  const TimecodeNumbering numbering(static_cast<std::uint64_t>(base), isDropFrame);
  const TimecodeFields label = numbering.LabelOf(Magnitude(frame));
  char text[TimeText::kCapacity];
  char* out = PutSign(text, frame < 0);
  out = PutField(out, label.hours, ':');
  out = PutField(out, label.minutes, ':');
  out = PutField(out, label.seconds, isDropFrame ? ';' : ':');
  out = PutNumber(out, label.frames, FrameDigits(numbering.GetBase()));
  return ToText(text, out);
}

TimeText FormatFeetAndFrames(std::int64_t frame, std::uint64_t framesPerFoot) noexcept {
  const std::uint64_t frames = Magnitude(frame);
  char text[TimeText::kCapacity];
  char* out = PutSign(text, frame < 0);
  out = PutNumber(out, frames / framesPerFoot, 4);
  *out++ = '+';
  out = PutNumber(out, frames % framesPerFoot, 2);
  return ToText(text, out);
}

TimeText FormatCount(std::int64_t count) noexcept {
  char text[TimeText::kCapacity];
  char* out = PutSign(text, count < 0);
  out = PutNumber(out, Magnitude(count), 1);
  return ToText(text, out);
}

TimeText FormatMilliseconds(TickTime time) noexcept {
  const std::int64_t count = FloorDivide(time.GetTicks(), detail::kTicksPerMillisecond);
  const std::uint64_t milliseconds = Magnitude(count);
  const std::uint64_t seconds = milliseconds / 1000;
  char text[TimeText::kCapacity];
  char* out = PutSign(text, count < 0);
  out = PutField(out, seconds / 3600, ':');
  out = PutField(out, seconds / 60 % 60, ':');
  out = PutField(out, seconds % 60, '.');
  out = PutNumber(out, milliseconds % 1000, 3);
  return ToText(text, out);
}

} // namespace

TimeText TimeDisplay::Format(TickTime time) const noexcept {
  if (time.IsUnknown()) return TimeText();
  switch (mKind) {
  case Kind::kTimecode: return FormatTimecode(time.ToFrames(mRate), mRate.GetTimecodeBase(), mIsDropFrame);
  case Kind::kFeetAndFrames35mm:
  case Kind::kFeetAndFrames16mm:
    return FormatFeetAndFrames(time.ToFrames(mRate), static_cast<std::uint64_t>(GetFramesPerFoot()));
  case Kind::kFrames:
  case Kind::kAudioSamples: return FormatCount(time.ToFrames(mRate));
  case Kind::kMilliseconds: return FormatMilliseconds(time);
  }
  return TimeText();
}

TimeText TimeDisplay::Format(TickTime time, const FrameRate& quantizeRate) const noexcept {
  return Format(time.FloorToFrame(quantizeRate));
}

} // namespace kromediatypes
