// Shortcut set files come from users' disks and the web: whatever the bytes,
// reading must fail cleanly or give shortcuts that exist and are declared.
#include <zel/commands/ShortcutManager.h>
#include <zel/commands/ShortcutSetFile.h>

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

ZEL::ShortcutManager& Manager() {
  static ZEL::ShortcutManager* manager = [] {
    ZEL::ShortcutManager::Initialize();
    auto* m = ZEL::ShortcutManager::Instance();
    m->GetGlobalContext().DeclareCommand("edit.copy", 57634, ZEL::CommandKind::Menu, "Copy", {}, false);
    m->GetGlobalContext().DeclareCommand("edit.paste", 57637, ZEL::CommandKind::Menu, "Paste", {}, false);
    m->AddContext("Timeline", "Timeline").DeclareCommand("clip.split", 500, ZEL::CommandKind::Menu, "Split", {}, false);
    return m;
  }();
  return *manager;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const auto set = ZEL::ShortcutSetFile::ReadBytes(Manager(), bytes);
  if (set.failure != ZEL::ShortcutSetFile::Failure::None && !set.contexts.empty()) std::abort();
  for (const auto& [context, shortcuts] : set.contexts)
    for (const auto& [command, keys] : shortcuts) {
      if (context->GetCommandNameMap().find(command) == context->GetCommandNameMap().end()) std::abort();
      for (const auto& key : keys)
        if (!key.HasShortcut()) std::abort();
    }
  return 0;
}
