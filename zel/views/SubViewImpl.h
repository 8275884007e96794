#pragma once

// Private: the platform node behind a SubView.

#include <zel/views/DC.h>
#include <zel/views/SubView.h>
#include <zel/views/ViewNodeImpl.h>

#include <kroui/ui/UI_Container.h>

#include <memory>
#include <string_view>

namespace ZEL {

/// The container node of one SubView: the shared view node (pointer, focus,
/// drag and drop), and what only owner-drawn views have: painting with the
/// view's DC and double buffer, keys, the focus chain, timers, hit testing.
class SubViewImpl final : public detail::ViewNode<SubView, kroui::ui::UI_Container> {
public:
  explicit SubViewImpl(std::weak_ptr<SubView> view);

  /// Named in the reports of a SubView without its node.
  static constexpr std::string_view kReportedName = "SubViewImpl";

  /// The drawbot of the paint pass under way in this node's hooks, or null.
  kroui::drawbot::Drawbot* GetPaintingDrawbot() const noexcept { return mPainting; }
  /// The view's double buffer, remade when the view's size changed.
  DC& GetOffscreen();
  /// The view's drag source, made on first use.
  std::shared_ptr<kroui::ui::DataSource> GetDataSource();
  void FinishDragAndDrop();

protected:
  ~SubViewImpl() override;

  // Painting.
  void PaintSelf(kroui::drawbot::Drawbot& drawbot) override;
  void AddendumPaintSelf(kroui::drawbot::Drawbot& drawbot) override;
  kroui::drawbot::ColorRGBAOptional GetBackgroundColorSelf() const override;

  // Pointer, keyboard and focus chain (SubViewImplInput.cpp).
  bool HitTestSelf(kroui::ui::Point local) const override;
  bool IsPointerEventHandled(const kroui::ui::PointerEvent& event) const override;
  bool KeyDownSelf(const kroui::ui::KeyboardEvent& event) override;
  bool KeyUpSelf(const kroui::ui::KeyboardEvent& event) override;
  bool CharacterInputSelf(const kroui::ui::KeyboardEvent& event) override;
  bool WantsFocusSelf() const override;
  bool AllowFocusToAdvanceFromChildrenSelf() const override;

  // A drag over the view puts its drag command context in force.
  int DragEnterSelf(kroui::ui::DataObject& data, kroui::ui::ModifierKeys modifiers, kroui::ui::Point local) override;
  void DragLeaveSelf() override;
  bool DropSelf(kroui::ui::DataObject& data, int effect, kroui::ui::Point local) override;

  // Timers, tooltips, notifications.
  bool TimerNotifySelf(unsigned timerID) override;
  bool DisplaysToolTipForChildSelf(const kroui::ui::UI_Node* child) const override;
  void VisibilityChangedSelf() override;

private:
  using Base = detail::ViewNode<SubView, kroui::ui::UI_Container>;

  struct Offscreen {
    DC dc;
    kroui::ui::Extent extent;
  };

  template <typename Hook>
  void Paint(kroui::drawbot::Drawbot& drawbot, Hook&& hook);
  void EndDrag();

  std::unique_ptr<Offscreen> mOffscreen;
  std::shared_ptr<kroui::ui::DataSource> mDataSource;
  kroui::drawbot::Drawbot* mPainting = nullptr;
  /// Whether a drag over this view put the view's drag command context in force.
  bool mHasDragContext = false;
};

} // namespace ZEL
