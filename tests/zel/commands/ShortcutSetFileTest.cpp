#include <zel/commands/ShortcutManager.h>
#include <zel/commands/ShortcutSetFile.h>

#include <be/store/XMLPropertyStore.h>
#include <backends/headless/HeadlessBackend.h>
#include <krocore/config/TopLevel.h>
#include <krocore/settings/Preferences.h>
#include <krocore/string/UTFConversion.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#if defined(__linux__)
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>
#endif

using ZEL::CommandKind;
using ZEL::KeySpec;
using ZEL::ShortcutManager;

namespace {

std::string ReadText(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream text;
  text << in.rdbuf();
  return text.str();
}

class ShortcutSetFileTest : public testing::Test {
protected:
  void SetUp() override {
    mHeadless = &kroui::backend::HeadlessBackend::Install();
    ShortcutManager::Initialize();
    mManager = ShortcutManager::Instance();
    mFolder = std::filesystem::temp_directory_path() /
              ("zel-sets-" + std::to_string(::getpid()) + "-" +
               testing::UnitTest::GetInstance()->current_test_info()->name());
    std::filesystem::create_directories(mFolder / "user");
    std::filesystem::create_directories(mFolder / "presets");
    mManager->SetShortcutSetFolders(mFolder / "user", mFolder / "presets");
    mPreviousClient = krocore::config::GetClientName();
    krocore::config::SetClientName("ZEL Gallery");
  }
  void TearDown() override {
    krocore::config::SetClientName(mPreviousClient);
    krocore::settings::Preferences::Instance().Remove(ShortcutManager::kPreferenceShortcutsFilename);
    ShortcutManager::Finalize();
    std::filesystem::remove_all(mFolder);
    kroui::backend::SetBackend(nullptr);
  }

  // Three contexts, 2,000 shortcuts over commands with one to three keys each.
  void DeclareLargeSet() {
    mManager->AddContext("Timeline", "Timeline");
    mManager->AddContext("Source Monitor", "Source Monitor");
    int id = 1;
    for (std::size_t c = 0; c < 3; ++c) {
      auto& context = mManager->GetContext(c);
      for (int n = 0; n < 400; ++n, ++id) {
        const std::string name = "cmd." + std::to_string(id);
        context.DeclareCommand(name, id, CommandKind::Menu, name, {}, false);
      }
    }
    int shortcuts = 0;
    for (int i = 0; shortcuts < 2000 && i < 100000; ++i) {
      const int c = i % 3, n = i / 3;
      auto& context = mManager->GetContext(static_cast<std::size_t>(c));
      const int commandID = 1 + c * 400 + n % 400;
      const auto mods = (n / 26) % 8;
      const KeySpec key(0x41 + static_cast<std::uint32_t>(n % 26), mods & 1, mods & 2, mods & 4);
      if (context.AddCommandShortcut(context.GetCommandNameFromID(commandID), key)) ++shortcuts;
    }
    ASSERT_EQ(shortcuts, 2000);
  }

  std::vector<std::vector<std::pair<std::string, std::vector<KeySpec>>>> Snapshot() const {
    std::vector<std::vector<std::pair<std::string, std::vector<KeySpec>>>> all;
    for (std::size_t c = 0; c < mManager->GetContextCount(); ++c) {
      all.emplace_back();
      for (const auto& [name, info] : mManager->GetContext(c).GetCommandNameMap())
        all.back().emplace_back(name, info.GetShortcuts());
    }
    return all;
  }

  std::string LastMessage() const {
    const auto shown = mHeadless->GetShownMessageBoxes();
    return shown.empty() ? std::string() : krocore::string::UTF16to8(shown.back().text);
  }

  void WriteStore(const std::filesystem::path& path, const std::function<void(BE::IPropertyStoreWriter&)>& fill) {
    auto writer = krocore::classref::CreateClassInstanceRef<BE::IPropertyStoreWriter>(BE::kXMLFileWriterClassID);
    fill(*writer);
    ASSERT_TRUE(writer->Save(path));
  }

