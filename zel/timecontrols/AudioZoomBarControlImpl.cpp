#include <zel/timecontrols/AudioZoomBarControlImpl.h>

#include <zel/appearance/ThemeChangedMessage.h>
#include <zel/timecontrols/AudioZoomBarControl.h>
#include <zel/timecontrols/ZoomBarTheme.h>

#include <algorithm>
#include <cmath>

namespace ZEL {
namespace {

using kromediaui::UI_ZoomBar;
using kromediaui::ZoomBarRange;

float Fraction(float value) { return std::isfinite(value) ? std::clamp(value, 0.f, 1.f) : 0.f; }

} // namespace

AudioZoomBarControlImpl::AudioZoomBarControlImpl(unsigned int cookie)
    : mCookie(cookie),
      mZoomIn(AudioZoomBarControl::kDefaultZoomInValue),
      mZoomOut(AudioZoomBarControl::kDefaultZoomOutValue),
      mBar(krocore::MakeIntrusive<UI_ZoomBar>(UI_ZoomBar::Orientation::Vertical)) {
  mBar->SetSmallestAllowableEdgeDifference(mZoomIn);
  mBar->SetColors(GetZoomBarThemeColors());
  // The bar belongs to this node: the functions may hold it plainly.
  mBar->SetRangeWillChangeFunction([this](UI_ZoomBar&, double oldStart, double oldEnd, double newStart, double newEnd) {
    return Limited({oldStart, oldEnd}, {newStart, newEnd});
  });
  mBar->SetRangeChangedFunction([this](UI_ZoomBar&, bool isFinal) { Broadcast(isFinal); });
  InsertChild(mBar, {});
  SubscribeTo(kStation_ThemeChanged);
}

AudioZoomBarControlImpl::~AudioZoomBarControlImpl() = default;

void AudioZoomBarControlImpl::FitBar() { mBar->SetBounds(GetLocalBounds()); }

void AudioZoomBarControlImpl::SetBoundsSelf(const kroui::ui::Rect&) { FitBar(); }

void AudioZoomBarControlImpl::ListenToMessage(const krocore::messaging::Message& message) {
  if (message.Is<ThemeChangedMessage>()) mBar->SetColors(GetZoomBarThemeColors());
}

// The window: amplitude min and max are the bar's end and start, counted from the top.

AudioZoomRange AudioZoomBarControlImpl::GetWindow() const {
  const ZoomBarRange range = mBar->GetValueRange();
  return {static_cast<float>(1.0 - range.end), static_cast<float>(1.0 - range.start)};
}

void AudioZoomBarControlImpl::SetWindowEnd(bool isMinimum, float value) {
  if (!std::isfinite(value)) return;
  const ZoomBarRange before = mBar->GetValueRange();
  const auto edge = isMinimum ? ZoomBarRange::Edge::End : ZoomBarRange::Edge::Start;
  const ZoomBarRange moved = before.WithEdgeAt(edge, 1.0 - value, mZoomIn);
  const ZoomBarRange limited = Limited(before, moved);
  mBar->SetValueRange(limited.start, limited.end);
}

ZoomBarRange AudioZoomBarControlImpl::Limited(const ZoomBarRange& before, const ZoomBarRange& proposed) const {
  const double span = std::clamp(proposed.Span(), static_cast<double>(mZoomIn), static_cast<double>(mZoomOut));
  if (proposed.start == before.start) return ZoomBarRange{proposed.start, proposed.start + span}.Legal(mZoomIn);
  if (proposed.end == before.end) return ZoomBarRange{proposed.end - span, proposed.end}.Legal(mZoomIn);
  const double center = proposed.Center();
  return ZoomBarRange{center - span / 2.0, center + span / 2.0}.Legal(mZoomIn);
}

// Limits.

void AudioZoomBarControlImpl::SetZoomInValue(float value) {
  mZoomIn = Fraction(value);
  mZoomOut = std::max(mZoomOut, mZoomIn);
  ApplyLimits();
}

void AudioZoomBarControlImpl::SetZoomOutValue(float value) {
  mZoomOut = Fraction(value);
  mZoomIn = std::min(mZoomIn, mZoomOut);
  ApplyLimits();
}

void AudioZoomBarControlImpl::ApplyLimits() {
  mBar->SetSmallestAllowableEdgeDifference(mZoomIn);
  const ZoomBarRange range = mBar->GetValueRange();
  const ZoomBarRange limited = Limited({-1.0, -1.0}, range); // neither edge held: about the centre
  mBar->SetValueRange(limited.start, limited.end);
}

void AudioZoomBarControlImpl::Broadcast(bool isFinal) const {
  if (isFinal) mStation.Broadcast(AudioZoomChangedMessage(GetWindow(), mCookie));
  else mStation.Broadcast(AudioZoomChangingMessage(GetWindow(), mCookie));
}

} // namespace ZEL
