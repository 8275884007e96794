#pragma once

#include <kromediatypes/Export.h>
#include <kromediatypes/TickTime.h>

#include <array>
#include <cstdint>
#include <numeric>

namespace kromediatypes {

/// A video frame rate or audio sample rate as an exact fraction in lowest
/// terms: 23.976 fps is 24000/1001, never 23.976. A rate is known only when
/// one frame lasts a whole number of ticks, which holds for every rate listed
/// below. The default rate is unknown; its frame lasts the unknown time.
class KROMEDIATYPES_API FrameRate {
public:
  constexpr FrameRate() noexcept = default;

  /// A rate that is not positive, or whose frame is not a whole number of
  /// ticks, is misuse: it reports an assertion and gives the unknown rate.
  constexpr explicit FrameRate(std::int64_t numerator, std::int64_t denominator = 1) noexcept {
    if (numerator <= 0 || denominator <= 0) {
      ReportInvalidRate();
      return;
    }
    const std::int64_t divisor = std::gcd(numerator, denominator);
    numerator /= divisor;
    denominator /= divisor;
    // In lowest terms a frame is whole ticks exactly when the numerator
    // divides the tick rate.
    if (TickTime::kTicksPerSecond % numerator != 0 ||
        denominator >= TickTime::Unknown().GetTicks() / (TickTime::kTicksPerSecond / numerator)) {
      ReportInvalidRate();
      return;
    }
    mNumerator = numerator;
    mDenominator = denominator;
    mFrameDuration = TickTime::kTicksPerSecond / numerator * denominator;
  }

  /// The rate whose frame lasts `duration`; unknown for a duration that is
  /// unknown or not positive.
  static constexpr FrameRate FromFrameDuration(TickTime duration) noexcept {
    if (duration.IsUnknown() || duration.GetTicks() <= 0) return FrameRate();
    return FrameRate(TickTime::kTicksPerSecond, duration.GetTicks());
  }

  constexpr bool IsKnown() const noexcept { return mNumerator != 0; }
  constexpr std::int64_t GetNumerator() const noexcept { return mNumerator; }
  constexpr std::int64_t GetDenominator() const noexcept { return mDenominator; }
  constexpr TickTime GetFrameDuration() const noexcept { return TickTime(mFrameDuration); }
  double ToDouble() const noexcept;

  /// Frames counted per second of timecode: the rate rounded to a whole
  /// number, at least 1 (30 for 29.97, 24 for 23.976); 0 when unknown.
  constexpr std::int64_t GetTimecodeBase() const noexcept {
    if (!IsKnown()) return 0;
    const std::int64_t rounded = (mNumerator + mDenominator / 2) / mDenominator;
    return rounded > 0 ? rounded : 1;
  }

  /// Drop-frame timecode exists only at 29.97 and 59.94 fps.
  constexpr bool HasDropFrame() const noexcept {
    return mDenominator == 1001 && (mNumerator == 30000 || mNumerator == 60000);
  }

  constexpr bool operator==(const FrameRate&) const noexcept = default;

private:
  static void ReportInvalidRate();

  std::int64_t mNumerator = 0;
  std::int64_t mDenominator = 1;
  std::int64_t mFrameDuration = TickTime::Unknown().GetTicks();
};

inline constexpr FrameRate kFrameRate15{15};
inline constexpr FrameRate kFrameRate23976{24000, 1001};
inline constexpr FrameRate kFrameRate24{24};
inline constexpr FrameRate kFrameRate25{25};
inline constexpr FrameRate kFrameRate2997{30000, 1001};
inline constexpr FrameRate kFrameRate30{30};
inline constexpr FrameRate kFrameRate47952{48000, 1001};
inline constexpr FrameRate kFrameRate48{48};
inline constexpr FrameRate kFrameRate50{50};
inline constexpr FrameRate kFrameRate5994{60000, 1001};
inline constexpr FrameRate kFrameRate60{60};
inline constexpr FrameRate kFrameRate100{100};
inline constexpr FrameRate kFrameRate11988{120000, 1001};
inline constexpr FrameRate kFrameRate120{120};

inline constexpr std::array kVideoFrameRates{kFrameRate15,   kFrameRate23976, kFrameRate24,    kFrameRate25,
                                             kFrameRate2997, kFrameRate30,    kFrameRate47952, kFrameRate48,
                                             kFrameRate50,   kFrameRate5994,  kFrameRate60,    kFrameRate100,
                                             kFrameRate11988, kFrameRate120};

inline constexpr FrameRate kSampleRate8000{8000};
inline constexpr FrameRate kSampleRate11025{11025};
inline constexpr FrameRate kSampleRate12000{12000};
inline constexpr FrameRate kSampleRate16000{16000};
inline constexpr FrameRate kSampleRate22050{22050};
inline constexpr FrameRate kSampleRate24000{24000};
inline constexpr FrameRate kSampleRate32000{32000};
inline constexpr FrameRate kSampleRate44100{44100};
inline constexpr FrameRate kSampleRate48000{48000};
inline constexpr FrameRate kSampleRate64000{64000};
inline constexpr FrameRate kSampleRate88200{88200};
inline constexpr FrameRate kSampleRate96000{96000};
inline constexpr FrameRate kSampleRate176400{176400};
inline constexpr FrameRate kSampleRate192000{192000};

inline constexpr std::array kAudioSampleRates{kSampleRate8000,  kSampleRate11025, kSampleRate12000,  kSampleRate16000,
                                              kSampleRate22050, kSampleRate24000, kSampleRate32000,  kSampleRate44100,
                                              kSampleRate48000, kSampleRate64000, kSampleRate88200,  kSampleRate96000,
                                              kSampleRate176400, kSampleRate192000};

} // namespace kromediatypes
