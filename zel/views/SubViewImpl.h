#pragma once

// Private: the platform node behind a SubView.

#include <zel/views/DC.h>
#include <zel/views/SubView.h>

#include <kroui/ui/UI_Container.h>

#include <memory>

namespace ZEL {

/// The container node of one SubView. It turns platform events into calls of
/// the view's hooks, in the view's coordinates, with the modifiers as
/// KeyModifiers. It knows its view only weakly: once the view is gone (or is
/// being destroyed) the node falls back to the platform's defaults.
class SubViewImpl final : public kroui::ui::UI_Container {
public:
  explicit SubViewImpl(std::weak_ptr<SubView> view);

  std::shared_ptr<SubView> GetView() const { return mView.lock(); }
  /// The drawbot of the paint pass under way in this node's hooks, or null.
  kroui::drawbot::Drawbot* GetPaintingDrawbot() const noexcept { return mPainting; }
  /// The view's double buffer, remade when the view's size changed.
  DC& GetOffscreen();

protected:
  ~SubViewImpl() override;

  // Painting.
  void PaintSelf(kroui::drawbot::Drawbot& drawbot) override;
  void AddendumPaintSelf(kroui::drawbot::Drawbot& drawbot) override;
  kroui::drawbot::ColorRGBAOptional GetBackgroundColorSelf() const override;

  // Pointer (SubViewImplInput.cpp).
  bool HitTestSelf(kroui::ui::Point local) const override;
  bool IsPointerEventHandled(const kroui::ui::PointerEvent& event) const override;
  bool MouseDownSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseUpSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseMultiClickSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseMoveSelf(const kroui::ui::PointerEvent& event) override;
  void MouseLeaveSelf() override;
  bool SetCursorSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseWheelSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseMagnifySelf(const kroui::ui::PointerEvent& event) override;
  bool MouseRotateSelf(const kroui::ui::PointerEvent& event) override;
  bool MousePanSelf(const kroui::ui::PointerEvent& event) override;
  bool MouseGestureEndSelf(const kroui::ui::PointerEvent& event) override;

  // Keyboard and focus (SubViewImplInput.cpp).
  bool KeyDownSelf(const kroui::ui::KeyboardEvent& event) override;
  bool KeyUpSelf(const kroui::ui::KeyboardEvent& event) override;
  bool CharacterInputSelf(const kroui::ui::KeyboardEvent& event) override;
  void SetFocusSelf() override;
  void KillFocusSelf() override;
  bool WantsFocusSelf() const override;
  bool AllowFocusToAdvanceFromChildrenSelf() const override;

  // Drag and drop, timers, tooltips, notifications.
  int DragEnterSelf(kroui::ui::DataObject& data, kroui::ui::ModifierKeys modifiers, kroui::ui::Point local) override;
  int DragOverSelf(kroui::ui::DataObject& data, kroui::ui::ModifierKeys modifiers, kroui::ui::Point local) override;
  void DragLeaveSelf() override;
  bool DropSelf(kroui::ui::DataObject& data, int effect, kroui::ui::Point local) override;
  bool TimerNotifySelf(unsigned timerID) override;
  std::string GetToolTipTextSelf() const override;
  bool DisplaysToolTipForChildSelf(const kroui::ui::UI_Node* child) const override;
  void SetBoundsSelf(const kroui::ui::Rect& bounds) override;
  void VisibilityChangedSelf() override;

private:
  using Action = kroui::ui::PointerEvent::Action;

  struct Offscreen {
    DC dc;
    kroui::ui::Extent extent;
  };

  template <typename Hook>
  void Paint(kroui::drawbot::Drawbot& drawbot, Hook&& hook);
  void EndDrag();

  std::weak_ptr<SubView> mView;
  std::unique_ptr<Offscreen> mOffscreen;
  kroui::drawbot::Drawbot* mPainting = nullptr;
  /// The gesture this view consumed last, reported when the gesture ends.
  Action mGesture = Action::None;
  /// Whether a drag over this view put the view's drag command context in force.
  bool mHasDragContext = false;
};

} // namespace ZEL
