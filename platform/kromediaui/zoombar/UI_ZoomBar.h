#pragma once

#include <kromediaui/Export.h>
#include <kromediaui/Forward.h>
#include <kromediaui/zoombar/ZoomBarLayout.h>
#include <kromediaui/zoombar/ZoomBarRange.h>

#include <kroui/drawbot/DrawTypes.h>
#include <kroui/ui/UI_Node.h>

#include <cstdint>
#include <functional>
#include <memory>

namespace kromediaui {

/// The colours a zoom bar paints with; its owner takes them from the theme.
struct ZoomBarColors {
  kroui::drawbot::ColorRGBA track{0.13f, 0.13f, 0.13f, 1.f};
  kroui::drawbot::ColorRGBA thumb{0.36f, 0.36f, 0.36f, 1.f};
  /// The part held down.
  kroui::drawbot::ColorRGBA thumbActive{0.50f, 0.50f, 0.50f, 1.f};
  /// The edge handles and the centre grip.
  kroui::drawbot::ColorRGBA handle{0.62f, 0.62f, 0.62f, 1.f};

  bool operator==(const ZoomBarColors&) const noexcept = default;
};

/// A scroll bar whose thumb has two edges: the range between them is the part
/// of the whole that a view shows, as fractions from 0 to 1, and their
/// distance is the zoom ("scroom": scroll and zoom in one bar).
///
///   [ page- |< start |   center   | end >| page+ ]
///
/// What the user does:
/// - press an edge and drag: that edge moves (with Alt, both edges move,
///   mirrored about the centre); press the centre and drag: the range moves;
/// - press the track: the range pages towards the pointer, repeating while held;
/// - wheel: pans an eighth of the range a notch; Ctrl+wheel: zooms about the
///   pointer, a fifth a notch (away from the user zooms in);
/// - double-click: fits the whole (0 to 1), and again back to the range before.
///
/// Every change the user makes is first offered to the range-will-change
/// function, which answers the range the bar takes (a time bar clamps it
/// with its zoom limits); paging goes to the page function instead when one
/// is set. The range stays ordered, inside [0, 1], and never narrower than
/// the smallest allowable edge difference; a range that is not finite is
/// refused and the bar keeps its range.
///
/// A minimised bar shows a thin strip against its far edge (the bottom, or
/// the right) and grows to its full height while the pointer is over it.
/// It paints with the colours given (SetColors); UI thread only.
class KROMEDIAUI_API UI_ZoomBar : public kroui::ui::UI_Node {
public:
  enum class Orientation : std::uint8_t { Horizontal, Vertical };
  using Edge = ZoomBarRange::Edge;
  /// The bar, its range now (start, end) and the proposed one; answers the range the bar takes.
  using RangeWillChangeFunction =
      std::function<ZoomBarRange(UI_ZoomBar& bar, double oldStart, double oldEnd, double newStart, double newEnd)>;
  /// The bar and a number of pages (negative towards the start); answers the range the bar takes.
  using PageFunction = std::function<ZoomBarRange(UI_ZoomBar& bar, int pages)>;
  /// After the bar took a new range from the user: `isFinal` is false while a drag goes on.
  using RangeChangedFunction = std::function<void(UI_ZoomBar& bar, bool isFinal)>;

  static constexpr float kDefaultSmallestAllowableEdgeDifference = 0.0001f;
  /// The thickness of a minimised bar's strip, in pixels.
  static constexpr int kMinimizedHeight = 3;
  static constexpr int kHeightAnimationMs = 150;

  explicit UI_ZoomBar(Orientation orientation = Orientation::Horizontal);

  /// The thickness of a zoom bar, in pixels.
  static int GetDefaultSize();
  Orientation GetOrientation() const noexcept;

