#pragma once

#include <zel/Export.h>
#include <zel/timecontrols/ZoomBarCurve.h>

#include <kromediatypes/TickTime.h>

#include <cstdint>

namespace ZEL {

/// The deepest zoom, in pixels across one video frame, for every timeline of
/// the process.
ZEL_API std::uint32_t GetPixelsPerFrameMax();
ZEL_API void SetPixelsPerFrameMax(std::uint32_t pixels);
/// The deepest zoom, in pixels across one audio sample.
ZEL_API std::uint32_t GetPixelsPerSampleMax();

/// Keeps the two numbers of a timeline view legal: the time at its left edge
/// and its seconds per pixel. The host derives from it and answers what only
/// it knows (the content's length, the empty time allowed after it, one frame
/// or sample); the clamping is all here.
///
///   deepest zoom  one frame across GetPixelsPerFrameMax() pixels
///                 (one sample across GetPixelsPerSampleMax() for audio)
///   widest zoom   the scrollable duration across the view's width
///   left edge     in [0, scrollable duration - visible duration], 0 first
///
/// The scrollable duration is the content plus its trailing time, but never
/// more than 24 hours unless the content alone is longer (then it gets none).
///
/// The host's answers are asked for in a fixed order, which subclasses with
/// side effects may rely on: ConstrainTimePerPixel asks for the content, then
/// the unit, then the trailing time; ConstrainVisibleBaseTime asks for the
/// trailing time, then the content.
///
/// A plain value: copies copy every field. The fields sit in the class, not
/// behind a pointer, so that a host's subclass copies like any value.
class ZEL_API ZoomLimiter {
public:
  explicit ZoomLimiter(bool zoomSynchedToSize);
  ZoomLimiter(const ZoomLimiter&) = default;
  ZoomLimiter& operator=(const ZoomLimiter&) = default;
  virtual ~ZoomLimiter();

  /// The end of the content the timeline shows.
  virtual void GetContentDuration(kromediatypes::TickTime& outDuration) const = 0;
  /// How far past the end of the content the user may scroll.
  virtual void GetTrailingScrollTime(kromediatypes::TickTime& outTime) const = 0;
  /// One video frame, or one audio sample when audio frame alignment is set;
  /// the unknown time means there is no deepest zoom.
  virtual const kromediatypes::TickTime& GetAlignmentUnitDuration() const = 0;
  virtual double GetPowerExponent() const;
  /// The base clamped into [0, max(0, scrollable duration - visible duration)].
  virtual kromediatypes::TickTime ConstrainVisibleBaseTime(const kromediatypes::TickTime& base,
                                                           const double& secondsPerPixel) const;
  virtual double ConstrainTimePerPixel(const double& secondsPerPixel) const;

  /// Never less than 1 pixel.
  void SetScrollWidthInPixels(int width);
  int GetScrollWidthInPixels() const { return mScrollWidthInPixels; }
  /// 0 for video limits (per frame), anything else for audio limits (per sample).
  void SetAudioFrameAlignment(std::uint32_t alignment) { mAudioFrameAlignment = alignment; }
  std::uint32_t GetAudioFrameAlignment() const { return mAudioFrameAlignment; }
  /// Recorded as given; the Constrain operations are what make numbers legal.
  void SetVisibleBaseTime(const kromediatypes::TickTime& base, const double& secondsPerPixel);
  bool IsZoomSynchedToSize() const { return mZoomSynchedToSize; }

  void GetSecondsPerPixelLimits(double& minimum, double& maximum) const;
  void GetPixelsPerSecondLimits(double& minimum, double& maximum) const;
  /// The pixels-per-second limits under the name the zoom controls use.
  void CalculateZoomFactors(double& minimum, double& maximum) const;

  /// The zoom bar's curve with this limiter's exponent (ZoomBarCurve).
  kromediaui::ZoomBarRange ThumbsToVisibleRange(kromediaui::ZoomBarRange thumbs) const;
  kromediaui::ZoomBarRange VisibleRangeToThumbs(kromediaui::ZoomBarRange visible) const;

private:
  double DeepestSecondsPerPixel() const;

  bool mZoomSynchedToSize;
  std::uint32_t mAudioFrameAlignment = 0;
  std::int32_t mScrollWidthInPixels = 1;
  kromediatypes::TickTime mVisibleBaseTime;
  double mVisibleTimePerPixel = 0.0;
  double mPowerExponent = 4.2;
};

} // namespace ZEL
