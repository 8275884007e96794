#include <zel/commands/ShortcutSetLibrary.h>

#include <zel/Localization.h>
#include <zel/application/MessageBox.h>
#include <zel/commands/CommandContext.h>
#include <zel/commands/ShortcutManager.h>
#include <zel/commands/ShortcutSetFile.h>

#include <krocore/config/TopLevel.h>
#include <krocore/settings/Preferences.h>
#include <kroui/ui/MessageBox.h>

#include <algorithm>

namespace ZEL {
namespace {

const std::string kExtension = Localize("$$$/Vantor/Libraries/ZEL/KeysExtension=.kys");

void ShowProblem(std::string_view templateKey, const std::string& fileName) {
  ShowMessage(ReplacePlaceholders(Localize(templateKey), {fileName, krocore::config::GetClientName()}),
              kroui::ui::kMessageBox_OK | kroui::ui::kMessageBox_IconWarning);
}

void ReportFailure(ShortcutSetFile::Failure failure, const std::string& fileName) {
  switch (failure) {
  case ShortcutSetFile::Failure::Invalid:
    ShowProblem("$$$/Vantor/Libraries/ZEL/InvalidShortCutFile=The shortcut key file \"@0\" is invalid!", fileName);
    break;
  case ShortcutSetFile::Failure::IncompatibleVersion:
    ShowProblem("$$$/Vantor/Libraries/ZEL/IncorrectVersionTemplate=The shortcut key file @0 is incompatible with "
                "this version of @1",
                fileName);
    break;
  case ShortcutSetFile::Failure::OtherPlatform:
    ShowProblem("$$$/Vantor/Libraries/ZEL/IncorrectPlatformTemplate=The shortcut key file @0 was created on another "
                "platform and is incompatible with this version of @1",
                fileName);
    break;
  case ShortcutSetFile::Failure::None: break;
  }
}

void ReportSkipped(std::size_t skipped, const std::string& fileName) {
  ShowMessage(ReplacePlaceholders(Localize("$$$/Vantor/Libraries/ZEL/SkippedShortcuts=@0 shortcuts in the shortcut "
                                           "key file \"@1\" name commands that do not exist or repeat a shortcut, "
                                           "and were left out."),
                                  {std::to_string(skipped), fileName}),
              kroui::ui::kMessageBox_OK | kroui::ui::kMessageBox_IconInformation);
}

} // namespace

void ShortcutSetLibrary::RegisterBuiltInPresets() {
  RegisterPreset(ShortcutManager::kDefaultPresetName, Localize("$$$/Vantor/Libraries/ZEL/DefaultKeyset=Default"));
  RegisterPreset("Classic", Localize("$$$/Vantor/Libraries/ZEL/ClassicKeyset=Classic (earlier release)"));
  RegisterPreset("LayoutA", Localize("$$$/Vantor/Libraries/ZEL/LayoutAKeyset=Trim-centred layout"));
  RegisterPreset("LayoutB", Localize("$$$/Vantor/Libraries/ZEL/LayoutBKeyset=Single-key layout"));
}

void ShortcutSetLibrary::SetShortcutSetFolders(std::filesystem::path userFolder, std::filesystem::path presetFolder) {
  mUserSetFolder = std::move(userFolder);
  mPresetSetFolder = std::move(presetFolder);
}

void ShortcutSetLibrary::RegisterPreset(const std::string& name, const UTF8String& displayName) {
  auto it = std::find_if(mPresets.begin(), mPresets.end(), [&](const auto& p) { return p.first == name; });
  if (it != mPresets.end()) it->second = displayName;
  else mPresets.emplace_back(name, displayName);
}

bool ShortcutSetLibrary::IsPreset(const std::filesystem::path& path) const {
  if (!mPresetSetFolder.empty() && path.parent_path().lexically_normal() == mPresetSetFolder.lexically_normal())
    return true;
  const std::string stem = path.stem().string();
  return std::any_of(mPresets.begin(), mPresets.end(), [&](const auto& p) { return p.first == stem; });
}

bool ShortcutSetLibrary::SaveSet(const std::filesystem::path& path) const {
  if (IsPreset(path)) return false;
  return ShortcutSetFile::Write(mManager, path);
}

bool ShortcutSetLibrary::ReadSet(const std::filesystem::path& path) {
  const std::string fileName = path.filename().string();
  ShortcutSetFile::ReadSet set = ShortcutSetFile::Read(mManager, path);
  if (set.failure != ShortcutSetFile::Failure::None) {
    ReportFailure(set.failure, fileName);
    return false;
  }
  for (auto& [context, shortcuts] : set.contexts) context->ReplaceShortcuts(shortcuts);
  if (set.skippedItems > 0) ReportSkipped(set.skippedItems, fileName);
  return true;
}

std::filesystem::path ShortcutSetLibrary::ResolveSet(const std::string& name) const {
  for (const auto& folder : {mUserSetFolder, mPresetSetFolder}) {
    if (folder.empty()) continue;
    std::filesystem::path path = folder / (name + kExtension);
    std::error_code error;
    if (std::filesystem::is_regular_file(path, error)) return path;
  }
  return {};
}

bool ShortcutSetLibrary::LoadSet(const std::string& name) {
  const std::filesystem::path path = ResolveSet(name);
  if (path.empty() || !ReadSet(path)) return false;
  mCurrentSetName = name;
  krocore::settings::Preferences::Instance().Set(ShortcutManager::kPreferenceShortcutsFilename, name);
  return true;
}

bool ShortcutSetLibrary::LoadInitialKeyset() {
  const std::string name =
      krocore::settings::Preferences::Instance().GetString(ShortcutManager::kPreferenceShortcutsFilename, "");
  return !name.empty() && LoadSet(name);
}

bool ShortcutSetLibrary::RefreshSet() { return !mCurrentSetName.empty() && LoadSet(mCurrentSetName); }

} // namespace ZEL
