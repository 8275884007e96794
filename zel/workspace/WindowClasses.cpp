#include <zel/workspace/WindowClasses.h>

#include <zel/commands/CommandContext.h>
#include <zel/commands/CommandInfo.h>
#include <zel/commands/ShortcutManager.h>
#include <zel/commands/SyntheticCommand.h>
#include <zel/workspace/WindowClassRegistry.h>

#include <krocore/debug/Assert.h>

#include <algorithm>
#include <string>

namespace ZEL {
namespace {

std::string ClassCommandName(const UTF8String& className) { return "window." + className; }

std::string WindowCommandName(const UTF8String& className, const WindowInfo& window) {
  return ClassCommandName(className) + "." + std::to_string(window.mViewID) + "." + std::to_string(window.mWindowID);
}

void DeclareClassCommand(const UTF8String& className, const WindowClassEntry& entry) {
  ShortcutManager* manager = ShortcutManager::Instance();
  if (!manager || entry.mCommandID == 0) return;
  CommandContext& global = manager->GetGlobalContext();
  global.DeclareCommandLocalized(ClassCommandName(className), entry.mCommandID, CommandKind::Menu,
                                 entry.mDisplayName, {}, false);
  global.ClearKeyCommandMaps();
}

void UndeclareClassCommand(const WindowClassEntry& entry) {
  ShortcutManager* manager = ShortcutManager::Instance();
  if (!manager || entry.mCommandID == 0) return;
  CommandContext& global = manager->GetGlobalContext();
  global.UndeclareCommand(entry.mCommandID);
  global.ClearKeyCommandMaps();
}

void GiveWindowsCommands(const UTF8String& className, WindowClassEntry& entry) {
  for (WindowInfo& window : entry.mWindows) {
    if (window.mCommandID != 0) continue;
    const CommandInfo description(WindowCommandName(className, window), 0, CommandKind::Menu, window.mName,
                                  window.mName, {}, false);
    window.mCommandID = static_cast<unsigned int>(SyntheticCommand::MakeID(description));
  }
}

template <class Predicate>
void RemoveWindowsIf(WindowClassEntry& entry, bool unregisterCommand, Predicate matches) {
  auto removed = std::stable_partition(entry.mWindows.begin(), entry.mWindows.end(),
                                       [&](const WindowInfo& window) { return !matches(window); });
  for (auto it = removed; it != entry.mWindows.end() && unregisterCommand; ++it) {
    const auto id = static_cast<std::int32_t>(it->mCommandID);
    if (SyntheticCommand::IsSynthetic(id)) SyntheticCommand::UnregisterCommand(id);
  }
  entry.mWindows.erase(removed, entry.mWindows.end());
}

bool SameOwner(const std::weak_ptr<krocore::classref::UnknownBase>& left,
               const std::shared_ptr<krocore::classref::UnknownBase>& right) {
  return !left.owner_before(right) && !right.owner_before(left);
}

} // namespace

void AddWindowClass(const UTF8String& className, const UTF8String& displayName, WindowClassType type) {
  WindowClassEntry& entry = GetWindowClassMap()[className];
  entry.mDisplayName = displayName;
  entry.mType = type;
  if (entry.mCommandID == 0) {
    const CommandInfo description(ClassCommandName(className), 0, CommandKind::Menu, className, displayName, {},
                                  false);
    entry.mCommandID = SyntheticCommand::MakeID(description);
  }
  DeclareClassCommand(className, entry);
}

void RemoveWindowClass(const UTF8String& className) {
  WindowClassEntry* entry = FindWindowClass(className);
  if (!entry) return;
  UndeclareClassCommand(*entry);
  GetWindowClassMap().erase(className);
}

void SetWindowClassType(const UTF8String& className, WindowClassType type) {
  if (WindowClassEntry* entry = FindWindowClass(className)) entry->mType = type;
}

WindowClassType GetWindowClassType(const UTF8String& className) {
  const WindowClassEntry* entry = FindWindowClass(className);
  return entry ? entry->mType : WindowClassType::Unknown;
}

void SetWindowClassCommandID(const UTF8String& className, int commandID) {
  WindowClassEntry* entry = FindWindowClass(className);
  if (!KROCORE_ASSERT(entry, "SetWindowClassCommandID: unknown window class")) return;
  UndeclareClassCommand(*entry);
  entry->mCommandID = commandID;
  DeclareClassCommand(className, *entry);
}

int GetWindowClassCommandID(const UTF8String& className) {
  const WindowClassEntry* entry = FindWindowClass(className);
  return entry ? entry->mCommandID : 0;
}

UTF8String GetWindowClassDisplayName(const UTF8String& className) {
  const WindowClassEntry* entry = FindWindowClass(className);
  return entry ? entry->mDisplayName : UTF8String();
}

void SetWindowClassWindowInfoCommandID(const UTF8String& className, unsigned int windowID, int commandID) {
  WindowClassEntry* entry = FindWindowClass(className);
  if (!entry) return;
  for (WindowInfo& window : entry->mWindows)
    if (window.mWindowID == windowID) window.mWindowInfoCommandID = commandID;
}

void ForEachWindowClass(WindowClassCallback& callback, WindowClassSortCallback& sort) {
  std::vector<UTF8String> names;
  for (const auto& [name, entry] : GetWindowClassMap()) names.push_back(name);
  std::stable_sort(names.begin(), names.end(),
                   [&](const UTF8String& left, const UTF8String& right) { return sort.IsBefore(left, right); });
  // By name, not by reference: the callback may add or remove classes.
  for (const UTF8String& name : names) {
    WindowClassEntry* entry = FindWindowClass(name);
    if (!entry) continue;
    GiveWindowsCommands(name, *entry);
    callback.OnWindowClass(name);
  }
}

void AddWindow(const UTF8String& className, const unsigned int& windowID, const UTF8String& name,
               const unsigned int& commandID) {
  AddWindow(className, windowID, name, {}, {}, commandID);
}

void AddWindow(const UTF8String& className, const unsigned int& windowID, const UTF8String& name,
               std::weak_ptr<krocore::classref::UnknownBase> project,
               std::weak_ptr<krocore::classref::UnknownBase> item, const unsigned int& commandID) {
  WindowClassEntry* entry = FindWindowClass(className);
  if (!KROCORE_ASSERT(entry, "AddWindow: unknown window class")) return;
  WindowInfo window{windowID, name, commandID, std::move(project), std::move(item), 0, 0};
  for (WindowInfo& existing : entry->mWindows) {
    if (existing.mWindowID == windowID && existing.mViewID == 0) {
      existing = std::move(window);
      return;
    }
  }
  entry->mWindows.push_back(std::move(window));
}

void RemoveWindow(const UTF8String& className, const unsigned int& windowID, bool unregisterCommand) {
  WindowClassEntry* entry = FindWindowClass(className);
  if (!entry) return;
  RemoveWindowsIf(*entry, unregisterCommand, [&](const WindowInfo& window) { return window.mWindowID == windowID; });
}

void RemoveWindow(const UTF8String& className, const unsigned int& viewID, const unsigned int& contextID,
                  bool unregisterCommand) {
  WindowClassEntry* entry = FindWindowClass(className);
  if (!entry) return;
  RemoveWindowsIf(*entry, unregisterCommand, [&](const WindowInfo& window) {
    return window.mViewID == viewID && window.mWindowID == contextID;
  });
}

void RemoveWindow(const UTF8String& className, const InterfaceRef<IProject>& project, const unsigned int& viewID) {
  WindowClassEntry* entry = FindWindowClass(className);
  if (!entry || !project) return;
  const std::shared_ptr<krocore::classref::UnknownBase> owner = project;
  RemoveWindowsIf(*entry, false, [&](const WindowInfo& window) {
    return (viewID == 0 || window.mViewID == viewID) && SameOwner(window.mProject, owner);
  });
}

void RenameWindow(const UTF8String& className, const unsigned int& windowID, const UTF8String& newName,
                  const unsigned int& viewID) {
  WindowClassEntry* entry = FindWindowClass(className);
  if (!entry) return;
  for (WindowInfo& window : entry->mWindows)
    if (window.mWindowID == windowID && window.mViewID == viewID) window.mName = newName;
}

std::uint64_t GetWindowCount(const UTF8String& className) {
  const WindowClassEntry* entry = FindWindowClass(className);
  return entry ? entry->mWindows.size() : 0;
}

void GetWindows(const UTF8String& className, std::vector<WindowInfo>& windows) {
  windows.clear();
  if (const WindowClassEntry* entry = FindWindowClass(className)) windows = entry->mWindows;
}

} // namespace ZEL
