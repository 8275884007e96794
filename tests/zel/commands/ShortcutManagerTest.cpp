#include "RecordingCommander.h"

#include <zel/commands/AnalyticsUtils.h>
#include <zel/commands/ShortcutManager.h>

#include <krocore/debug/Assert.h>
#include <krocore/threads/MainThreadQueue.h>
#include <kroscripting/events/Event.h>
#include <kroscripting/events/EventListenerToken.h>
#include <kroscripting/events/ScriptConstants.h>
#include <kroui/base/KeyboardEvent.h>

#include <gtest/gtest.h>

using kroui::ui::KeyboardCode;
using kroui::ui::KeyboardEvent;
using kroui::ui::ModifierKeys;
using ZEL::CommandKind;
using ZEL::CommandPhase;
using ZEL::KeySpec;
using ZEL::ShortcutManager;
using ZELTest::RecordingCommander;

namespace {

constexpr std::uint32_t kKeyK = 0x4B;
constexpr std::uint32_t kKeyL = 0x4C;
constexpr std::uint32_t kKeySpace = 0x20;
const ModifierKeys kCtrl = ModifierKeys::FromValue(0x04);
const ModifierKeys kNone;

KeyboardEvent Down(std::uint32_t key, ModifierKeys mods = kNone, bool repeat = false) {
  return KeyboardEvent::MakeKeyDown(KeyboardCode(key), mods, repeat);
}
KeyboardEvent Up(std::uint32_t key, ModifierKeys mods = kNone) { return KeyboardEvent::MakeKeyUp(KeyboardCode(key), mods); }

class ShortcutManagerTest : public testing::Test {
protected:
  void SetUp() override {
    ShortcutManager::Initialize();
    mManager = ShortcutManager::Instance();
    mPanel = &mManager->AddContext("Timeline", "Timeline");
    mManager->ApplyContext("Timeline");
    // A chain 3 deep: the focused field, its panel, the application.
    mApp = RecordingCommander::Make("App", {}, mLog);
    mPanelCommander = RecordingCommander::Make("P", mApp, mLog);
    mField = RecordingCommander::Make("F", mPanelCommander, mLog);
    ZEL::Commander::SetTarget(mField);
    mLog.clear();
  }
  void TearDown() override {
    ZEL::Commander::SetTarget({});
    ShortcutManager::Finalize();
    krocore::threads::MainThreadQueue::Instance().Clear();
  }

  void Declare(const std::string& name, int id, KeySpec key, bool usesKeyUp = false,
               CommandKind kind = CommandKind::Menu) {
    mPanel->DeclareCommand(name, id, kind, name, {}, usesKeyUp);
    mPanel->SetCommandShortcuts(name, {key});
  }

  std::vector<std::string> Obeyed() const {
    std::vector<std::string> obeyed;
    for (const auto& line : mLog)
      if (line.find(":obey") != std::string::npos) obeyed.push_back(line);
    return obeyed;
  }

