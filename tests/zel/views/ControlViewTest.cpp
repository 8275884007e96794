#include "ViewTestSupport.h"

#include <zel/commands/CommandContext.h>
#include <zel/commands/ShortcutManager.h>
#include <zel/views/ControlView.h>
#include <zel/views/ControlViewImpl.h>

#include <kroui/skins/SkinManager.h>

#include <gtest/gtest.h>

namespace {

using Rect = ZEL::ViewBase::Rect;
using Strings = std::vector<std::string>;

class TestControlImpl : public ZEL::ControlViewImpl {
public:
  int paints = 0;

protected:
  void PaintSelf(kroui::drawbot::Drawbot&) override { ++paints; }
};

/// A control as a concrete one is built: it owns its node and makes it in Create.
class TestControl : public ZEL::ControlView {
public:
  TestControl(const ZEL::CommanderWeakPtr& super, Strings& log) : ControlView(super), mLog(log) {}
  ~TestControl() override {
    if (mImpl) mImpl->RemoveFromParent();
  }

  bool Create(const std::weak_ptr<ZEL::ViewBase>& parent, const Rect& bounds) {
    auto impl = krocore::MakeIntrusive<TestControlImpl>();
    if (!AttachImpl(*impl, parent, bounds)) return false;
    mImpl = impl;
    return true;
  }
  TestControlImpl* Impl() const { return mImpl.Get(); }

  bool ObeyCommand(const ZEL::Command& command) override {
    mLog.push_back("control:obey " + std::to_string(command.GetID()));
    return false;
  }

protected:
  ZEL::ControlViewImpl* GetControlViewImpl() const override { return mImpl.Get(); }
  void NowOnDuty() override { mLog.push_back("control:on"); }
  void NowOffDuty() override { mLog.push_back("control:off"); }

private:
  Strings& mLog;
  krocore::IntrusivePtr<TestControlImpl> mImpl;
};

class ControlViewTest : public ZELTest::ViewFixture<> {
protected:
  void SetUp() override {
    ViewFixture::SetUp();
    control = std::make_shared<TestControl>(root, log);
  }
  void TearDown() override {
    control.reset();
    ViewFixture::TearDown();
  }

  const std::string& ToolTip() const { return control->Impl()->GetToolTipText(); }

  std::shared_ptr<TestControl> control;
};

TEST_F(ControlViewTest, WithoutItsNodeEveryOperationDoesNothingAndReportsNothing) {
  // The test main fails on any report, so calling is the check.
  control->SetBounds({0, 0, 10, 10});
  control->Enable(true);
  control->Invalidate();
  control->Redraw();
  control->EnableDoubleBuffering(true, true);
  control->SetToolTipTextWithShortcut("tip");
  control->SetCommandID(12);
  control->Show(true);
  EXPECT_FALSE(control->IsCreated());
  EXPECT_FALSE(control->IsShown());
  EXPECT_FALSE(control->SetFocus());
  EXPECT_EQ(control->GetBounds(), Rect{});
  EXPECT_EQ(control->GetCommandID(), 0);
  EXPECT_EQ(control->GetKRONode(), nullptr);
}

TEST_F(ControlViewTest, ItsNodeSitsInTheParentViewOnceAndPaints) {
  ASSERT_TRUE(control->Create(root, {5, 6, 25, 16}));
  ASSERT_TRUE(control->Create(root, {5, 6, 45, 16}));
  const auto& rootNode = static_cast<kroui::ui::UI_Container&>(*root->GetKRONode());
  EXPECT_EQ(rootNode.GetChildCount(), 1u);
  EXPECT_EQ(rootNode.GetChildAt(0), control->Impl());
  EXPECT_EQ(control->GetParent(), root);
  EXPECT_EQ(control->Size(), (ZEL::ViewBase::Extent{40, 10}));
  control->SetCommandID(4711);
  EXPECT_EQ(control->GetCommandID(), 4711);
  control->Disable();
  EXPECT_FALSE(control->IsEnabled());
  const int before = control->Impl()->paints;
  control->Redraw();
  EXPECT_GT(control->Impl()->paints, before);
}

TEST_F(ControlViewTest, FocusMakesTheControlTheTargetAndDeclinedCommandsGoUp) {
  ASSERT_TRUE(control->Create(root, {0, 0, 10, 10}));
  root->obeys = {9};
  ASSERT_TRUE(control->SetFocus());
  EXPECT_TRUE(control->IsTarget());
  EXPECT_TRUE(ZEL::PostCommand(9, true));
  EXPECT_EQ(TakeLog(), (Strings{"control:on", "root:on", "control:obey 9", "root:obey 9"}));
}

struct ShortcutCase {
  const char* label;
  std::vector<ZEL::KeySpec> keys;
  const char* expected;
  friend void PrintTo(const ShortcutCase& row, std::ostream* out) { *out << row.label; }
};

class ControlViewToolTip : public ControlViewTest, public testing::WithParamInterface<ShortcutCase> {
protected:
  static constexpr int kRazor = 3001;

  void SetUp() override {
    ControlViewTest::SetUp();
    ZEL::ShortcutManager::Initialize();
    auto& context = ZEL::ShortcutManager::Instance()->GetGlobalContext();
    context.DeclareCommand("razor", kRazor, ZEL::CommandKind::Action, "Razor Tool", {}, false);
    context.SetCommandShortcuts("razor", GetParam().keys);
    ASSERT_TRUE(control->Create(root, {0, 0, 10, 10}));
    control->SetCommandID(kRazor);
  }
  void TearDown() override {
    ZEL::ShortcutManager::Finalize();
    kroui::skins::core::SkinManager::SetSkinVersion(kroui::skins::core::SkinManager::kDefaultSkinVersion);
    ControlViewTest::TearDown();
  }
};

TEST_P(ControlViewToolTip, ShowsTheShortcutBoundToTheControlsCommandNow) {
  control->SetToolTipTextWithShortcut("Razor");
  EXPECT_EQ(ToolTip(), GetParam().expected);
  EXPECT_EQ(control->Impl()->GetToolTipDelay(), 400);

  kroui::skins::core::SkinManager::SetSkinVersion(7);
  control->SetToolTipTextUsingCommandID();
  EXPECT_EQ(ToolTip(), "Razor Tool");
  EXPECT_EQ(control->Impl()->GetToolTipDelay(), 200);
}

INSTANTIATE_TEST_SUITE_P(
    Shortcuts, ControlViewToolTip,
    testing::Values(ShortcutCase{"None", {}, "Razor"},
                    ShortcutCase{"Letter", {ZEL::KeySpec(0x43, false, false, false)}, "Razor (C)"},
                    ShortcutCase{"Modified", {ZEL::KeySpec(0x4B, true, false, true)}, "Razor (Ctrl+Shift+K)"}),
    [](const auto& row) { return std::string(row.param.label); });

} // namespace
