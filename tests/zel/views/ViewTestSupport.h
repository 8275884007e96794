#pragma once

#include <zel/commands/Command.h>
#include <zel/commands/Commander.h>
#include <zel/views/SubView.h>

#include <krocore/threads/MainThreadQueue.h>
#include <kroui/ui/EventLoop.h>
#include <kroui/ui/ToolTipManager.h>
#include <kroui/ui/UI_Window.h>

#include <platform/kroui/HeadlessFixture.h>

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace ZELTest {

/// A SubView that writes each hook it receives into a shared log, as
/// "name.Hook@x,y" (with "+S", "+C", "+A" for Shift, Control and Alt held),
/// and consumes what the test tells it to. It is a commander too: duty
/// changes log "name:on"/"name:off", obeyed commands "name:obey <id>".
class RecordingView : public ZEL::SubView {
public:
  using Strings = std::vector<std::string>;

  RecordingView(std::string name, const ZEL::CommanderWeakPtr& super, Strings& log)
      : SubView(super), mName(std::move(name)), mLog(log) {}

  static std::shared_ptr<RecordingView> Make(std::string name, const ZEL::CommanderWeakPtr& super, Strings& log) {
    return std::make_shared<RecordingView>(std::move(name), super, log);
  }

  bool consumesWheel = false;
  bool consumesKeys = false;
  bool consumesGestures = false;
  bool handlesPointer = true;
  bool wantsFocus = true;
  std::set<int> obeys;
  std::string dragContext;
  int dropAnswer = 0;
  int boundsHeard = 0; // counted, not logged: every placement tells it

  bool ObeyCommand(const ZEL::Command& command) override {
    Log("obey " + std::to_string(command.GetID()), ':');
    return obeys.contains(command.GetID());
  }

  void PrepareForKeyboardFocusFromAdvance(const std::weak_ptr<ZEL::ViewBase>& view) override {
    const auto target = std::dynamic_pointer_cast<RecordingView>(view.lock());
    Log("Prepare:" + (target ? target->mName : std::string("?")));
    SubView::PrepareForKeyboardFocusFromAdvance(view);
  }
  void RequestReflow() override {
    Log("Reflow");
    SubView::RequestReflow();
  }
  std::string GetDragCommandContextName() const override { return dragContext; }
  using SubView::GetOffscreenSelf;

protected:
  void SetBoundsSelf(const Rect&) override { ++boundsHeard; }
  void NowOnDuty() override { Log("on", ':'); }
  void NowOffDuty() override { Log("off", ':'); }

  void FinishCreateSelf(const Rect& bounds) override {
    Log("Created@" + std::to_string(bounds.left) + "," + std::to_string(bounds.top));
  }
  void LeftButtonDownSelf(const Point& p, ZEL::KeyModifiers m) override { Log("LeftDown", p, m); }
  void LeftButtonUpSelf(const Point& p, ZEL::KeyModifiers m) override { Log("LeftUp", p, m); }
  void LeftButtonMultiClickSelf(const Point& p, ZEL::KeyModifiers m, unsigned count) override {
    Log("LeftMulti" + std::to_string(count), p, m);
  }
  void RightButtonDownSelf(const Point& p, ZEL::KeyModifiers m) override { Log("RightDown", p, m); }
  void RightButtonUpSelf(const Point& p, ZEL::KeyModifiers m) override { Log("RightUp", p, m); }
  void RightButtonDoubleClickSelf(const Point& p, ZEL::KeyModifiers m) override { Log("RightDouble", p, m); }
  void MouseMoveSelf(const Point& p, ZEL::KeyModifiers m) override { Log("Move", p, m); }
  bool MouseWheelSelf(const Point& p, ZEL::KeyModifiers m, int dx, int dy, bool) override {
    Log("Wheel" + std::to_string(dx) + "," + std::to_string(dy), p, m);
    return consumesWheel;
  }
  bool MouseMagnifySelf(const Point& p, const float&, ZEL::KeyModifiers m) override {
    Log("Magnify", p, m);
    return consumesGestures;
  }
  void MouseGestureEndSelf(const kroui::ui::PointerEvent::Action& gesture) override {
    Log(gesture == kroui::ui::PointerEvent::Action::Magnify ? "EndMagnify" : "EndOther");
  }
  bool KeyDownSelf(wchar_t c, short key, bool repeat) override { return Key("KeyDown", c, key, repeat); }
  bool KeyUpSelf(wchar_t c, short key, bool repeat) override { return Key("KeyUp", c, key, repeat); }
  bool CharacterInputSelf(wchar_t c, bool) override {
    Log(std::string("Char:") + static_cast<char>(c));
    return consumesKeys;
  }
  void SetFocusSelf() override { Log("SetFocus"); }
  void KillFocusSelf() override { Log("KillFocus"); }
  bool WantsFocusSelf() const override { return wantsFocus; }
  bool TimerNotifySelf(unsigned id) override {
    Log("Timer" + std::to_string(id));
    return true;
  }
  int DragEnterSelf(kroui::ui::DataObject&, ZEL::KeyModifiers m, const Point& p) override {
    Log("DragEnter", p, m);
    return dropAnswer;
  }
  int DragOverSelf(kroui::ui::DataObject&, ZEL::KeyModifiers m, const Point& p) override {
    Log("DragOver", p, m);
    return dropAnswer;
  }
  void DragLeaveSelf() override { Log("DragLeave"); }
  bool DropSelf(kroui::ui::DataObject&, int effect, const Point& p) override {
    Log("Drop" + std::to_string(effect), p, ZEL::KeyModifiers(0));
    return true;
  }
  bool IsPointerEventHandled(const kroui::ui::PointerEvent&) const override { return handlesPointer; }

private:
  void Log(const std::string& entry, char separator = '.') { mLog.push_back(mName + separator + entry); }
  void Log(const std::string& hook, const Point& p, ZEL::KeyModifiers m) {
    std::string entry = hook + "@" + std::to_string(p.x) + "," + std::to_string(p.y);
    if (m.Has(ZEL::kModifier_Shift)) entry += "+S";
    if (m.Has(ZEL::kModifier_Control)) entry += "+C";
    if (m.Has(ZEL::kModifier_Alt)) entry += "+A";
    Log(entry);
  }
  bool Key(const char* hook, wchar_t c, short key, bool repeat) {
    Log(std::string(hook) + ":" + std::to_string(key) + (c ? std::string("'") + static_cast<char>(c) + "'" : "") +
        (repeat ? " repeat" : ""));
    return consumesKeys;
  }

  std::string mName;
  Strings& mLog;
};

/// A headless backend, one shown and active window (client area 300x260 at
/// 100,100 on the screen), and a root view filling it; views made by the
/// test are dropped before the window, the window before the backend.
template <typename Base = ::testing::Test>
class ViewFixture : public kroui::testing::HeadlessFixture<Base> {
protected:
  void SetUp() override {
    Base::SetUp(); // the headless fixture does not chain to it
    kroui::testing::HeadlessFixture<Base>::SetUp();
    kroui::backend::WindowDescription description;
    description.title = "views";
    description.bounds = {100, 100, 400, 360};
    mWindow = std::make_unique<kroui::ui::UI_Window>(description);
    mWindow->Show();
    root = RecordingView::Make("root", {}, log);
    root->Create(kroui::ui::RefCountedWeakPtr<kroui::ui::UI_Container>(&mWindow->GetRoot()), {0, 0, 300, 260});
    Pump();
    log.clear();
  }

  void TearDown() override {
    ZEL::Commander::SetTarget({});
    views.clear();
    root.reset();
    mWindow.reset();
    kroui::ui::ToolTipManager::Instance().Reset();
    krocore::threads::MainThreadQueue::Instance().Clear();
    kroui::testing::HeadlessFixture<Base>::TearDown();
    Base::TearDown();
  }

  /// A view created in `parent`, whose super-commander is the parent.
  std::shared_ptr<RecordingView> Add(const std::shared_ptr<RecordingView>& parent, std::string name,
                                     ZEL::ViewBase::Rect bounds) {
    auto view = RecordingView::Make(std::move(name), parent, log);
    view->Create(parent, bounds);
    views.push_back(view);
    return view;
  }

  kroui::ui::UI_Window& Window() { return *mWindow; }
  void Pump() { kroui::ui::EventLoop::Instance().ProcessPending(); }
  void MoveTo(int x, int y) {
    this->Headless().MoveMouseTo(mWindow->GetNativeWindow(), {x, y});
    Pump();
  }
  /// The log since the last call.
  std::vector<std::string> TakeLog() { return std::exchange(log, {}); }

  std::vector<std::string> log;
  std::shared_ptr<RecordingView> root;
  std::vector<std::shared_ptr<RecordingView>> views;

private:
  std::unique_ptr<kroui::ui::UI_Window> mWindow;
};

} // namespace ZELTest
