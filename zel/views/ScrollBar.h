#pragma once

#include <zel/Export.h>
#include <zel/views/ControlView.h>
#include <zel/views/ScrollBarMessages.h>

#include <krocore/utility/ImmutableString.h>

#include <cstdint>

namespace ZEL {

class ScrollBarImpl;

/// A scroll bar: an arrow at each end, a track, and a thumb whose length
/// shows the page against the whole range.
///
///   [<][====|thumb|==============][>]
///    step  page      drag    page  step
///
/// Positions run from the minimum to the maximum less one page. The arrows
/// move by a step, the track by a page (both repeat while held), the thumb
/// follows a drag, the wheel moves three steps a notch, and while focused the
/// arrow keys, Page Up/Down, Home and End move it. Every change the user
/// makes is broadcast on the bar's station (ScrollBarMessages.h): changing
/// messages during a thumb drag, a changed message when a change is complete.
/// Until Create, its operations report "ScrollBar has not been initialized".
class ZEL_API ScrollBar : public ControlView {
public:
  enum class Orientation : std::uint8_t { Horizontal, Vertical };

  explicit ScrollBar(const krocore::FlexWeakPtr<Commander>& superCommander);
  ~ScrollBar() override;

  /// `cookie` is carried by every message of this bar, to tell bars apart.
  bool Create(const std::weak_ptr<ViewBase>& parent, const Rect& bounds, Orientation orientation,
              unsigned int cookie);
  /// The thickness of a scroll bar, in pixels.
  static int GetDefaultSize();

  /// The range from `minimum` to `maximum`, of which `page` shows at once,
  /// and the `step` of an arrow. The position is kept inside the new range.
  void SetScrollParameters(int minimum, int maximum, int page, int step);
  void GetScrollParameters(int& minimum, int& maximum, int& page, int& step) const;
  /// With `notify`, broadcasts a changed message when the position changes.
  void SetScrollBarPosition(int position, bool notify);
  int GetScrollBarPosition() const;
  /// Moves by `delta` as the user would: a change is broadcast.
  void OffsetScrollBarPosition(int delta);
  int GetStep() const;
  /// Whether the range is larger than the page.
  bool IsScrollable() const;
  /// Rounds the bar's outer corners; 0 keeps them square.
  void SetOuterCornersRoundingRadius(float radius);
  /// The station of the bar's messages; empty before Create.
  krocore::utility::ImmutableString GetStationID() const;

protected:
  ControlViewImpl* GetControlViewImpl() const override;

private:
  krocore::IntrusivePtr<ScrollBarImpl> mImpl;
};

} // namespace ZEL
