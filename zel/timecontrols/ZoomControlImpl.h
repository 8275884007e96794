#pragma once

// Private: the node of a ZoomControl.

#include <zel/timecontrols/ZoomPositionNode.h>

#include <cstdint>
#include <string_view>

namespace ZEL {

/// Lays out and paints the two buttons and the position, and turns a click
/// on a button into a position step, a broadcast and a posted command.
class ZoomControlImpl final : public ZoomPositionNode {
public:
  enum class Button : std::uint8_t { None, ZoomOut, ZoomIn };
  using Point = kroui::ui::Point;
  using Rect = kroui::ui::Rect;

  ZoomControlImpl(unsigned int cookie, bool showsPosition);

  /// Named in the reports of a ZoomControl without its node.
  static constexpr std::string_view kReportedName = "ZoomControl";

  void SetCommandIDs(int zoomInCommandID, int zoomOutCommandID);

  /// Zoom out at the left, zoom in at the right, both square (or halves of a narrow control).
  Rect ButtonRect(Button button) const;
  /// Between the buttons; empty without the position shown.
  Rect PositionRect() const;
  Button ButtonAt(Point point) const;
  /// A button does nothing at its end of the levels.
  bool IsButtonEnabled(Button button) const;

protected:
  ~ZoomControlImpl() override;

  void PaintSelf(kroui::drawbot::Drawbot& drawbot) override;
  bool MouseDownSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseMoveSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseUpSelf(const kroui::ui::PointerEvent& event) override;

private:
  void Click(Button button);
  int ButtonLength() const;

  bool mShowsPosition;
  int mZoomInCommandID = 0;
  int mZoomOutCommandID = 0;
  /// The button held down, and whether the pointer is still on it.
  Button mPressed = Button::None;
  bool mIsPressedInside = false;
};

} // namespace ZEL
