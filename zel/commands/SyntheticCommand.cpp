#include <zel/commands/SyntheticCommand.h>

#include <zel/commands/Command.h>

#include <krocore/debug/Assert.h>

#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <string>

namespace ZEL {
namespace {

struct Registry {
  std::map<std::string, std::int32_t, std::less<>> idByName;
  std::map<std::int32_t, CommandInfo> infoByID;
};

std::atomic<std::int32_t> sCounter{SyntheticCommand::kFirstID};
std::mutex sMutex;
std::unique_ptr<Registry> sRegistry;

} // namespace

void SyntheticCommand::Initialize() {
  std::lock_guard lock(sMutex);
  sRegistry = std::make_unique<Registry>();
  sCounter = kFirstID;
}

void SyntheticCommand::Terminate() {
  std::lock_guard lock(sMutex);
  sRegistry.reset();
}

std::int32_t SyntheticCommand::MakeID(const CommandInfo& description) {
  std::lock_guard lock(sMutex);
  if (!KROCORE_ASSERT(sRegistry, "SyntheticCommand has not been initialized")) return 0;
  auto known = sRegistry->idByName.find(description.GetCommandName());
  if (known != sRegistry->idByName.end()) return known->second;
  const std::int32_t id = sCounter.fetch_sub(1);
  sRegistry->idByName.emplace(description.GetCommandName(), id);
  sRegistry->infoByID.emplace(id, description);
  return id;
}

bool SyntheticCommand::IsSynthetic(std::int32_t id) noexcept { return id <= kFirstID && id > sCounter.load(); }

bool SyntheticCommand::IsSynthetic(const Command& command) noexcept { return IsSynthetic(command.GetID()); }

std::optional<CommandInfo> SyntheticCommand::GetCommandInfo(std::int32_t id) {
  std::lock_guard lock(sMutex);
  if (!sRegistry) return std::nullopt;
  auto it = sRegistry->infoByID.find(id);
  if (it == sRegistry->infoByID.end()) return std::nullopt;
  return it->second;
}

bool SyntheticCommand::UnregisterCommand(std::int32_t id) {
  std::lock_guard lock(sMutex);
  if (!sRegistry) return false;
  auto it = sRegistry->infoByID.find(id);
  if (it == sRegistry->infoByID.end()) return false;
  sRegistry->idByName.erase(it->second.GetCommandName());
  sRegistry->infoByID.erase(it);
  return true;
}

} // namespace ZEL
