#pragma once

// Private: the layer behind an OverlayView.

#include <zel/views/OverlayView.h>

#include <kroui/Forward.h>
#include <kroui/drawbot/DrawTypes.h>
#include <kroui/os/NativeTypes.h>
#include <kroui/ui/UI_Container.h>

#include <memory>
#include <optional>
#include <string_view>

namespace ZEL {

/// The node that fills the layer and paints the overlay, keying out its colour.
class OverlayNode final : public kroui::ui::UI_Container {
public:
  explicit OverlayNode(std::weak_ptr<OverlayView> view) : mView(std::move(view)) {}
  void SetColorKey(const kroui::drawbot::ColorRGBA& key);

protected:
  ~OverlayNode() override;
  void PaintSelf(kroui::drawbot::Drawbot& drawbot) override;
  /// The layer shows; it does not take the pointer.
  bool HitTestSelf(kroui::ui::Point) const override { return false; }

private:
  std::weak_ptr<OverlayView> mView;
  std::optional<kroui::drawbot::ColorRGBA> mColorKey;
};

/// The layer window, its node, and where it stands over the parent view.
class OverlayViewImpl {
public:
  OverlayViewImpl(std::weak_ptr<OverlayView> view, std::weak_ptr<ViewBase> parent, const ViewBase::Rect& bounds,
                  kroui::ui::UI_Window& owner);
  ~OverlayViewImpl();
  OverlayViewImpl(const OverlayViewImpl&) = delete;
  OverlayViewImpl& operator=(const OverlayViewImpl&) = delete;

  /// Named in the reports of an OverlayView without its layer.
  static constexpr std::string_view kReportedName = "OverlayViewImpl";

  kroui::ui::UI_Window& GetLayer() const noexcept { return *mLayer; }
  OverlayNode& GetNode() const noexcept { return *mNode; }
  const ViewBase::Rect& GetBounds() const noexcept { return mBounds; }
  std::shared_ptr<ViewBase> GetParent() const { return mParent.lock(); }
  void SetBounds(const ViewBase::Rect& bounds);

private:
  /// Where `bounds` of the parent view lie on the screen now.
  ViewBase::Rect ScreenRect(const ViewBase::Rect& bounds) const;
  /// Hands a pointer or drag event that reached the layer to the window below.
  bool PassThrough(const kroui::ui::OS_Event& event) const;

  std::weak_ptr<ViewBase> mParent;
  ViewBase::Rect mBounds;
  HWND mOwner;
  std::unique_ptr<kroui::ui::UI_Window> mLayer;
  krocore::IntrusivePtr<OverlayNode> mNode;
};

} // namespace ZEL