  kroui::backend::HeadlessBackend* mHeadless = nullptr;
  ShortcutManager* mManager = nullptr;
  std::filesystem::path mFolder;
  std::string mPreviousClient;
};

TEST_F(ShortcutSetFileTest, ALargeSetSurvivesSaveClearAndRead) {
  DeclareLargeSet();
  const auto before = Snapshot();
  const auto path = mFolder / "user" / "Mine.kys";
  ASSERT_TRUE(mManager->SaveSet(path));
  for (std::size_t c = 0; c < mManager->GetContextCount(); ++c) mManager->GetContext(c).ClearShortcuts();
  ASSERT_NE(Snapshot(), before);
  ASSERT_TRUE(mManager->ReadSet(path));
  EXPECT_EQ(Snapshot(), before);
  EXPECT_TRUE(mHeadless->GetShownMessageBoxes().empty());
}

TEST_F(ShortcutSetFileTest, TheSetInUseIsRememberedAcrossARestart) {
  DeclareLargeSet();
  const auto before = Snapshot();
  ASSERT_TRUE(mManager->SaveSet(mFolder / "user" / "Mine.kys"));
  ASSERT_TRUE(mManager->LoadSet("Mine"));
  EXPECT_EQ(krocore::settings::Preferences::Instance().GetString("FE.Prefs.Shortcuts.Filename", ""), "Mine");

  ShortcutManager::Finalize(); // the application quits and starts again
  ShortcutManager::Initialize();
  mManager = ShortcutManager::Instance();
  mManager->SetShortcutSetFolders(mFolder / "user", mFolder / "presets");
  DeclareLargeSet(); // declarations give other shortcuts...
  for (std::size_t c = 0; c < mManager->GetContextCount(); ++c) mManager->GetContext(c).ClearShortcuts();
  ASSERT_TRUE(mManager->LoadInitialKeyset()); // ...the user's set replaces them
  EXPECT_EQ(Snapshot(), before);
  EXPECT_EQ(mManager->GetCurrentSetName(), "Mine");
}

TEST_F(ShortcutSetFileTest, EachFailureNamesTheFileAndChangesNothing) {
  mManager->GetGlobalContext().DeclareCommand("edit.copy", 57634, CommandKind::Menu, "Copy", {}, false);
  mManager->GetGlobalContext().SetCommandShortcuts("edit.copy", {KeySpec(0x43, true, false, false)});
  const auto before = Snapshot();

  const auto garbage = mFolder / "user" / "Broken.kys";
  std::ofstream(garbage, std::ios::binary) << "\x00\x01<propertystore version=\"1\"><gro";
  EXPECT_FALSE(mManager->ReadSet(garbage));
  EXPECT_EQ(LastMessage(), "The shortcut key file \"Broken.kys\" is invalid!");

  const auto future = mFolder / "user" / "Future.kys";
  std::ofstream(future) << "<?xml version=\"1.0\"?><propertystore version=\"99\"></propertystore>";
  EXPECT_FALSE(mManager->ReadSet(future));
  EXPECT_EQ(LastMessage(), "The shortcut key file Future.kys is incompatible with this version of ZEL Gallery");

  const auto foreign = mFolder / "user" / "Foreign.kys";
  WriteStore(foreign, [](BE::IPropertyStoreWriter& w) { w.WriteString("platform", "plan9"); });
  EXPECT_FALSE(mManager->ReadSet(foreign));
  EXPECT_EQ(LastMessage(), "The shortcut key file Foreign.kys was created on another platform and is "
                           "incompatible with this version of ZEL Gallery");
  EXPECT_EQ(mHeadless->GetShownMessageBoxes().size(), 3u);
  EXPECT_EQ(Snapshot(), before);
}

// A set of one Ctrl shortcut for edit.copy, saved as made on `platform`.
void WriteCopySet(BE::IPropertyStoreWriter& w, const char* platform, std::uint32_t virtualKey) {
  if (platform != nullptr) w.WriteString("platform", platform);
  w.OpenGroup("context.Application");
  w.OpenGroup(BE::CreateKeyWithIndex("item", 0));
  w.WriteString("commandname", "edit.copy");
  w.WriteUnsigned("virtualkey", virtualKey);
  w.WriteBool("modifier.alt", false);
  w.WriteBool("modifier.shift", false);
  w.WriteBool("modifier.ctrl", true);
  w.CloseGroup();
  w.WriteUnsigned("itemcount", 1);
  w.CloseGroup();
}

TEST_F(ShortcutSetFileTest, SetsFromSystemsWithTheControlConventionReadEitherWay) {
  auto& app = mManager->GetGlobalContext();
  app.DeclareCommand("edit.copy", 57634, CommandKind::Menu, "Copy", {}, false);
  app.SetCommandShortcuts("edit.copy", {KeySpec(0x43, true, false, false)});
  std::uint32_t virtualKey = 0x58;
  for (const char* platform : {"windows", "linux"}) {
    SCOPED_TRACE(platform);
    const auto path = mFolder / "user" / (std::string(platform) + ".kys");
    WriteStore(path, [&](BE::IPropertyStoreWriter& w) { WriteCopySet(w, platform, virtualKey); });
    ASSERT_TRUE(mManager->ReadSet(path));
    EXPECT_EQ(app.GetCommandNameMap().at("edit.copy").GetShortcuts(),
              std::vector<KeySpec>{KeySpec(virtualKey, true, false, false)});
    ++virtualKey; // each read must really replace the shortcut
  }
  EXPECT_TRUE(mHeadless->GetShownMessageBoxes().empty());

  const auto saved = mFolder / "user" / "Saved.kys";
  ASSERT_TRUE(mManager->SaveSet(saved));
  auto reader =
      krocore::classref::CreateClassInstanceRef<BE::IPropertyStoreReader>(BE::kXMLFileReaderClassID);
  ASSERT_TRUE(reader->ReadFile(saved));
  EXPECT_EQ(reader->ReadString("platform").value_or(""), ZEL::ShortcutSetFile::GetPlatformName())
      << "a set is saved under the running system's own name";
}

TEST_F(ShortcutSetFileTest, SetsOfAnotherOrUnknownConventionAreRefusedAndChangeNothing) {
  auto& app = mManager->GetGlobalContext();
  app.DeclareCommand("edit.copy", 57634, CommandKind::Menu, "Copy", {}, false);
  app.SetCommandShortcuts("edit.copy", {KeySpec(0x43, true, false, false)});
  const auto before = Snapshot();
  const std::pair<const char*, const char*> refused[] = {{"mac", "Mac.kys"},
                                                         {"plan9", "Plan9.kys"},
                                                         {"Windows", "Case.kys"},
                                                         {"", "Empty.kys"},
                                                         {nullptr, "None.kys"}};
  for (const auto& [platform, file] : refused) {
    SCOPED_TRACE(file);
    const auto path = mFolder / "user" / file;
    WriteStore(path, [&](BE::IPropertyStoreWriter& w) { WriteCopySet(w, platform, 0x58); });
    EXPECT_FALSE(mManager->ReadSet(path));
    EXPECT_EQ(LastMessage(),
              "The shortcut key file " + std::string(file) +
                  " was created on another platform and is incompatible with this version of ZEL Gallery");
    EXPECT_EQ(Snapshot(), before);
  }
  EXPECT_EQ(mHeadless->GetShownMessageBoxes().size(), std::size(refused));
}

TEST_F(ShortcutSetFileTest, HostileCountsAreInvalidNotObeyed) {
  const auto path = mFolder / "user" / "Huge.kys";
  WriteStore(path, [](BE::IPropertyStoreWriter& w) {
    w.WriteString("platform", ZEL::ShortcutSetFile::GetPlatformName());
    w.OpenGroup("context.Application");
    w.WriteUnsigned("itemcount", 4000000000u);
    w.CloseGroup();
  });
  EXPECT_FALSE(mManager->ReadSet(path));
  EXPECT_EQ(LastMessage(), "The shortcut key file \"Huge.kys\" is invalid!");
}

TEST_F(ShortcutSetFileTest, AFileWithADtdIsInvalidAndTheShortcutsInForceStay) {
  auto& app = mManager->GetGlobalContext();
  app.DeclareCommand("edit.copy", 57634, CommandKind::Menu, "Copy", {}, false);
  app.DeclareCommand("edit.paste", 57637, CommandKind::Menu, "Paste", {}, false);
  app.SetCommandShortcuts("edit.copy", {KeySpec(0x43, true, false, false)});
  const auto commandOf = [&](const KeySpec& key) {
    std::int32_t id = -1;
    return app.GetCommandIDFromKeySpec(key, ZEL::CommandKeyMapID::Standard, id) ? id : -1;
  };
  ASSERT_EQ(commandOf(KeySpec(0x43, true, false, false)), 57634);

  // Sound apart from its DTD: read, it would bind Ctrl+V and drop Ctrl+C.
  const std::string item =
      "<unsigned key=\"virtualkey\" value=\"86\"/><bool key=\"modifier.ctrl\" value=\"true\"/>";
  const auto path = mFolder / "user" / "Entities.kys";
  std::ofstream(path)
      << "<?xml version=\"1.0\"?>\n<!DOCTYPE propertystore [<!ENTITY i \"edit.\">"
         "<!ENTITY j \"&i;paste\">]>\n<propertystore version=\"1\"><string key=\"platform\" value=\""
      << ZEL::ShortcutSetFile::GetPlatformName()
      << "\"/><group key=\"context.Application\"><group key=\"item.0\"><string key=\"commandname\" "
         "value=\"&j;\"/>"
      << item << "</group><group key=\"item.1\"><string key=\"commandname\" value=\"edit.paste\"/>" << item
      << "</group><unsigned key=\"itemcount\" value=\"2\"/></group></propertystore>";
  EXPECT_FALSE(mManager->ReadSet(path));
  EXPECT_EQ(LastMessage(), "The shortcut key file \"Entities.kys\" is invalid!");
  EXPECT_EQ(mHeadless->GetShownMessageBoxes().size(), 1u);
  EXPECT_EQ(commandOf(KeySpec(0x43, true, false, false)), 57634);
  EXPECT_EQ(commandOf(KeySpec(0x56, true, false, false)), -1);
}

TEST_F(ShortcutSetFileTest, UnknownCommandsAndDuplicatesAreSkippedAndReportedOnce) {
  auto& app = mManager->GetGlobalContext();
  app.DeclareCommand("edit.copy", 57634, CommandKind::Menu, "Copy", {}, false);
  const auto path = mFolder / "user" / "Odd.kys";
  WriteStore(path, [](BE::IPropertyStoreWriter& w) {
    w.WriteString("platform", ZEL::ShortcutSetFile::GetPlatformName());
    w.OpenGroup("context.Application");
    const char* commands[] = {"edit.copy", "no.such.command", "edit.copy", "also.unknown"};
    for (std::uint32_t i = 0; i < 4; ++i) {
      w.OpenGroup(BE::CreateKeyWithIndex("item", i));
      w.WriteString("commandname", commands[i]);
      w.WriteUnsigned("virtualkey", 0x43);
      w.WriteBool("modifier.ctrl", true);
      w.CloseGroup();
    }
    w.WriteUnsigned("itemcount", 4);
    w.CloseGroup();
  });
  EXPECT_TRUE(mManager->ReadSet(path));
  EXPECT_EQ(app.GetCommandNameMap().at("edit.copy").GetShortcuts(),
            std::vector<KeySpec>{KeySpec(0x43, true, false, false)});
  ASSERT_EQ(mHeadless->GetShownMessageBoxes().size(), 1u);
  EXPECT_EQ(LastMessage().substr(0, 2), "3 ");
}

TEST_F(ShortcutSetFileTest, PresetsAreNeverOverwritten) {
  const auto preset = mFolder / "presets" / "Default.kys";
  std::ofstream(preset) << "preset bytes";
  EXPECT_TRUE(mManager->IsPreset(preset));
  EXPECT_TRUE(mManager->IsPreset(mFolder / "user" / "Classic.kys")) << "a preset's name is reserved";
  EXPECT_FALSE(mManager->IsPreset(mFolder / "user" / "Mine.kys"));
  EXPECT_FALSE(mManager->SaveSet(preset));
  EXPECT_EQ(ReadText(preset), "preset bytes");
}

TEST_F(ShortcutSetFileTest, ASetNameResolvesInTheUserFolderBeforeThePresets) {
  std::ofstream(mFolder / "presets" / "Default.kys") << "preset";
  std::ofstream(mFolder / "presets" / "Shared.kys") << "preset";
  std::ofstream(mFolder / "user" / "Shared.kys") << "user";
  std::filesystem::create_directories(mFolder / "user" / "Folder.kys");
  EXPECT_EQ(mManager->ResolveSet("Default"), mFolder / "presets" / "Default.kys");
  EXPECT_EQ(mManager->ResolveSet("Shared"), mFolder / "user" / "Shared.kys");
  EXPECT_EQ(mManager->ResolveSet("Missing"), std::filesystem::path());
  EXPECT_EQ(mManager->ResolveSet("Folder"), std::filesystem::path()) << "a folder is no set";
  EXPECT_FALSE(mManager->LoadSet("Missing"));
  EXPECT_EQ(mManager->GetCurrentSetName(), "");
}

TEST_F(ShortcutSetFileTest, PresetsKeepTheirOrderAndTakeANewDisplayName) {
  auto names = [&] {
    std::vector<std::string> all;
    for (const auto& [name, display] : mManager->GetPresets()) all.push_back(name);
    return all;
  };
  EXPECT_EQ(names(), (std::vector<std::string>{ShortcutManager::kDefaultPresetName, "Classic", "LayoutA", "LayoutB"}));
  mManager->RegisterPreset("Classic", "Classic (renamed)");
  mManager->RegisterPreset("Studio", "Studio");
  EXPECT_EQ(names(), (std::vector<std::string>{"Default", "Classic", "LayoutA", "LayoutB", "Studio"}));
  EXPECT_EQ(mManager->GetPresets()[1].second, "Classic (renamed)");
  EXPECT_TRUE(mManager->IsPreset(mFolder / "user" / "Studio.kys"));
}

TEST_F(ShortcutSetFileTest, RefreshReadsTheSetInUseAgain) {
  EXPECT_FALSE(mManager->RefreshSet()) << "no set in use yet";
  DeclareLargeSet();
  const auto before = Snapshot();
  ASSERT_TRUE(mManager->SaveSet(mFolder / "user" / "Mine.kys"));
  ASSERT_TRUE(mManager->LoadSet("Mine"));
  mManager->GetContext(1).ClearShortcuts();
  ASSERT_NE(Snapshot(), before);
  EXPECT_TRUE(mManager->RefreshSet());
  EXPECT_EQ(Snapshot(), before);
  EXPECT_EQ(mManager->GetCurrentSetName(), "Mine");
  EXPECT_TRUE(mHeadless->GetShownMessageBoxes().empty());
}

#if defined(__linux__)
// Makes a folder immutable, which even the superuser cannot write into.
class ImmutableFolder {
public:
  explicit ImmutableFolder(const std::filesystem::path& folder) : mFolder(folder) { mActive = SetFlag(true); }
  ~ImmutableFolder() {
    if (mActive) SetFlag(false);
  }
  bool IsActive() const { return mActive; }

private:
  bool SetFlag(bool on) {
    const int fd = ::open(mFolder.c_str(), O_RDONLY | O_DIRECTORY);
    if (fd < 0) return false;
    int flags = 0;
    bool ok = ::ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0;
    flags = on ? (flags | FS_IMMUTABLE_FL) : (flags & ~FS_IMMUTABLE_FL);
    ok = ok && ::ioctl(fd, FS_IOC_SETFLAGS, &flags) == 0;
    ::close(fd);
    return ok;
  }
  std::filesystem::path mFolder;
  bool mActive = false;
};

TEST_F(ShortcutSetFileTest, SavingIntoAReadOnlyFolderFailsAndKeepsTheOldFile) {
  mManager->GetGlobalContext().DeclareCommand("edit.copy", 57634, CommandKind::Menu, "Copy", {}, false);
  const auto path = mFolder / "user" / "Mine.kys";
  ASSERT_TRUE(mManager->SaveSet(path));
  const std::string old = ReadText(path);
  mManager->GetGlobalContext().SetCommandShortcuts("edit.copy", {KeySpec(0x43, true, false, false)});
  ImmutableFolder readOnly(mFolder / "user");
  if (!readOnly.IsActive()) GTEST_SKIP() << "this file system cannot make a folder read-only for the superuser";
  EXPECT_FALSE(mManager->SaveSet(path));
  EXPECT_EQ(ReadText(path), old);
}
#endif

} // namespace
