#pragma once

#include <kroui/Export.h>
#include <kroui/drawbot/DrawTypes.h>
#include <kroui/theme/ThemeDocument.h>

#include <optional>
#include <vector>

namespace kroui::ui {

/// The key frames of one colour ID, and its colour at any brightness.
///
///   v ^        hold
///     |   A----------B            A to B: held at A
///     |               \           B to C: blended in HSV
///     |                \   C      before the first, after the last: clamped
///     +----+----------+-+-+--> t  0.5 to 0.5001: a step, not a ramp
///
/// A key frame of a General theme fixes the colour at every brightness.
class KROUI_API ColorTrack {
public:
  /// Adds a key frame; one at the same position as an earlier one replaces it.
  void Add(const KeyFrame& frame);
  /// Removes the key frame at brightness `t`; false when there is none there.
  bool Remove(float t);

  bool IsEmpty() const noexcept { return mFrames.empty() && !mGeneral; }
  bool IsFixed() const noexcept { return mGeneral.has_value(); }

  /// The colour at a brightness from 0 to 1; transparent black when the track is empty.
  drawbot::ColorRGBA At(float brightness) const;

private:
  KeyFrame FrameAt(float brightness) const;

  std::vector<KeyFrame> mFrames; // ordered by t
  std::optional<KeyFrame> mGeneral;
};

/// The RGBA form of a key frame's hue (degrees), saturation, value and alpha.
KROUI_API drawbot::ColorRGBA ColorFromHSV(float h, float s, float v, float a);

} // namespace kroui::ui
