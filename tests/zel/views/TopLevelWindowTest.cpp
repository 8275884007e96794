#include "ViewTestSupport.h"

#include <zel/commands/CommandContext.h>
#include <zel/commands/KeySpec.h>
#include <zel/commands/ShortcutManager.h>
#include <zel/views/TopLevelWindow.h>

#include <kroui/base/KeyTable.h>
#include <kroui/base/OS_Event.h>
#include <kroworkspace/workspace/TopLevelWindow.h>

#include <optional>

namespace {

using kroui::ui::kModKey_Control;
using ZEL::ShortcutManager;
using ZELTest::RecordingView;
using Strings = std::vector<std::string>;

constexpr int kCommand_Split = 500;
constexpr int kCommand_Play = 600;

// The event hook is a plain function: it writes into the running case's log.
Strings* sHookLog = nullptr;
void LogKeyDown(kroui::ui::OS_Event* event) {
  if (event->type == kroui::ui::OS_Event::Type::KeyDown) sHookLog->push_back("hook.KeyDown");
}

// A shown window holding a panel view, and a field in the panel that has the focus:
//
//   window root
//     panel (the field's super-view and super-commander)
//       field (focused: the command target)
class TopLevelWindowTest : public kroui::testing::HeadlessFixture<> {
protected:
  void SetUp() override {
    HeadlessFixture::SetUp();
    ShortcutManager::Initialize();
    const krocore::geom::RectT<int> bounds{100, 100, 400, 300};
    window.emplace(nullptr, true, &bounds);
    panel = PutViews(*window);
    sHookLog = &log;
  }

  void TearDown() override {
    ZEL::Commander::SetTarget({});
    field.reset();
    panel.reset();
    window.reset();
    ShortcutManager::Finalize();
    kroui::ui::ToolTipManager::Instance().Reset();
    krocore::threads::MainThreadQueue::Instance().Clear();
    sHookLog = nullptr;
    HeadlessFixture::TearDown();
  }

  std::shared_ptr<RecordingView> PutViews(const ZEL::TopLevelWindow& in) {
    auto root = RecordingView::Make("panel", {}, log);
    root->Create(kroui::ui::RefCountedWeakPtr<kroui::ui::UI_Container>(&in.GetPtr()->GetRoot()), {0, 0, 300, 200});
    field = RecordingView::Make("field", root, log);
    field->Create(root, {10, 10, 100, 40});
    EXPECT_TRUE(field->SetFocus());
    Pump();
    log.clear();
    return root;
  }

  /// Binds `key` in the application context to a command the panel obeys.
  void Bind(int id, const ZEL::KeySpec& key, bool preDispatch = false) {
    ZEL::CommandContext& application = ShortcutManager::Instance()->GetContext(ShortcutManager::kApplicationContextName);
    const std::string name = "test." + std::to_string(id);
    application.DeclareCommand(name, id, ZEL::CommandKind::Menu, name, {}, false);
    application.SetCommandShortcuts(name, {key});
    if (preDispatch) application.DeclarePreDispatchCommand(id);
    panel->obeys.insert(id);
  }

  void Press(kroui::ui::KeyboardCode key, kroui::ui::ModifierKeys modifiers = {}) {
    Headless().SendKeyDown(key, modifiers);
    Pump();
  }
  static void Pump() { kroui::ui::EventLoop::Instance().ProcessPending(); }
  Strings TakeLog() { return std::exchange(log, {}); }

