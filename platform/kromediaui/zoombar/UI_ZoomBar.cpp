// UI_ZoomBar: the range, the functions it is offered to, and the bar's height.

#include <kromediaui/zoombar/UI_ZoomBar.h>

#include <kromediaui/zoombar/UI_ZoomBarImpl.h>

#include <krocore/debug/Assert.h>
#include <kroui/ui/UI_Animator.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace kromediaui {
namespace {

constexpr int kDefaultSize = 12;
constexpr unsigned kHeightAnimation = 1;

} // namespace

UI_ZoomBar::UI_ZoomBar(Orientation orientation) : mImpl(std::make_unique<UI_ZoomBarImpl>(orientation)) {}

UI_ZoomBar::~UI_ZoomBar() = default;

int UI_ZoomBar::GetDefaultSize() { return kDefaultSize; }

UI_ZoomBar::Orientation UI_ZoomBar::GetOrientation() const noexcept { return mImpl->orientation; }

ZoomBarLayout UI_ZoomBar::Layout() const {
  const int height = static_cast<int>(std::lround(mImpl->animatedHeight));
  return ZoomBarLayout(GetBounds().Extent(), mImpl->IsVertical(), mImpl->range, height);
}

// Range.

void UI_ZoomBar::SetValueRange(double start, double end) {
  const ZoomBarRange range{start, end};
  if (!KROCORE_ASSERT(range.IsFinite(), "UI_ZoomBar: the value range is not finite")) return;
  const ZoomBarRange legal = range.Legal(mImpl->MinimumSpan());
  if (legal == mImpl->range) return;
  mImpl->range = legal;
  Invalidate();
}

void UI_ZoomBar::GetValueRange(double& start, double& end) const {
  start = mImpl->range.start;
  end = mImpl->range.end;
}

ZoomBarRange UI_ZoomBar::GetValueRange() const { return mImpl->range; }

double UI_ZoomBar::GetMinimumValueRange() const { return Layout().MinimumShownSpan(); }

void UI_ZoomBar::SetSmallestAllowableEdgeDifference(float difference) {
  if (!KROCORE_ASSERT(std::isfinite(difference), "UI_ZoomBar: the smallest edge difference is not finite")) return;
  mImpl->smallestEdgeDifference = std::clamp(difference, 0.f, 1.f);
  EnforceLegalValues();
}

float UI_ZoomBar::SmallestAllowableEdgeDifference() const { return mImpl->smallestEdgeDifference; }

void UI_ZoomBar::EnforceLegalValues() { SetValueRange(mImpl->range.start, mImpl->range.end); }

bool UI_ZoomBar::Propose(const ZoomBarRange& proposed) {
  const double minimum = mImpl->MinimumSpan();
  const ZoomBarRange before = mImpl->range;
  ZoomBarRange answer = proposed.Legal(minimum);
  if (mImpl->rangeWillChange) {
    // Copied: the function may replace itself while it runs.
    const RangeWillChangeFunction function = mImpl->rangeWillChange;
    answer = function(*this, before.start, before.end, answer.start, answer.end);
  }
  return Take(answer);
}

bool UI_ZoomBar::Take(const ZoomBarRange& range) {
  if (!range.IsFinite()) return false; // a function's slip keeps the range it had
  const ZoomBarRange legal = range.Legal(mImpl->MinimumSpan());
  if (legal == mImpl->range) return false;
  mImpl->range = legal;
  Invalidate();
  if (mImpl->rangeChanged) {
    const RangeChangedFunction function = mImpl->rangeChanged;
    function(*this, !IsDragging());
  }
  return true;
}

// What the user does.

bool UI_ZoomBar::DoDragEdge(Edge edge, double value) {
  if (!std::isfinite(value)) return false;
  return Propose(mImpl->range.WithEdgeAt(edge, value, mImpl->MinimumSpan()));
}

bool UI_ZoomBar::DoDragEdgeSymmetric(Edge edge, double value) {
  if (!std::isfinite(value)) return false;
  return Propose(mImpl->range.SymmetricWithEdgeAt(edge, value, mImpl->MinimumSpan()));
}