  std::vector<std::string> mLog;
  ShortcutManager* mManager = nullptr;
  ZEL::CommandContext* mPanel = nullptr;
  std::shared_ptr<RecordingCommander> mApp, mPanelCommander, mField;
};

// The window's key handling, as a host writes it: the shortcut manager's
// pre-dispatch pass, then the focused control, then the second pass.
bool DeliverKey(ShortcutManager& manager, const KeyboardEvent& event, const std::function<bool()>& focusedControl) {
  if (manager.DispatchKeyboardEvent(event, true)) return true;
  if (focusedControl()) return true;
  return manager.DispatchKeyboardEvent(event, false);
}

TEST_F(ShortcutManagerTest, AKeystrokeRunsItsCommandFromEndToEnd) {
  Declare("clip.split", 500, KeySpec(kKeyK, true, false, false));
  mPanelCommander->Handle(500);
  std::vector<kroscripting::events::Event> events;
  auto token = kroscripting::events::AddEventListener(
      "ZELCommandEvent", [&](const kroscripting::events::Event& event) { events.push_back(event); });

  bool controlSawKey = false;
  EXPECT_TRUE(DeliverKey(*mManager, Down(kKeyK, kCtrl), [&] {
    controlSawKey = true;
    return false; // the field declines Ctrl+K
  }));
  EXPECT_TRUE(controlSawKey) << "a command outside the pre-dispatch map waits for the control";
  EXPECT_EQ(Obeyed(), (std::vector<std::string>{"F:obey 500", "P:obey 500"}));
  ASSERT_EQ(mPanelCommander->Obeyed().size(), 1u);
  const ZEL::Command& command = mPanelCommander->Obeyed()[0];
  EXPECT_EQ(command.GetPhase(), CommandPhase::Engaged);
  EXPECT_EQ(command.GetUIPathToAccess().View(), "key-press:keyboard-shortcut");

  EXPECT_TRUE(events.empty());
  krocore::threads::DrainMainThreadQueue();
  ASSERT_EQ(events.size(), 1u);
  EXPECT_EQ(*events[0].payload.GetIf<std::int64_t>("commandID"), 500);
  EXPECT_EQ(*events[0].payload.GetIf<std::int64_t>("phase"),
            kroscripting::events::FindScriptConstant("COMMAND_PHASE_ENGAGED"))
      << "a script reads the phase by its published name";
  EXPECT_FALSE(kroscripting::events::FindScriptConstant("COMMAND_PHASE_UNKNOWN"));
}

TEST_F(ShortcutManagerTest, AFocusedControlThatTakesTheKeyStopsTheShortcut) {
  Declare("clip.split", 500, KeySpec(kKeyK, true, false, false));
  mPanelCommander->Handle(500);
  EXPECT_TRUE(DeliverKey(*mManager, Down(kKeyK, kCtrl), [] { return true; }));
  EXPECT_TRUE(Obeyed().empty());
}

TEST_F(ShortcutManagerTest, PreDispatchCommandsGoBeforeTheControl) {
  Declare("app.open", ZEL::kCommand_Open, KeySpec(kKeyK, true, false, false));
  Declare("panel.play", 600, KeySpec(kKeySpace, false, false, false));
  mPanel->DeclarePreDispatchCommand(600);
  mApp->Handle(ZEL::kCommand_Open);
  mApp->Handle(600);
  bool controlSawKey = false;
  auto control = [&] { return controlSawKey = true, false; };
  EXPECT_TRUE(DeliverKey(*mManager, Down(kKeyK, kCtrl), control)) << "Open stands in the pre-dispatch map";
  EXPECT_TRUE(DeliverKey(*mManager, Down(kKeySpace), control)) << "declared pre-dispatch by the context";
  EXPECT_FALSE(controlSawKey);
}

TEST_F(ShortcutManagerTest, KeyUpReachesOnlyUpAndDownCommandsAsDisengaged) {
  Declare("scrub", 700, KeySpec(kKeyL, false, false, false), true);
  Declare("mark", 701, KeySpec(kKeyK, false, false, false));
  mField->Handle(700);
  mField->Handle(701);
  EXPECT_TRUE(mManager->DispatchKeyboardEvent(Down(kKeyL), false));
  EXPECT_TRUE(mManager->DispatchKeyboardEvent(Up(kKeyL), false));
  EXPECT_FALSE(mManager->DispatchKeyboardEvent(Up(kKeyK), false));
  ASSERT_EQ(mField->Obeyed().size(), 2u);
  EXPECT_EQ(mField->Obeyed()[0].GetPhase(), CommandPhase::Engaged);
  EXPECT_EQ(mField->Obeyed()[1].GetPhase(), CommandPhase::Disengaged);
  EXPECT_FALSE(mManager->DispatchKeyboardEvent(Down(kKeyL, kNone, true), false))
      << "an up-and-down key does not repeat its down";
}

TEST_F(ShortcutManagerTest, RepeatsOfANonRepeatingCommandAreSwallowed) {
  Declare("add.marker", 800, KeySpec(kKeyK, false, false, false));
  mPanel->DeclareKeyRepeatsDisabledCommand(800);
  mField->Handle(800);
  EXPECT_TRUE(mManager->DispatchKeyboardEvent(Down(kKeyK), false));
  EXPECT_TRUE(mManager->DispatchKeyboardEvent(Down(kKeyK, kNone, true), false));
  EXPECT_TRUE(mManager->DispatchKeyboardEvent(Down(kKeyK, kNone, true), true));
  EXPECT_EQ(mField->Obeyed().size(), 1u) << "consumed, but posted once";
}

TEST_F(ShortcutManagerTest, AltKeysPassThroughInModeThree) {
  Declare("panel.ctrlaltk", 900, KeySpec(kKeyK, true, true, false));
  mPanel->DeclareMinimalCommand(900);
  mField->Handle(900);
  const auto ctrlAlt = ModifierKeys::FromValue(0x14);
  mManager->SetOverrideMode(ShortcutManager::kOverrideMode_MinimalMapAltToSystem);
  EXPECT_TRUE(mManager->UsesMinimalMap());
  EXPECT_FALSE(mManager->DispatchKeyboardEvent(Down(kKeyK, ctrlAlt), false));
  mManager->SetOverrideMode(ShortcutManager::kOverrideMode_Everything);
  EXPECT_TRUE(mManager->DispatchKeyboardEvent(Down(kKeyK, ctrlAlt), false));
}

TEST_F(ShortcutManagerTest, OverrideModesSetTheirFlags) {
  struct Row {
    int mode;
    bool minimal, alt;
  };
  constexpr int kMinimal = ShortcutManager::kOverrideMode_MinimalMap;
  constexpr int kEverything = ShortcutManager::kOverrideMode_Everything;
  constexpr int kAltToSystem = ShortcutManager::kOverrideMode_MinimalMapAltToSystem;
  constexpr int kUnknownMode = 7, kOtherUnknownMode = 2; // kept, and the flags stay as they were
  for (const Row& row : {Row{kMinimal, true, false}, Row{kEverything, false, false}, Row{kAltToSystem, true, true},
                         Row{kUnknownMode, true, true}, Row{kEverything, false, false},
                         Row{kOtherUnknownMode, false, false}}) {
    mManager->SetOverrideMode(row.mode);
    EXPECT_EQ(mManager->UsesMinimalMap(), row.minimal) << "mode " << row.mode;
    EXPECT_EQ(mManager->AltPassesThrough(), row.alt) << "mode " << row.mode;
  }
}

TEST_F(ShortcutManagerTest, ThePreDispatchMapStartsWithTheFileApplicationAndHostCommands) {
  for (int id : {ZEL::kCommand_New, ZEL::kCommand_Open, ZEL::kCommand_RecentFile1, ZEL::kCommand_Exit,
                 ZEL::kCommand_HostPreDispatchA, ZEL::kCommand_HostPreDispatchB})
    EXPECT_TRUE(mManager->IsInPreDispatchMap(id)) << id;
  for (int id = ZEL::kCommand_HostPreDispatchRangeFirst; id <= ZEL::kCommand_HostPreDispatchRangeLast; ++id)
    EXPECT_TRUE(mManager->IsInPreDispatchMap(id)) << id;
  EXPECT_FALSE(mManager->IsInPreDispatchMap(ZEL::kCommand_HostPreDispatchRangeFirst - 1));
  EXPECT_FALSE(mManager->IsInPreDispatchMap(ZEL::kCommand_HostPreDispatchRangeLast + 1));
  EXPECT_FALSE(mManager->IsInPreDispatchMap(ZEL::kCommand_Copy)) << "editing commands wait for the control";

  mManager->AddCommandtoPreDispatchMap(ZEL::kCommand_Copy);
  mManager->AddCommandtoPreDispatchMap(ZEL::kCommand_Copy);
  EXPECT_TRUE(mManager->IsInPreDispatchMap(ZEL::kCommand_Copy));
  mManager->SetPreDispatchMap();
  EXPECT_FALSE(mManager->IsInPreDispatchMap(ZEL::kCommand_Copy)) << "back to the built-in commands";
  EXPECT_TRUE(mManager->IsInPreDispatchMap(ZEL::kCommand_Exit));
}

TEST_F(ShortcutManagerTest, BlockedDisabledAndUntargetedCommandsAreNotConsumed) {
  Declare("blocked", 1000, KeySpec(kKeyK, false, false, false));
  Declare("disabled", 1001, KeySpec(kKeyL, false, false, false));
  mPanel->BlockCommandInContext("blocked", "Timeline");
  mPanelCommander->Answer(1001, false);
  mField->Handle(1000);
  mField->Handle(1001);
  EXPECT_FALSE(mManager->DispatchKeyboardEvent(Down(kKeyK), false));
  EXPECT_FALSE(mManager->DispatchKeyboardEvent(Down(kKeyL), false));
  EXPECT_TRUE(mField->Obeyed().empty());
  mManager->SuspendContextChanges();
  mPanelCommander->Answer(1001, true);
  EXPECT_FALSE(mManager->DispatchKeyboardEvent(Down(kKeyL), false)) << "suspended";
  mManager->ResumeContextChanges();
  ZEL::Commander::SetTarget({});
  EXPECT_FALSE(mManager->DispatchKeyboardEvent(Down(kKeyL), false)) << "no target";
}

TEST_F(ShortcutManagerTest, ActionsAreDisabledOnlyByTheGlobalFilter) {
  Declare("action", 1100, KeySpec(kKeyK, false, false, false), false, CommandKind::Action);
  mPanelCommander->Answer(1100, false);
  mField->Handle(1100);
  EXPECT_TRUE(mManager->DispatchKeyboardEvent(Down(kKeyK), false)) << "the chain's status does not count";
  ZEL::CommandHandler::SetGlobalCommandFilter(
      [](int id, bool& enabled, bool&, ZEL::MenuMark&, ZEL::UTF8String&, const ZEL::CommanderWeakPtr&) {
        enabled = false;
        return id == 1100;
      });
  EXPECT_FALSE(mManager->DispatchKeyboardEvent(Down(kKeyK), false));
  ZEL::CommandHandler::SetGlobalCommandFilter({});
  EXPECT_EQ(mField->Obeyed().size(), 1u);
}

TEST_F(ShortcutManagerTest, UnknownContextNamesAndIndicesAreServedByTheApplicationContext) {
  mManager->GetGlobalContext().DeclareCommand("app.save", 1200, CommandKind::Menu, "Save", {}, false);
  mManager->GetGlobalContext().SetCommandShortcuts("app.save", {KeySpec(kKeyL, true, false, false)});
  mField->Handle(1200);
  mManager->ApplyContext("NoSuchPanel");
  EXPECT_EQ(mManager->GetContextIndex("NoSuchPanel"), 0u);
  EXPECT_TRUE(mManager->DispatchKeyboardEvent(Down(kKeyL, kCtrl), false));

  krocore::debug::ScopedAssertionRecorder recorder;
  EXPECT_EQ(&mManager->GetContext(mManager->GetContextCount()), &mManager->GetGlobalContext());
  EXPECT_TRUE(recorder.Contains("Command context index out of range"));
}

TEST_F(ShortcutManagerTest, CharacterInputIsNeverACommand) {
  Declare("k", 1300, KeySpec(kKeyK, false, false, false), true);
  mField->Handle(1300);
  EXPECT_FALSE(mManager->DispatchKeyboardEvent(
      KeyboardEvent::MakeCharacterInput(U'k', kNone, KeyboardCode(kKeyK)), false));
  EXPECT_TRUE(mField->Obeyed().empty());
}

TEST_F(ShortcutManagerTest, MinimalCheckLeavesModeOne) {
  Declare("minimal", 1400, KeySpec(kKeyK, false, false, false));
  mPanel->DeclareMinimalCommand(1400);
  Declare("full", 1401, KeySpec(kKeyL, false, false, false));
  mField->Handle(1400);
  mField->Handle(1401);
  mManager->SetOverrideMode(ShortcutManager::kOverrideMode_MinimalMapAltToSystem);
  EXPECT_TRUE(ShortcutManager::CheckMinimalShortcut(Down(kKeyK)));
  EXPECT_EQ(mManager->GetOverrideMode(), ShortcutManager::kOverrideMode_Everything);
  EXPECT_FALSE(ShortcutManager::CheckMinimalShortcut(Down(kKeyL))) << "not in the minimal map";
  EXPECT_EQ(mManager->GetOverrideMode(), ShortcutManager::kOverrideMode_Everything);
}

TEST_F(ShortcutManagerTest, MinimalCheckBringsUpAManagerWhenThereIsNone) {
  ShortcutManager::Finalize();
  ASSERT_EQ(ShortcutManager::Instance(), nullptr);
  EXPECT_FALSE(ShortcutManager::CheckMinimalShortcut(Down(kKeyK)));
  ASSERT_NE(ShortcutManager::Instance(), nullptr);
  EXPECT_EQ(ShortcutManager::Instance()->GetContextCount(), 1u) << "the application context";
  EXPECT_TRUE(ShortcutManager::Instance()->IsInPreDispatchMap(ZEL::kCommand_Exit));
  EXPECT_EQ(ShortcutManager::Instance()->GetOverrideMode(), ShortcutManager::kOverrideMode_Everything);
}

TEST_F(ShortcutManagerTest, KeysDuringADragGoToTheDragContextsDragEnabledCommands) {
  auto& bin = mManager->AddContext("Bin", "Bin");
  bin.DeclareCommand("bin.copyOnDrop", 1600, CommandKind::Action, "Copy on drop", {}, false);
  bin.SetCommandShortcuts("bin.copyOnDrop", {KeySpec(kKeyK, false, false, false)});
  bin.DeclareDragEnabledCommand(1600);
  bin.DeclareCommand("bin.rename", 1601, CommandKind::Action, "Rename", {}, false);
  bin.SetCommandShortcuts("bin.rename", {KeySpec(kKeyL, false, false, false)});
  mField->Handle(1600);
  mField->Handle(1601);
  mManager->SetDragCommandContext("Bin");

  EXPECT_FALSE(mManager->DispatchKeyboardEvent(Down(kKeyK), false)) << "no drag: Timeline has no K";
  mManager->SetDragInProgress(true);
  EXPECT_TRUE(mManager->IsDragInProgress());
  EXPECT_TRUE(mManager->DispatchKeyboardEvent(Down(kKeyK), true)) << "even in the pre-dispatch pass";
  EXPECT_TRUE(mManager->DispatchKeyboardEvent(Up(kKeyK), true));
  EXPECT_FALSE(mManager->DispatchKeyboardEvent(Down(kKeyL), false)) << "not drag-enabled";
  ASSERT_EQ(mField->Obeyed().size(), 2u);
  EXPECT_EQ(mField->Obeyed()[0].GetPhase(), CommandPhase::Engaged);
  EXPECT_EQ(mField->Obeyed()[1].GetPhase(), CommandPhase::Disengaged);

  mManager->SetDragInProgress(false);
  EXPECT_FALSE(mManager->DispatchKeyboardEvent(Down(kKeyK), false));
  EXPECT_EQ(mField->Obeyed().size(), 2u);
}

TEST_F(ShortcutManagerTest, SuspensionAndTheCurrentContextAreReported) {
  EXPECT_FALSE(mManager->IsSuspended());
  mManager->SuspendContextChanges();
  EXPECT_TRUE(mManager->IsSuspended());
  mManager->ResumeContextChanges();
  EXPECT_FALSE(mManager->IsSuspended());
  EXPECT_EQ(mManager->GetCurrentContextName(), "Timeline");
  EXPECT_EQ(&mManager->GetContext("Timeline"), mPanel);
  EXPECT_EQ(&mManager->GetContext("NoSuchPanel"), &mManager->GetGlobalContext());
  EXPECT_EQ(&mManager->GetContext(1), mPanel);
}

TEST_F(ShortcutManagerTest, RecentContextsGroupsAndImmutableSets) {
  mManager->AddContext("Source", "Source");
  mManager->ApplyContext("Source");
  mManager->ApplyContext("Timeline");
  EXPECT_EQ(mManager->GetMostRecentMatchingContext({"Source", "Timeline"}), "Timeline");
  EXPECT_EQ(mManager->GetMostRecentMatchingContext({"Source"}), "Source");
  EXPECT_EQ(mManager->GetMostRecentMatchingContext({"Program"}), "");

  mManager->AddCommandToGroup(1, 5);
  mManager->AddCommandToGroup(2, 5);
  mManager->AddCommandToGroup(3, 6);
  EXPECT_TRUE(mManager->CommandIDContextMatch(1, 2));
  EXPECT_FALSE(mManager->CommandIDContextMatch(1, 3));
  EXPECT_FALSE(mManager->CommandIDContextMatch(4, 4)) << "never added";
  mManager->AddCommandToGroup(3, 5);
  EXPECT_TRUE(mManager->CommandIDContextMatch(1, 3));

  mManager->RegisterImmutable(30, KeySpec(0x41, false, false, false));
  mManager->RegisterImmutable(10, KeySpec(0x42, false, false, false));
  std::set<KeySpec> keys{KeySpec(0x43, false, false, false)};
  std::set<std::int32_t> ids{99};
  mManager->GetImmutableKeySet(keys);
  mManager->GetImmutableCommandSet(ids);
  EXPECT_EQ(ids, (std::set<std::int32_t>{10, 30}));
  ASSERT_EQ(keys.size(), 2u);
  EXPECT_EQ(keys.begin()->GetKey(), 0x42u) << "keys in KeySpec order: descending codes";
}

TEST_F(ShortcutManagerTest, TooltipsJoinTextAndShortcut) {
  mPanel->DeclareCommandLocalized("clip.split", 500, CommandKind::Menu, "Split Clip", {}, false);
  EXPECT_EQ(mManager->GetTooltipAndShortcutText(500), "Split Clip");
  mPanel->SetCommandShortcuts("clip.split", {KeySpec(kKeyK, true, false, false)});
  EXPECT_EQ(mManager->GetTooltipAndShortcutText(500), "Split Clip (Ctrl+K)");
  EXPECT_EQ(mManager->GetTooltipText(12345), "");
}

TEST_F(ShortcutManagerTest, TooltipsAndMenuKindFallBackToTheApplicationContext) {
  auto& app = mManager->GetGlobalContext();
  app.DeclareCommandLocalized("app.save", 1700, CommandKind::Menu, "Save", {}, false);
  app.SetCommandShortcuts("app.save", {KeySpec(kKeyL, true, false, false)});
  mPanel->DeclareCommandLocalized("panel.save", 1701, CommandKind::Action, "Save Panel", {}, false);
  EXPECT_EQ(mManager->GetTooltipAndShortcutText(1700), "Save (Ctrl+L)");
  EXPECT_EQ(mManager->GetTooltipShortcutText(1701), "");
  EXPECT_TRUE(mManager->IsMenuCommand(1700));
  EXPECT_FALSE(mManager->IsMenuCommand(1701)) << "an action";
  EXPECT_FALSE(mManager->IsMenuCommand(12345));
}

TEST_F(ShortcutManagerTest, TheAnalyticsScopeCoversThePost) {
  struct Probe : ZEL::Commander {
    using Commander::Commander;
    bool ObeyCommand(const ZEL::Command&) override {
      seen = ZEL::AnalyticsUtils::GetRecentUIAction();
      return true;
    }
    ZEL::AnalyticsUtils::RecentUIAction seen;
  };
  auto probe = std::make_shared<Probe>(ZEL::CommanderWeakPtr());
  ZEL::Commander::SetTarget(probe);
  Declare("probe", 1500, KeySpec(kKeyK, false, false, false));
  EXPECT_TRUE(mManager->DispatchKeyboardEvent(Down(kKeyK), false));
  EXPECT_EQ(probe->seen.uiAction, 2);
  EXPECT_EQ(probe->seen.commandID, 1500);
  EXPECT_EQ(ZEL::AnalyticsUtils::GetRecentUIAction().commandID, 0) << "restored after the post";
}

} // namespace
