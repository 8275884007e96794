#include "RecordingCommander.h"

#include <zel/commands/CommandContext.h>
#include <zel/commands/ShortcutManager.h>

#include <krocore/threads/MainThreadQueue.h>

#include <gtest/gtest.h>

using ZEL::CommandContext;
using ZEL::CommandKeyMapID;
using ZEL::CommandKind;
using ZEL::KeySpec;
using ZEL::ShortcutManager;
using ZELTest::RecordingCommander;

namespace {

const KeySpec kCtrlK(0x4B, true, false, false);
const KeySpec kCtrlJ(0x4A, true, false, false);
const KeySpec kF5(0x74, false, false, false);

class CommandContextTest : public testing::Test {
protected:
  void SetUp() override {
    ShortcutManager::Initialize();
    mManager = ShortcutManager::Instance();
    mApp = &mManager->GetGlobalContext();
    mPanel = &mManager->AddContext("Timeline", "Timeline");
    mTarget = RecordingCommander::Make("T", {}, mLog);
    ZEL::Commander::SetTarget(mTarget);
    mLog.clear();
  }
  void TearDown() override {
    ZEL::Commander::SetTarget({});
    ShortcutManager::Finalize();
    krocore::threads::MainThreadQueue::Instance().Clear();
  }

  void Declare(CommandContext& context, const std::string& name, int id, std::vector<KeySpec> keys,
               bool usesKeyUp = false) {
    context.DeclareCommand(name, id, CommandKind::Menu, name, {}, usesKeyUp);
    context.SetCommandShortcuts(name, std::move(keys));
  }

  int Lookup(CommandContext& context, const KeySpec& key, CommandKeyMapID map = CommandKeyMapID::Standard) {
    int id = -1;
    return context.GetCommandIDFromKeySpec(key, map, id) ? id : -1;
  }

