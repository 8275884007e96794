#pragma once

// The raster surface's text engine, seen without its libraries: this header
// names no Cairo or Pango type, so that the recording surface measures text
// exactly as the raster one lays it out.

#include <kroui/drawbot/DrawTypes.h>
#include <kroui/drawbot/TextShaping.h>

#include <cstddef>
#include <memory>
#include <string_view>

namespace kroui::drawbot::raster {

struct GlyphRun;

/// A line of text as shaped, in device pixels, relative to where its baseline starts.
struct TextExtents {
  TextMetrics metrics;
  RectF ink; ///< what the glyphs cover
};

/// Shapes text with Pango on a private fontconfig configuration that holds
/// only the DejaVu faces, at 96 DPI, with fixed antialiasing and hinting, so
/// that the same build draws the same pixels on every machine. Shaped runs
/// are kept in a bounded most-recently-used cache keyed by text, font row
/// and device size: a ruler redrawing "00:01:23:12" shapes it once.
/// Safe to use from any thread.
class TextEngine {
public:
  static TextEngine& Instance();

  TextEngine(const TextEngine&) = delete;
  TextEngine& operator=(const TextEngine&) = delete;

  /// `text` in font row `fontRow`, at `pixelScale` device pixels per unit of the font's size.
  std::shared_ptr<const GlyphRun> Shape(std::string_view text, std::size_t fontRow, float pixelScale);
  TextExtents Measure(std::string_view text, std::size_t fontRow, float pixelScale);

  GlyphRunCacheStatistics GetStatistics() const;
  void ClearCache();

private:
  TextEngine();
  ~TextEngine();

  struct State;
  std::unique_ptr<State> mState;
};

/// Where the baseline starts so that text of these metrics sits in `box` as
/// asked; on whole pixels, so that glyphs are as crisp as their hinting.
PointF PlaceText(const TextMetrics& metrics, const RectF& box, HorizontalAlignment horizontal,
                 VerticalAlignment vertical) noexcept;

/// What text is clipped to: its box, and for Baseline the descent below it.
RectF TextClipArea(const TextMetrics& metrics, const RectF& box, VerticalAlignment vertical) noexcept;

/// The area text drawn from `origin` may cover: its logical box and its ink.
RectF TextCoverage(const TextExtents& extents, PointF origin) noexcept;

} // namespace kroui::drawbot::raster