bool UI_ZoomBar::DoDragRange(double start) {
  if (!std::isfinite(start)) return false;
  return Propose(mImpl->range.MovedTo(start, mImpl->MinimumSpan()));
}

bool UI_ZoomBar::DoPage(int pages) {
  if (pages == 0) return false;
  if (mImpl->page) {
    const PageFunction function = mImpl->page;
    return Take(function(*this, pages));
  }
  const ZoomBarRange& range = mImpl->range;
  return Propose(range.MovedTo(range.start + pages * range.Span(), mImpl->MinimumSpan()));
}

bool UI_ZoomBar::ToggleFitAll() {
  const ZoomBarRange whole{0.0, 1.0};
  if (!mImpl->range.IsWhole()) {
    const ZoomBarRange before = mImpl->range;
    if (!Propose(whole)) return false;
    mImpl->rangeBeforeFit = before;
    return true;
  }
  if (!mImpl->rangeBeforeFit) return false;
  return Propose(*std::exchange(mImpl->rangeBeforeFit, std::nullopt));
}

void UI_ZoomBar::SetRangeWillChangeFunction(RangeWillChangeFunction function) {
  mImpl->rangeWillChange = std::move(function);
}

void UI_ZoomBar::SetRangeWillChangeFunction(PageFunction function) { mImpl->page = std::move(function); }

void UI_ZoomBar::SetRangeChangedFunction(RangeChangedFunction function) { mImpl->rangeChanged = std::move(function); }

// Look.

void UI_ZoomBar::SetColors(const ZoomBarColors& colors) {
  if (colors == mImpl->colors) return;
  mImpl->colors = colors;
  Invalidate();
}

const ZoomBarColors& UI_ZoomBar::GetColors() const { return mImpl->colors; }

void UI_ZoomBar::DrawCenterThumb(bool draw) {
  if (draw == mImpl->drawsCenterThumb) return;
  mImpl->drawsCenterThumb = draw;
  Invalidate();
}

bool UI_ZoomBar::IsDrawingCenterThumb() const { return mImpl->drawsCenterThumb; }

// Height.

void UI_ZoomBar::SetIsMinimized(bool minimized) {
  mImpl->isMinimized = minimized;
  AdjustAnimatedScroomBarHeight();
}

bool UI_ZoomBar::GetIsMinimized() const { return mImpl->isMinimized; }

void UI_ZoomBar::SetScroomBarHeight(int height) {
  mImpl->fullHeight = std::max(kMinimizedHeight, height);
  if (mImpl->isMinimized && !mImpl->isHovered && mImpl->pressed == ZoomBarPart::None) return;
  Animator()->Stop(kHeightAnimation);
  mImpl->animatedHeight = static_cast<float>(mImpl->fullHeight);
  Invalidate();
}

int UI_ZoomBar::GetScroomBarHeight() const { return mImpl->fullHeight; }

float UI_ZoomBar::GetAnimatedScroomBarHeight() const { return mImpl->animatedHeight; }

void UI_ZoomBar::SetScroomBarToMinimizedMode() {
  mImpl->isMinimized = true;
  Animator()->Stop(kHeightAnimation);
  mImpl->animatedHeight = static_cast<float>(kMinimizedHeight);
  Invalidate();
}

void UI_ZoomBar::AdjustAnimatedScroomBarHeight() {
  const bool isOpen = !mImpl->isMinimized || mImpl->isHovered || mImpl->pressed != ZoomBarPart::None;
  const float target = static_cast<float>(isOpen ? mImpl->fullHeight : kMinimizedHeight);
  if (target == mImpl->animatedHeight) {
    Animator()->Stop(kHeightAnimation);
    return;
  }
  // The animator belongs to this node and goes with it: the step may hold it plainly.
  Animator()->Animate(kHeightAnimation, mImpl->animatedHeight, target, kHeightAnimationMs,
                      [this](float height) {
                        mImpl->animatedHeight = height;
                        Invalidate();
                      },
                      &kroui::ui::UI_Animator::EaseOut);
}

} // namespace kromediaui
