// Text to time, for what a user types into a time field. The rules are told
// in TimeDisplay.h; here every typed form becomes a count of the display's
// unit (frames, samples or milliseconds), and the count becomes ticks.
#include <kromediatypes/TimeDisplay.h>

#include <kromediatypes/TimeDisplayImpl.h>
#include <kromediatypes/TypedSymbolsImpl.h>

#include <limits>

namespace kromediatypes {

using detail::TimecodeNumbering;
using ParseResult = krocore::utility::Result<TickTime>;

namespace {

// The largest count of ticks a typed time may reach: the next one is the unknown time.
constexpr std::uint64_t kLargestTicks = std::numeric_limits<std::int64_t>::max() - 1;

constexpr const char* kEmpty = "Type a time.";
constexpr const char* kNothingAfterSign = "Type a time after the sign.";
constexpr const char* kDoubleSign = "Only one sign can lead a time.";
constexpr const char* kSignInside = "A sign can only come first, before the time.";
constexpr const char* kNoDigits = "The text has no digits.";
constexpr const char* kOutOfRange = "The time is out of range.";
constexpr const char* kNoCurrentTime = "There is no current time to count from.";
constexpr const char* kTooManyTimecodeFields =
    "A timecode has at most four fields: hours, minutes, seconds and frames.";
constexpr const char* kFeetForm = "Feet and frames are typed as feet+frames, for example 123+4.";
constexpr const char* kWholeFrames = "Frames are counted in whole numbers.";
constexpr const char* kWholeSamples = "Samples are counted in whole numbers.";
constexpr const char* kMillisecondsForm = "A time in milliseconds is typed as hours:minutes:seconds.milliseconds.";
constexpr const char* kMillisecondDigits = "Milliseconds have at most three digits after the '.'.";

bool IsDigit(char symbol) noexcept {
  return symbol >= '0' && symbol <= '9';
}

bool IsSeparator(char symbol) noexcept {
  return symbol == ':' || symbol == ';' || symbol == '.';
}

bool IsClockSeparator(char symbol) noexcept {
  return symbol == ':' || symbol == ';';
}

// Counts beyond the largest tick count become this, and stay it through
// further arithmetic, so that a chain of steps needs one test at its end.
constexpr std::uint64_t kOverflow = std::numeric_limits<std::uint64_t>::max();

std::uint64_t MultiplyAdd(std::uint64_t value, std::uint64_t factor, std::uint64_t addend) noexcept {
  if (value == kOverflow || addend == kOverflow) return kOverflow;
  if (factor != 0 && value > (kLargestTicks - addend) / factor) return kOverflow;
  return value * factor + addend;
}

/// A count of the display's unit, or why the text is not a time.
struct Count {
  std::uint64_t value = 0;
  const char* error = nullptr;
};

Count Failed(const char* error) noexcept {
  return {0, error};
}

Count Counted(std::uint64_t value) noexcept {
  return value == kOverflow ? Failed(kOutOfRange) : Count{value, nullptr};
}

/// The numbers of a text such as "1:02:03", read in one pass.
struct Numbers {
  std::uint64_t values[4] = {};
  std::size_t count = 0;
};

/// Reads at most `capacity` numbers separated by the symbols `isSeparator`
/// accepts; an empty number is 0, but one digit at least must be there.
/// Every other symbol is refused with `wrongForm`.
const char* ReadNumbers(std::string_view text, bool (*isSeparator)(char), std::size_t capacity,
                        const char* wrongForm, Numbers& numbers) noexcept {
  std::uint64_t value = 0;
  bool hasDigit = false;
  for (const char symbol : text) {
    if (IsDigit(symbol)) {
      const auto digit = static_cast<std::uint64_t>(symbol - '0');
      // Below a tenth of the limit no digit can overflow, and the exact test divides.
      value = value < kLargestTicks / 10 ? value * 10 + digit : MultiplyAdd(value, 10, digit);
      hasDigit = true;
    } else if (isSeparator(symbol) && numbers.count + 1 < capacity) {
      numbers.values[numbers.count++] = value;
      value = 0;
    } else {
      return symbol == '+' || symbol == '-' ? kSignInside : wrongForm;
    }
  }
  numbers.values[numbers.count++] = value;
  if (!hasDigit) return kNoDigits;
  for (std::size_t i = 0; i < numbers.count; ++i)
    if (numbers.values[i] == kOverflow) return kOutOfRange;
  return nullptr;
}

/// Places the numbers in the last fields, the least significant last. A
/// lone number stands for its digits cut from the right: `leastModulus`
/// for the last field (100 for two digits), two digits for each field
/// before it, and whatever remains for the first.
void AlignFields(const Numbers& numbers, std::uint64_t* fields, std::size_t fieldCount,
                 std::uint64_t leastModulus) noexcept {
  if (numbers.count > 1) {
    for (std::size_t i = 0; i < numbers.count; ++i) fields[fieldCount - numbers.count + i] = numbers.values[i];
    return;
  }
  std::uint64_t digits = numbers.values[0];
  for (std::size_t field = fieldCount - 1; field > 0; --field) {
    const std::uint64_t modulus = field == fieldCount - 1 ? leastModulus : 100;
    fields[field] = digits % modulus;
    digits /= modulus;
  }
  fields[0] = digits;
}

/// Units from hours, minutes, seconds and the units within the second.
std::uint64_t CountClock(const std::uint64_t* hoursMinutesSeconds, std::uint64_t unitsPerSecond,
                         std::uint64_t units) noexcept {
  const std::uint64_t minutes = MultiplyAdd(hoursMinutesSeconds[0], 60, hoursMinutesSeconds[1]);
  return MultiplyAdd(MultiplyAdd(minutes, 60, hoursMinutesSeconds[2]), unitsPerSecond, units);
}

Count CountTimecodeFrames(std::string_view body, const TimeDisplay& display) noexcept {
  Numbers numbers;
  if (const char* error = ReadNumbers(body, IsSeparator, 4, kTooManyTimecodeFields, numbers)) return Failed(error);
  std::uint64_t fields[4] = {};
  AlignFields(numbers, fields, 4, 100);
  const TimecodeNumbering numbering(static_cast<std::uint64_t>(display.GetRate().GetTimecodeBase()),
                                    display.IsDropFrame());
  const std::uint64_t labelCount = CountClock(fields, numbering.GetBase(), fields[3]);
  return labelCount == kOverflow ? Failed(kOutOfRange) : Counted(numbering.FrameOf(labelCount));
}

bool IsFeetSeparator(char symbol) noexcept {
  return symbol == '+';
}

Count CountFeetAndFrames(std::string_view body, const TimeDisplay& display) noexcept {
  Numbers numbers;
  if (const char* error = ReadNumbers(body, IsFeetSeparator, 2, kFeetForm, numbers))
    return Failed(error == kSignInside ? kFeetForm : error);
  // Frames alone, or feet before the '+'.
  const std::uint64_t feet = numbers.count == 2 ? numbers.values[0] : 0;
  const auto framesPerFoot = static_cast<std::uint64_t>(display.GetFramesPerFoot());
  return Counted(MultiplyAdd(feet, framesPerFoot, numbers.values[numbers.count - 1]));
}

bool IsNoSeparator(char) noexcept {
  return false;
}

Count CountUnits(std::string_view body, const char* wholeNumbers) noexcept {
  Numbers numbers;
  if (const char* error = ReadNumbers(body, IsNoSeparator, 1, wholeNumbers, numbers)) return Failed(error);
  return Counted(numbers.values[0]);
}

/// Milliseconds from the digits after the '.': ".5" is 500.
Count CountFraction(std::string_view digits) noexcept {
  if (digits.size() > 3) return Failed(kMillisecondDigits);
  std::uint64_t milliseconds = 0;
  for (std::size_t place = 0; place < 3; ++place) {
    const char digit = place < digits.size() ? digits[place] : '0';
    if (!IsDigit(digit)) return Failed(kMillisecondsForm);
    milliseconds = milliseconds * 10 + static_cast<std::uint64_t>(digit - '0');
  }
  return Counted(milliseconds);
}

Count CountMillisecondsWithoutPoint(std::string_view body) noexcept {
  Numbers numbers;
  if (const char* error = ReadNumbers(body, IsClockSeparator, 3, kMillisecondsForm, numbers)) return Failed(error);
  std::uint64_t fields[4] = {};
  if (numbers.count > 1) {
    AlignFields(numbers, fields, 3, 100);
    return Counted(CountClock(fields, 1000, 0));
  }
  // A lone run of digits fills the display from the right, milliseconds first.
  AlignFields(numbers, fields, 4, 1000);
  return Counted(CountClock(fields, 1000, fields[3]));
}

Count CountMilliseconds(std::string_view body) noexcept {
  const std::size_t point = body.find('.');
  if (point == std::string_view::npos) return CountMillisecondsWithoutPoint(body);
  const Count fraction = CountFraction(body.substr(point + 1));
  if (fraction.error) return fraction;
  Numbers numbers;
  const char* error = ReadNumbers(body.substr(0, point), IsClockSeparator, 3, kMillisecondsForm, numbers);
  // The digits may all stand after the '.'.
  if (error && !(error == kNoDigits && point + 1 < body.size())) return Failed(error);
  std::uint64_t fields[3] = {};
  AlignFields(numbers, fields, 3, 100);
  return Counted(CountClock(fields, 1000, fraction.value));
}

/// The count of display units the body stands for.
Count CountBody(std::string_view body, const TimeDisplay& display) noexcept {
  switch (display.GetKind()) {
  case TimeDisplay::Kind::kTimecode: return CountTimecodeFrames(body, display);
  case TimeDisplay::Kind::kFeetAndFrames35mm:
  case TimeDisplay::Kind::kFeetAndFrames16mm: return CountFeetAndFrames(body, display);
  case TimeDisplay::Kind::kFrames: return CountUnits(body, kWholeFrames);
  case TimeDisplay::Kind::kAudioSamples: return CountUnits(body, kWholeSamples);
  case TimeDisplay::Kind::kMilliseconds: break;
  }
  return CountMilliseconds(body);
}

std::uint64_t UnitTicks(const TimeDisplay& display) noexcept {
  if (display.GetKind() == TimeDisplay::Kind::kMilliseconds)
    return static_cast<std::uint64_t>(detail::kTicksPerMillisecond);
  return static_cast<std::uint64_t>(display.GetRate().GetFrameDuration().GetTicks());
}

/// current + offset or current - offset, refused where it leaves the range.
ParseResult Offset(TickTime current, bool isNegative, std::int64_t offset) {
  if (current.IsUnknown()) return ParseResult::Failure(kNoCurrentTime);
  const std::int64_t start = current.GetTicks();
  constexpr std::int64_t kEarliest = std::numeric_limits<std::int64_t>::min();
  constexpr std::int64_t kLatest = static_cast<std::int64_t>(kLargestTicks);
  if (isNegative ? start < kEarliest + offset : start > kLatest - offset) return ParseResult::Failure(kOutOfRange);
  return ParseResult::Success(TickTime(isNegative ? start - offset : start + offset));
}

} // namespace

ParseResult TimeDisplay::Parse(std::string_view typed, TickTime current) const {
  detail::TypedSymbols symbols;
  if (!symbols.Read(typed)) return ParseResult::Failure(symbols.GetProblem());
  std::string_view body = symbols.View();
  if (body.empty()) return ParseResult::Failure(kEmpty);
  const bool hasSign = body[0] == '+' || body[0] == '-';
  const bool isNegative = body[0] == '-';
  if (hasSign) body.remove_prefix(1);
  if (body.empty()) return ParseResult::Failure(kNothingAfterSign);
  if (hasSign && (body[0] == '+' || body[0] == '-')) return ParseResult::Failure(kDoubleSign);

  const Count count = CountBody(body, *this);
  if (count.error) return ParseResult::Failure(count.error);
  const std::uint64_t unitTicks = UnitTicks(*this);
  if (count.value > kLargestTicks / unitTicks) return ParseResult::Failure(kOutOfRange);
  const auto ticks = static_cast<std::int64_t>(count.value * unitTicks);
  if (!hasSign) return ParseResult::Success(TickTime(ticks));
  return Offset(current, isNegative, ticks);
}

} // namespace kromediatypes
