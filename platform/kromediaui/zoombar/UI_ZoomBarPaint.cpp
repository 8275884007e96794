// UI_ZoomBar: how a zoom bar looks.

#include <kromediaui/zoombar/UI_ZoomBar.h>

#include <kromediaui/zoombar/UI_ZoomBarImpl.h>

#include <kroui/drawbot/Drawbot.h>

namespace kromediaui {
namespace {

using kroui::drawbot::ColorRGBA;
using Rect = ZoomBarLayout::Rect;

// Below these thicknesses a strip is too thin for handles and grip: it shows the thumb alone.
constexpr int kThicknessForHandles = 8;
constexpr int kGripLines = 3;
constexpr int kGripSpacing = 3;

/// Paints in coordinates along and across the axis, whichever way the bar lies.
class AxisPainter {
public:
  AxisPainter(kroui::drawbot::Drawbot& drawbot, bool isVertical, const Rect& strip)
      : mDrawbot(drawbot), mIsVertical(isVertical),
        mAcrossFrom(isVertical ? strip.left : strip.top), mAcrossTo(isVertical ? strip.right : strip.bottom) {}

  int Thickness() const noexcept { return mAcrossTo - mAcrossFrom; }
  /// Fills from `alongFrom` to `alongTo`, `inset` pixels inside the strip across the axis.
  void Fill(int alongFrom, int alongTo, int inset, const ColorRGBA& color) {
    const int acrossFrom = mAcrossFrom + inset, acrossTo = mAcrossTo - inset;
    if (alongTo <= alongFrom || acrossTo <= acrossFrom) return;
    const auto along = static_cast<float>(alongFrom), across = static_cast<float>(acrossFrom);
    const auto length = static_cast<float>(alongTo - alongFrom), breadth = static_cast<float>(acrossTo - acrossFrom);
    mDrawbot.FillRect(mIsVertical ? kroui::drawbot::RectF{across, along, breadth, length}
                                  : kroui::drawbot::RectF{along, across, length, breadth},
                      color);
  }

private:
  kroui::drawbot::Drawbot& mDrawbot;
  bool mIsVertical;
  int mAcrossFrom;
  int mAcrossTo;
};

int AlongFrom(const Rect& rect, bool isVertical) { return isVertical ? rect.top : rect.left; }
int AlongTo(const Rect& rect, bool isVertical) { return isVertical ? rect.bottom : rect.right; }

} // namespace

void UI_ZoomBar::PaintSelf(kroui::drawbot::Drawbot& drawbot) {
  const UI_ZoomBarImpl& state = *mImpl;
  const bool isVertical = state.IsVertical();
  const ZoomBarLayout layout = Layout();
  AxisPainter painter(drawbot, isVertical, layout.Strip());
  if (painter.Thickness() <= 0) return;
  const ZoomBarColors& colors = state.colors;
  painter.Fill(0, layout.Length(), 0, colors.track);

  const int thumbStart = layout.ThumbStart(), thumbEnd = thumbStart + layout.ThumbLength();
  const int inset = painter.Thickness() >= kThicknessForHandles ? 1 : 0;
  painter.Fill(thumbStart, thumbEnd, inset, state.pressed == ZoomBarPart::Center ? colors.thumbActive : colors.thumb);
  if (painter.Thickness() < kThicknessForHandles) return;

  // Each edge: a short bar in the middle of its area, on the active colour while held.
  for (const ZoomBarPart edge : {ZoomBarPart::StartEdge, ZoomBarPart::EndEdge}) {
    const Rect area = layout.PartRect(edge);
    const int from = AlongFrom(area, isVertical), to = AlongTo(area, isVertical);
    if (state.pressed == edge) painter.Fill(from, to, inset, colors.thumbActive);
    const int middle = (from + to) / 2;
    painter.Fill(middle - 1, middle + 1, 3, colors.handle);
  }
  const Rect center = layout.PartRect(ZoomBarPart::Center);
  const int centerFrom = AlongFrom(center, isVertical), centerTo = AlongTo(center, isVertical);
  const int gripLength = (kGripLines - 1) * kGripSpacing + 1;
  if (!state.drawsCenterThumb || centerTo - centerFrom < gripLength + 2 * kGripSpacing) return;
  const int gripFrom = (centerFrom + centerTo - gripLength) / 2;
  for (int line = 0; line < kGripLines; ++line) {
    painter.Fill(gripFrom + line * kGripSpacing, gripFrom + line * kGripSpacing + 1, 3, colors.handle);
  }
}

} // namespace kromediaui
