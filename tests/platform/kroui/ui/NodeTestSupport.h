#pragma once

#include <kroui/ui/EventLoop.h>
#include <kroui/ui/UI_Container.h>
#include <kroui/ui/UI_Window.h>

#include <HeadlessFixture.h>

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace kroui::testing {

/// A container that writes each hook it receives into a shared log, as
/// "name.Hook" (pointer hooks add the position in the node's coordinates:
/// "b.Down@3,4"), and consumes what the test tells it to.
class LogNode : public ui::UI_Container {
public:
  using Action = ui::PointerEvent::Action;

  LogNode(std::string name, std::vector<std::string>* log) : mName(std::move(name)), mLog(log) {}

  std::set<Action> consumes;
  bool consumesKeys = false;
  bool wantsFocus = true;
  bool allowsFocusToAdvance = true;
  bool showsToolTipForChildren = false;
  std::string dynamicToolTip;
  int dragAnswer = ui::kDropEffect_None;
  bool takesDrop = false;
  bool setsCursor = false;
  drawbot::ColorRGBAOptional background;
  int paints = 0;
  ui::PointerEvent lastPointer;
  std::function<void()> onLayout;
  std::function<void()> onTimer;

  const std::string& Name() const { return mName; }

protected:
  void Log(const std::string& entry) { mLog->push_back(mName + "." + entry); }
  bool Pointer(const char* hook, const ui::PointerEvent& event) {
    lastPointer = event;
    Log(std::string(hook) + "@" + std::to_string(event.position.x) + "," + std::to_string(event.position.y));
    return consumes.contains(event.action);
  }

  void PaintSelf(drawbot::Drawbot&) override { ++paints; }
  drawbot::ColorRGBAOptional GetBackgroundColorSelf() const override { return background; }
  bool MouseDownSelf(const ui::PointerEvent& e) override { return Pointer("Down", e); }
  bool MouseUpSelf(const ui::PointerEvent& e) override { return Pointer("Up", e); }
  bool MouseMultiClickSelf(const ui::PointerEvent& e) override { return Pointer("MultiClick", e); }
  bool MouseMoveSelf(const ui::PointerEvent& e) override { return Pointer("Move", e); }
  void MouseEnterSelf(const ui::PointerEvent&) override { Log("Enter"); }
  void MouseLeaveSelf() override { Log("Leave"); }
  bool MouseWheelSelf(const ui::PointerEvent& e) override { return Pointer("Wheel", e); }
  bool MouseMagnifySelf(const ui::PointerEvent& e) override { return Pointer("Magnify", e); }
  bool MouseRotateSelf(const ui::PointerEvent& e) override { return Pointer("Rotate", e); }
  bool MousePanSelf(const ui::PointerEvent& e) override { return Pointer("Pan", e); }
  bool MouseGestureEndSelf(const ui::PointerEvent& e) override { return Pointer("GestureEnd", e); }
  bool SetCursorSelf(const ui::PointerEvent&) override { return setsCursor; }
  bool KeyDownSelf(const ui::KeyboardEvent&) override { Log("KeyDown"); return consumesKeys; }
  bool KeyUpSelf(const ui::KeyboardEvent&) override { Log("KeyUp"); return consumesKeys; }
  bool CharacterInputSelf(const ui::KeyboardEvent& e) override {
    Log("Char:" + std::string(1, static_cast<char>(e.GetCharacter())));
    return consumesKeys;
  }
  void SetFocusSelf() override { Log("SetFocus"); }
  void KillFocusSelf() override { Log("KillFocus"); }
  bool WantsFocusSelf() const override { return wantsFocus; }
  bool AllowFocusToAdvanceFromChildrenSelf() const override { return allowsFocusToAdvance; }
  bool DisplaysToolTipForChildSelf(const ui::UI_Node*) const override { return showsToolTipForChildren; }
  std::string GetToolTipTextSelf() const override { return dynamicToolTip; }
  bool TimerNotifySelf(unsigned id) override {
    Log("Timer" + std::to_string(id));
    if (onTimer) onTimer();
    return true;
  }
  int DragEnterSelf(ui::DataObject&, ui::ModifierKeys, ui::Point) override { Log("DragEnter"); return dragAnswer; }
  int DragOverSelf(ui::DataObject&, ui::ModifierKeys, ui::Point) override { Log("DragOver"); return dragAnswer; }
  void DragLeaveSelf() override { Log("DragLeave"); }
  bool DropSelf(ui::DataObject& data, int, ui::Point) override { Log("Drop:" + data.GetText()); return takesDrop; }
  void VisibilityChangedSelf() override { Log("Visibility"); }
  void SetBoundsSelf(const ui::Rect&) override { Log("Bounds"); }
  void LayoutSelf() override {
    Log("Layout");
    if (onLayout) onLayout();
  }
  void PrepareForFocusFromAdvanceSelf() override { Log("Prepare"); }

private:
  std::string mName;
  std::vector<std::string>* mLog;
};

using LogNodePtr = krocore::IntrusivePtr<LogNode>;

/// A headless backend, windows made on it (destroyed before the backend
/// goes), a log for LogNodes, and a pump that runs what the event loop has due.
template <typename Base = ::testing::Test>
class WindowFixture : public HeadlessFixture<Base> {
protected:
  void TearDown() override {
    mWindows.clear();
    HeadlessFixture<Base>::TearDown();
  }

  /// A shown, active window with its client area at `screen`.
  ui::UI_Window& MakeWindow(ui::Rect screen = {100, 100, 300, 200},
                            backend::WindowStyle style = backend::kWindowStyle_Normal) {
    backend::WindowDescription description;
    description.title = "test";
    description.bounds = screen;
    description.style = style;
    mWindows.push_back(std::make_unique<ui::UI_Window>(description));
    mWindows.back()->Show();
    Pump();
    return *mWindows.back();
  }

  LogNodePtr Add(ui::UI_Container& parent, const std::string& name, ui::Rect bounds) {
    auto node = krocore::MakeIntrusive<LogNode>(name, &log);
    parent.InsertChild(node, bounds);
    return node;
  }

  void Pump() { ui::EventLoop::Instance().ProcessPending(); }

  /// The log since the last call.
  std::vector<std::string> TakeLog() { return std::exchange(log, {}); }

  std::vector<std::string> log;
  std::vector<std::unique_ptr<ui::UI_Window>> mWindows;
};

} // namespace kroui::testing
