#pragma once
// Private to the shortcut manager (ShortcutManagerImpl.h).

#include <zel/commands/CommandTypes.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace ZEL {

class ShortcutManager;

/// The shortcut manager's sets: which file holds which set, the presets,
/// saving and reading, and which set is in use (remembered in the
/// preferences). A set is read into force whole or not at all; whatever
/// goes wrong, the user is told in a message box and the shortcuts in
/// force stay.
class ShortcutSetLibrary {
public:
  /// Set files are read into and written from the manager's contexts.
  explicit ShortcutSetLibrary(const ShortcutManager& manager) noexcept : mManager(manager) {}

  void RegisterBuiltInPresets();
  void SetShortcutSetFolders(std::filesystem::path userFolder, std::filesystem::path presetFolder);
  void RegisterPreset(const std::string& name, const UTF8String& displayName);
  const std::vector<std::pair<std::string, UTF8String>>& GetPresets() const noexcept { return mPresets; }
  bool IsPreset(const std::filesystem::path& path) const;

  bool SaveSet(const std::filesystem::path& path) const;
  bool ReadSet(const std::filesystem::path& path);
  std::filesystem::path ResolveSet(const std::string& name) const;
  bool LoadSet(const std::string& name);
  bool LoadInitialKeyset();
  bool RefreshSet();
  const std::string& GetCurrentSetName() const noexcept { return mCurrentSetName; }

private:
  const ShortcutManager& mManager;
  std::filesystem::path mUserSetFolder, mPresetSetFolder;
  std::vector<std::pair<std::string, UTF8String>> mPresets;
  std::string mCurrentSetName;
};

} // namespace ZEL