  Strings log;
  std::optional<ZEL::TopLevelWindow> window;
  std::shared_ptr<RecordingView> panel, field;
};

TEST_F(TopLevelWindowTest, AKeyTheViewsDeclineRunsItsShortcutUpTheFocusedChain) {
  Bind(kCommand_Split, ZEL::KeySpec(kroui::ui::kKey_K.GetControlCode(false), true, false, false));
  Press(kroui::ui::kKey_K, kModKey_Control);
  EXPECT_EQ(TakeLog(), (Strings{"field.KeyDown:75'k'", "panel.KeyDown:75'k'", "field:obey 500", "panel:obey 500"}));
}

TEST_F(TopLevelWindowTest, AKeyTheParentViewTakesNeverReachesTheShortcuts) {
  Bind(kCommand_Split, ZEL::KeySpec(kroui::ui::kKey_K.GetControlCode(false), true, false, false));
  panel->consumesKeys = true;
  Press(kroui::ui::kKey_K, kModKey_Control);
  EXPECT_EQ(TakeLog(), (Strings{"field.KeyDown:75'k'", "panel.KeyDown:75'k'"}));
}

TEST_F(TopLevelWindowTest, APreDispatchCommandGoesBeforeTheFocusedView) {
  Bind(kCommand_Play, ZEL::KeySpec(kroui::ui::kKey_Space.GetControlCode(false), false, false, false), true);
  field->consumesKeys = true;
  Press(kroui::ui::kKey_Space);
  EXPECT_EQ(TakeLog(), (Strings{"field:obey 600", "panel:obey 600"}));
}

TEST_F(TopLevelWindowTest, WithoutAShortcutManagerKeysGoOnAsUsual) {
  ShortcutManager::Finalize();
  Press(kroui::ui::kKey_K, kModKey_Control);
  EXPECT_EQ(TakeLog(), (Strings{"field.KeyDown:75'k'", "panel.KeyDown:75'k'"}));
  Press(kroui::ui::kKey_Tab);
  EXPECT_TRUE(panel->HasFocus()) << "Tab still moves the focus";
  ShortcutManager::Initialize();
}

TEST_F(TopLevelWindowTest, TheEventHookSeesEachEventBeforeTheViews) {
  const ZEL::TopLevelWindow hooked(nullptr, &LogKeyDown);
  EXPECT_FALSE(hooked.GetPtr()->GetWindow().IsShown()) << "shown when its owner says";
  hooked.GetPtr()->GetWindow().Show();
  const auto hookedPanel = PutViews(hooked);
  Press(kroui::ui::kKey_K);
  EXPECT_EQ(TakeLog(), (Strings{"hook.KeyDown", "field.KeyDown:75'k'", "panel.KeyDown:75'k'"}));
  field.reset();
}

TEST_F(TopLevelWindowTest, CopiesShareOneWindowThatOutlivesTheOriginal) {
  const std::size_t before = kroui::ui::UI_Window::GetAllWindows().size();
  std::optional<ZEL::TopLevelWindow> original(std::in_place, nullptr, false, nullptr);
  ZEL::TopLevelWindow copy = *original;
  EXPECT_EQ(copy.GetPtr(), original->GetPtr());
  ZEL::TopLevelWindow assigned = *window;
  assigned = copy;
  EXPECT_EQ(assigned.GetPtr(), original->GetPtr());
  EXPECT_EQ(kroui::ui::UI_Window::GetAllWindows().size(), before + 1);

  original.reset();
  EXPECT_TRUE(copy.GetPtr()->GetWindow().IsCreated());
  EXPECT_FALSE(copy.GetPtr()->GetWindow().IsShown()) << "made hidden";
  EXPECT_FALSE(copy.GetPtr()->GetWindow().GetBounds().IsEmpty()) << "placed by default";
}

TEST_F(TopLevelWindowTest, TheLastCopyTakesTheWindowAway) {
  const std::size_t before = kroui::ui::UI_Window::GetAllWindows().size();
  {
    const krocore::geom::RectT<int> bounds{20, 30, 220, 130};
    const ZEL::TopLevelWindow placed(nullptr, false, &bounds);
    const ZEL::TopLevelWindow copy = placed;
    EXPECT_EQ(placed.GetPtr()->GetWindow().GetBounds(), bounds);
  }
  EXPECT_EQ(kroui::ui::UI_Window::GetAllWindows().size(), before);
}

} // namespace
