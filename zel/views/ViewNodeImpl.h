#pragma once

// Private: the node side of a view handle, shared by the nodes of SubView
// and PlatformView. The node turns platform events into calls of the view's
// hooks, in the view's coordinates (the node's own), with the modifiers as
// KeyModifiers:
//
//   platform event -> ViewNode::MouseDownSelf -> view->LeftButtonDownSelf(point, modifiers)
//
// It knows its view only weakly: once the view is gone (or is being
// destroyed), every event falls back to the platform's default answer. The
// button, move and gesture hooks return nothing: the view they reach takes
// the event. A hook set without the middle button (SubView's) leaves that
// button to the parent.

#include <zel/commands/KeySpec.h>

#include <kroui/Forward.h>
#include <kroui/base/PointerEvent.h>
#include <kroui/ui/UI_Node.h>

#include <memory>
#include <string>

namespace ZEL::detail {

/// Whether the view's hook set has MiddleButtonDownSelf and MiddleButtonUpSelf.
template <typename View>
inline constexpr bool kHasMiddleButtonHooks = false;

template <typename View, typename NodeBase>
class ViewNode : public NodeBase {
public:
  explicit ViewNode(std::weak_ptr<View> view);

  std::shared_ptr<View> GetView() const { return mView.lock(); }

protected:
  ~ViewNode() override;

  // Pointer.
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

  // Focus: the focused view receives commands first.
  void SetFocusSelf() override;
  void KillFocusSelf() override;

  // Drag and drop, tooltips, notifications.
  int DragEnterSelf(kroui::ui::DataObject& data, kroui::ui::ModifierKeys modifiers, kroui::ui::Point local) override;
  int DragOverSelf(kroui::ui::DataObject& data, kroui::ui::ModifierKeys modifiers, kroui::ui::Point local) override;
  void DragLeaveSelf() override;
  bool DropSelf(kroui::ui::DataObject& data, int effect, kroui::ui::Point local) override;
  std::string GetToolTipTextSelf() const override;
  void SetBoundsSelf(const kroui::ui::Rect& bounds) override;
  /// A view lays out its children where it hears of its bounds: a requested
  /// layout tells it its bounds again.
  void LayoutSelf() override;
  void PrepareForFocusFromAdvanceSelf() override;

private:
  using Action = kroui::ui::PointerEvent::Action;

  bool Press(const kroui::ui::PointerEvent& event, bool isDown);
  bool Gesture(const kroui::ui::PointerEvent& event, bool consumed);

  std::weak_ptr<View> mView;
  /// The gesture the view consumed last, reported when the gesture ends.
  Action mGesture = Action::None;
};

} // namespace ZEL::detail
