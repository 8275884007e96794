// Building a context's key maps from its declarations, the application
// context's and the immutable shortcuts.
#include <zel/commands/CommandContext.h>

#include <zel/commands/ShortcutManager.h>

#include <algorithm>

namespace ZEL {
namespace {

std::vector<KeySpec> SortedUnique(std::vector<KeySpec> keys) {
  std::sort(keys.begin(), keys.end());
  keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
  return keys;
}

} // namespace

struct CommandContext::MapBuild {
  std::vector<KeyCommandMap::Binding> standard, minimal, fixed;
  std::vector<KeySpec> upAndDown;
  std::vector<KeySpec> taken; // sorted: keys a later source may not bind
  std::vector<KeySpec> bound; // keys the current source bound
};

void CommandContext::AddBindingsOf(const CommandContext& source, MapBuild& build) const {
  build.bound.clear();
  for (const std::int32_t id : source.mDeclarationOrder) {
    const CommandInfo& info = *source.FindCommand(id);
    const bool minimal = source.mMinimal.contains(info.GetCommandID());
    for (const KeySpec& key : info.GetShortcuts()) {
      if (std::binary_search(build.taken.begin(), build.taken.end(), key)) continue;
      build.standard.emplace_back(key, info.GetCommandID());
      if (minimal) build.minimal.emplace_back(key, info.GetCommandID());
      if (info.GetUsesKeyUp()) build.upAndDown.push_back(key);
      build.bound.push_back(key);
    }
  }
  build.taken.insert(build.taken.end(), build.bound.begin(), build.bound.end());
  build.taken = SortedUnique(std::move(build.taken));
}

bool CommandContext::MapsAreStale() const {
  if (mMapsStale) return true;
  const ShortcutManager* manager = ShortcutManager::Instance();
  if (!manager) return mBuiltFromGlobal != 0 || mBuiltFromImmutables != 0;
  const CommandContext* global = manager->GetContextCount() ? &manager->GetGlobalContext() : nullptr;
  const std::uint64_t globalGeneration = global && global != this ? global->GetGeneration() : 0;
  return globalGeneration != mBuiltFromGlobal || manager->GetImmutablesGeneration() != mBuiltFromImmutables;
}

void CommandContext::BuildKeyCommandMapsIfNeeded() {
  if (MapsAreStale()) BuildKeyCommandMaps();
}

void CommandContext::BuildKeyCommandMaps() {
  const ShortcutManager* manager = ShortcutManager::Instance();
  const CommandContext* global = manager && manager->GetContextCount() ? &manager->GetGlobalContext() : nullptr;
  if (global == this) global = nullptr;

  MapBuild build;
  if (manager) {
    // Immutable shortcuts come first and keep their keys in every context.
    for (const auto& [id, key] : manager->GetImmutables()) {
      build.fixed.emplace_back(key, id);
      build.taken.push_back(key);
    }
    build.standard = build.fixed;
    build.taken = SortedUnique(std::move(build.taken));
  }
  AddBindingsOf(*this, build);
  if (global) AddBindingsOf(*global, build);

  mMaps[0].Assign(std::move(build.standard));
  mMaps[1].Assign(std::move(build.minimal));
  mMaps[2].Assign(std::move(build.fixed));
  mUpAndDownKeys = SortedUnique(std::move(build.upAndDown));
  std::vector<KeySpec> exempt;
  for (const auto& entry : mMaps[1].Entries()) exempt.push_back(entry.key);
  mExemptKeys = std::move(exempt); // already in key order
  mRepeatDisabledInForce = mRepeatDisabled;
  if (global) mRepeatDisabledInForce.insert(global->mRepeatDisabled.begin(), global->mRepeatDisabled.end());

  mMenuTexts.clear();
  for (const auto& [name, info] : mCommands) AppendAccelerator(info);

  mBuiltFromGlobal = global ? global->GetGeneration() : 0;
  mBuiltFromImmutables = manager ? manager->GetImmutablesGeneration() : 0;
  mMapsStale = false;
}

// Menus show a command's shortcuts after a tab: "Copy\tCtrl+C".
void CommandContext::AppendAccelerator(const CommandInfo& info) {
  UTF8String text = info.GetUIString();
  for (std::size_t i = 0; i < info.GetShortcuts().size(); ++i) {
    text += i == 0 ? "\t" : ", ";
    text += info.GetShortcuts()[i].GetString();
  }
  mMenuTexts.emplace(info.GetCommandID(), std::move(text));
}

} // namespace ZEL
