#pragma once
// Private to the shortcut manager: its three parts, built in this order
// because the dispatcher reads the registry.

#include <zel/commands/ContextRegistry.h>
#include <zel/commands/ShortcutDispatcher.h>
#include <zel/commands/ShortcutManager.h>
#include <zel/commands/ShortcutSetLibrary.h>

namespace ZEL {

class ShortcutManager;

struct ShortcutManagerImpl {
  explicit ShortcutManagerImpl(const ShortcutManager& front)
      : registry(ShortcutManager::kApplicationContextName), dispatcher(registry), library(front) {}

  ContextRegistry registry;
  ShortcutDispatcher dispatcher;
  ShortcutSetLibrary library;
};

} // namespace ZEL