  // Range.
  /// Sets the range as code does: made legal, without calling any function.
  void SetValueRange(double start, double end);
  void GetValueRange(double& start, double& end) const;
  ZoomBarRange GetValueRange() const;
  /// The narrowest span the thumb shows at the bar's length now; shorter
  /// ranges get a thumb of the minimum length.
  double GetMinimumValueRange() const;
  /// The narrowest range the bar allows; the range is widened at once if needed.
  void SetSmallestAllowableEdgeDifference(float difference);
  float SmallestAllowableEdgeDifference() const;
  /// Makes the range legal again (ordered, inside [0, 1], wide enough).
  void EnforceLegalValues();

  // What the user does, for code too: each is offered to the functions and
  // then tells the range-changed function. True when the range changed.
  /// Puts one edge at `value`.
  bool DoDragEdge(Edge edge, double value);
  /// Puts one edge at `value` and the other opposite it about the centre.
  bool DoDragEdgeSymmetric(Edge edge, double value);
  /// Puts the range's start at `start`, keeping its span.
  bool DoDragRange(double start);
  /// Moves by whole ranges: negative towards the start.
  bool DoPage(int pages);
  /// A wheel event (position in the bar's coordinates): pans, or with Ctrl zooms.
  bool HandleMouseWheelEvent(const kroui::ui::PointerEvent& event);
  /// Fits the whole, or goes back to the range before the last fit.
  bool ToggleFitAll();

  void SetRangeWillChangeFunction(RangeWillChangeFunction function);
  void SetRangeWillChangeFunction(PageFunction function);
  void SetRangeChangedFunction(RangeChangedFunction function);

  // Look.
  void SetColors(const ZoomBarColors& colors);
  const ZoomBarColors& GetColors() const;
  /// Grip lines in the middle of the thumb (on by default).
  void DrawCenterThumb(bool draw);
  bool IsDrawingCenterThumb() const;
  /// Whether the bar rests as a thin strip; the change is animated.
  void SetIsMinimized(bool minimized);
  bool GetIsMinimized() const;
  /// The thickness shown when not minimised (GetDefaultSize unless set).
  void SetScroomBarHeight(int height);
  int GetScroomBarHeight() const;
  /// The thickness painted now, while the height animates.
  float GetAnimatedScroomBarHeight() const;
  /// Minimises the bar at once, without animating.
  void SetScroomBarToMinimizedMode();
  /// Animates the thickness towards what the bar should show now: full
  /// unless it is minimised and neither hovered nor held.
  void AdjustAnimatedScroomBarHeight();

  // Pressing.
  /// Set while a press in the track pages; clearing it stops the repeat.
  void SetUserClickedInPageUpPageDownRegion(bool clicked);
  bool GetUserClickedInPageUpPageDownRegion() const;
  /// Whether an edge or the centre is being dragged.
  bool IsDragging() const;
  ZoomBarLayout Layout() const;

protected:
  ~UI_ZoomBar() override;

  // UI_ZoomBarPaint.cpp.
  void PaintSelf(kroui::drawbot::Drawbot& drawbot) override;

  // UI_ZoomBarInput.cpp.
  bool MouseDownSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseMoveSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseUpSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseMultiClickSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseWheelSelf(const kroui::ui::PointerEvent& event) override;
  void MouseEnterSelf(const kroui::ui::PointerEvent& event) override;
  void MouseLeaveSelf() override;
  bool TimerNotifySelf(unsigned timerID) override;

private:
  /// Offers `proposed` to the range-will-change function and takes its answer.
  bool Propose(const ZoomBarRange& proposed);
  /// Takes a range already decided on; tells the range-changed function.
  bool Take(const ZoomBarRange& range);
  void PressPart(ZoomBarPart part, const kroui::ui::PointerEvent& event);
  void DragTo(const kroui::ui::PointerEvent& event);
  void PageTowardsPointer();
  bool LostPress();
  void EndPress();

  std::unique_ptr<UI_ZoomBarImpl> mImpl;
};

} // namespace kromediaui
