#include <krocore/classref/ClassRegistry.h>

#include <krocore/debug/Assert.h>

#include <mutex>
#include <unordered_map>

namespace krocore::classref {
namespace {

struct Registry {
  std::mutex mutex;
  std::unordered_map<ClassID, ClassFactory> factories;
};

Registry& TheRegistry() {
  static Registry registry;
  return registry;
}

} // namespace

UnknownBase::~UnknownBase() = default;

bool RegisterClassFactory(const ClassID& id, ClassFactory factory) {
  if (!KROCORE_ASSERT(!id.IsEmpty() && factory, "A class factory needs an ID and a function")) return false;
  Registry& registry = TheRegistry();
  std::lock_guard lock(registry.mutex);
  const bool inserted = registry.factories.emplace(id, std::move(factory)).second;
  return KROCORE_ASSERT(inserted, "Class ID \"" + id.ToString() + "\" is already registered");
}

bool UnregisterClassFactory(const ClassID& id) {
  Registry& registry = TheRegistry();
  std::lock_guard lock(registry.mutex);
  return registry.factories.erase(id) > 0;
}

bool IsClassRegistered(const ClassID& id) {
  Registry& registry = TheRegistry();
  std::lock_guard lock(registry.mutex);
  return registry.factories.contains(id);
}

FlexPtr<UnknownBase> CreateUnknownInstance(const ClassID& id) {
  ClassFactory factory;
  {
    Registry& registry = TheRegistry();
    std::lock_guard lock(registry.mutex);
    auto it = registry.factories.find(id);
    if (it == registry.factories.end()) return nullptr;
    factory = it->second;
  }
  return factory();
}

} // namespace krocore::classref