  std::vector<std::string> mLog;
  ShortcutManager* mManager = nullptr;
  CommandContext* mApp = nullptr;
  CommandContext* mPanel = nullptr;
  std::shared_ptr<RecordingCommander> mTarget;
};

TEST_F(CommandContextTest, SeveralCommandsOnAKeyResolveToTheFirstEnabledOne) {
  Declare(*mPanel, "ripple.delete", 10, {kCtrlK});
  Declare(*mPanel, "lift", 20, {kCtrlK});
  mTarget->Answer(10, false);
  mTarget->Answer(20, true);
  EXPECT_EQ(Lookup(*mPanel, kCtrlK), 20);
  mTarget->Answer(10, true);
  EXPECT_EQ(Lookup(*mPanel, kCtrlK), 10) << "first declared, first asked";
  mTarget->Answer(10, false);
  mTarget->Answer(20, false);
  EXPECT_EQ(Lookup(*mPanel, kCtrlK), -1);
  ZEL::Commander::SetTarget({});
  EXPECT_EQ(Lookup(*mPanel, kCtrlK), -1) << "no target: no one to ask";
}

TEST_F(CommandContextTest, ASingleCommandResolvesWithoutAskingAnyone) {
  Declare(*mPanel, "razor", 30, {kCtrlK});
  mTarget->Answer(30, false);
  EXPECT_EQ(Lookup(*mPanel, kCtrlK), 30);
  EXPECT_TRUE(mLog.empty());
  EXPECT_EQ(Lookup(*mPanel, kCtrlJ), -1);
  int id = -1;
  EXPECT_FALSE(mPanel->GetCommandIDFromKeySpec(kCtrlK, static_cast<CommandKeyMapID>(4), id));
  EXPECT_EQ(id, 0);
}

TEST_F(CommandContextTest, PanelBindingWinsOverApplicationBindingAndImmutablesWinOverBoth) {
  Declare(*mApp, "app.save", 1, {kCtrlK, kF5});
  Declare(*mApp, "app.help", 2, {kCtrlJ});
  Declare(*mPanel, "panel.cut", 3, {kCtrlK});
  EXPECT_EQ(Lookup(*mPanel, kCtrlK), 3);
  EXPECT_EQ(Lookup(*mPanel, kF5), 1) << "application shortcuts work in panels";
  EXPECT_EQ(Lookup(*mApp, kCtrlK), 1);

  mManager->RegisterImmutable(99, kCtrlJ);
  EXPECT_EQ(Lookup(*mPanel, kCtrlJ), 99);
  EXPECT_EQ(Lookup(*mApp, kCtrlJ), 99);
  EXPECT_EQ(Lookup(*mPanel, kCtrlJ, CommandKeyMapID::Fixed), 99);
  EXPECT_EQ(Lookup(*mPanel, kF5, CommandKeyMapID::Fixed), -1);
}

TEST_F(CommandContextTest, PanelMapsFollowLaterChangesOfTheApplicationContext) {
  Declare(*mApp, "app.save", 1, {kCtrlK});
  EXPECT_EQ(Lookup(*mPanel, kCtrlK), 1);
  mApp->SetCommandShortcuts("app.save", {kF5});
  EXPECT_EQ(Lookup(*mPanel, kCtrlK), -1);
  EXPECT_EQ(Lookup(*mPanel, kF5), 1);
  mApp->ClearShortcuts();
  EXPECT_EQ(Lookup(*mPanel, kF5), -1);
}

TEST_F(CommandContextTest, RepeatUpDownAndExemptQuestions) {
  Declare(*mPanel, "nudge", 40, {kCtrlK});
  Declare(*mPanel, "scrub", 41, {kCtrlJ}, true);
  Declare(*mApp, "app.render", 42, {kF5});
  mPanel->DeclareKeyRepeatsDisabledCommand(40);
  mApp->DeclareKeyRepeatsDisabledCommand(42);
  mPanel->DeclareMinimalCommand(41);
  EXPECT_FALSE(mPanel->KeyRepeatAllowed(kCtrlK));
  EXPECT_TRUE(mPanel->KeyRepeatAllowed(kCtrlJ));
  EXPECT_FALSE(mPanel->KeyRepeatAllowed(kF5)) << "the application's rule holds where its command is bound";
  EXPECT_TRUE(mPanel->KeyRepeatAllowed(KeySpec(0x41, false, false, false))) << "an unbound key may repeat";
  EXPECT_TRUE(mPanel->KeyUsesUpAndDown(kCtrlJ));
  EXPECT_FALSE(mPanel->KeyUsesUpAndDown(kCtrlK));
  EXPECT_TRUE(mPanel->AllowedForExempt(kCtrlJ));
  EXPECT_FALSE(mPanel->AllowedForExempt(kCtrlK));
  EXPECT_EQ(Lookup(*mPanel, kCtrlJ, CommandKeyMapID::Minimal), 41);
  EXPECT_EQ(Lookup(*mPanel, kCtrlK, CommandKeyMapID::Minimal), -1);
}

TEST_F(CommandContextTest, BlockedContextsMatchTheWholeName) {
  Declare(*mApp, "app.quit", 7, {kCtrlK});
  mApp->BlockCommandInContext("app.quit", "Timeline");
  EXPECT_TRUE(mApp->IsCommandBlockedForContext(7, "Timeline"));
  EXPECT_FALSE(mApp->IsCommandBlockedForContext(7, "Timelin"));
  EXPECT_FALSE(mApp->IsCommandBlockedForContext(7, "Timeline2"));
  EXPECT_FALSE(mApp->IsCommandBlockedForContext(8, "Timeline"));
}

TEST_F(CommandContextTest, DeclarationsTakeDefaultsCopiesAndUndeclarations) {
  mManager->SetDefaultShortcuts("command.edit.copy", {kCtrlK});
  mApp->DeclareCommandLocalized("edit.copy", 57634, CommandKind::Menu, "Copy", {}, false);
  EXPECT_EQ(Lookup(*mApp, kCtrlK), 57634);
  EXPECT_TRUE(mPanel->DeclareCommandCopy(57634));
  EXPECT_EQ(mPanel->GetCommandNameFromID(57634), "edit.copy");
  EXPECT_FALSE(mPanel->DeclareCommandCopy(12345));
  std::vector<KeySpec> shortcuts;
  EXPECT_EQ(mPanel->FindCommandUIStringAndShortcuts(57634, shortcuts), "Copy");
  EXPECT_EQ(shortcuts, std::vector<KeySpec>{kCtrlK});
  EXPECT_TRUE(mPanel->ShortcutInUse(kCtrlK));
  EXPECT_TRUE(mApp->UndeclareCommand(57634));
  EXPECT_EQ(mApp->GetCommandNameFromID(57634), "");
  EXPECT_EQ(Lookup(*mPanel, kCtrlK), 57634) << "the panel's copy stays";
}

TEST_F(CommandContextTest, MenuTextsCarryTheShortcuts) {
  mApp->DeclareCommandLocalized("edit.copy", 57634, CommandKind::Menu, "Copy", {}, false);
  mApp->SetCommandShortcuts("edit.copy", {kCtrlK, kF5});
  EXPECT_EQ(mApp->GetMenuText(57634), "Copy\tCtrl+K, F5");
}

TEST_F(CommandContextTest, MapsIterateInKeySpecOrder) {
  const KeySpec a(0x41, false, false, false), b(0x42, false, false, false), shiftB(0x42, false, false, true);
  Declare(*mApp, "x", 1, {a, shiftB, b});
  const auto& entries = mApp->GetKeyCommandMap(CommandKeyMapID::Standard).Entries();
  ASSERT_EQ(entries.size(), 3u);
  EXPECT_EQ(entries[0].key, b);
  EXPECT_EQ(entries[1].key, shiftB);
  EXPECT_EQ(entries[2].key, a);
}

} // namespace
