#pragma once

// Private: the default bodies of the hooks that SubView and PlatformView both
// declare (each in its own slot order), written once so that the two hook
// sets cannot drift apart. Nothing is consumed: every event goes on to the
// parent, and a drag is refused.

#include <kroui/base/DataObject.h>
#include <kroui/base/PointerEvent.h>

#define ZEL_DEFINE_SHARED_VIEW_HOOK_DEFAULTS(View)                                                          \
  void View::FinishCreateSelf(const Rect&) {}                                                               \
  void View::SetBoundsSelf(const Rect&) {}                                                                  \
  void View::SetFocusSelf() {}                                                                              \
  void View::KillFocusSelf() {}                                                                             \
  void View::PaintSelf(DC&) {}                                                                              \
  void View::LeftButtonDownSelf(const Point&, KeyModifiers) {}                                              \
  void View::LeftButtonUpSelf(const Point&, KeyModifiers) {}                                                \
  void View::LeftButtonMultiClickSelf(const Point&, KeyModifiers, unsigned) {}                              \
  void View::RightButtonDownSelf(const Point&, KeyModifiers) {}                                             \
  void View::RightButtonUpSelf(const Point&, KeyModifiers) {}                                               \
  void View::RightButtonDoubleClickSelf(const Point&, KeyModifiers) {}                                      \
  bool View::SetCursorSelf(const Point&, KeyModifiers) { return false; }                                    \
  void View::MouseMoveSelf(const Point&, KeyModifiers) {}                                                   \
  void View::MouseLeaveSelf() {}                                                                            \
  bool View::MouseMagnifySelf(const Point&, const float&, KeyModifiers) { return false; }                   \
  bool View::MouseRotateSelf(const Point&, const float&, KeyModifiers) { return false; }                    \
  bool View::MousePanSelf(const Point&, const Point&) { return false; }                                     \
  void View::MouseGestureEndSelf(const kroui::ui::PointerEvent::Action&) {}                                 \
  UTF8String View::GetToolTipTextSelf() const { return {}; }                                                \
  int View::DragEnterSelf(kroui::ui::DataObject&, KeyModifiers, const Point&) {                             \
    return kroui::ui::kDropEffect_None;                                                                     \
  }                                                                                                         \
  int View::DragOverSelf(kroui::ui::DataObject&, KeyModifiers, const Point&) {                              \
    return kroui::ui::kDropEffect_None;                                                                     \
  }                                                                                                         \
  void View::DragLeaveSelf() {}                                                                             \
  bool View::DropSelf(kroui::ui::DataObject&, int, const Point&) { return false; }
