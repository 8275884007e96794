#include <krocore/resources/ModuleResources.h>

#include <cstdint>
#include <map>
#include <mutex>
#include <string>
#include <tuple>

namespace krocore::utility {
namespace {

std::u16string FoldCase(std::u16string_view text) {
  std::u16string folded(text);
  for (char16_t& c : folded)
    if (c >= u'A' && c <= u'Z') c = static_cast<char16_t>(c - u'A' + u'a');
  return folded;
}

using Key = std::tuple<std::string, std::u16string, std::u16string>;

Key MakeKey(std::string_view module, std::u16string_view type, std::u16string_view name) {
  return {std::string(module), FoldCase(type), FoldCase(name)};
}

// Each entry remembers its registrar, so that a registrar withdraws only what
// it filed and not what a later one filed under the same key.
struct Entry {
  ResourceBytes bytes;
  const ModuleResourceRegistrar* owner;
};

struct Table {
  std::mutex mutex;
  std::map<Key, Entry> entries;
};

Table& Resources() {
  // Never destroyed: registrars of modules unloading at exit still reach it.
  static auto* table = new Table();
  return *table;
}

std::size_t SizeOf(const ModuleResource& resource) {
  // begin and end are labels around one embedded file, not one C++ array.
  return static_cast<std::size_t>(reinterpret_cast<std::uintptr_t>(resource.end) -
                                  reinterpret_cast<std::uintptr_t>(resource.begin));
}

void File(const char* module, std::span<const ModuleResource> resources, const ModuleResourceRegistrar* owner) {
  Table& table = Resources();
  std::lock_guard lock(table.mutex);
  for (const ModuleResource& resource : resources)
    table.entries[MakeKey(module, resource.type, resource.name)] = Entry{{resource.begin, SizeOf(resource)}, owner};
}

} // namespace

ResourceBytes GetBinaryFromModule(std::string_view module, std::u16string_view type, std::u16string_view name) {
  Table& table = Resources();
  std::lock_guard lock(table.mutex);
  auto it = table.entries.find(MakeKey(module, type, name));
  return it == table.entries.end() ? ResourceBytes{} : it->second.bytes;
}

ModuleResourceRegistrar::ModuleResourceRegistrar(const char* module, std::span<const ModuleResource> resources) {
  File(module, resources, this);
}

ModuleResourceRegistrar::ModuleResourceRegistrar(const char* module, const char16_t* type, const char16_t* name,
                                                 const unsigned char* data, std::size_t size) {
  const ModuleResource resource{type, name, data, data + size};
  File(module, {&resource, 1}, this);
}

ModuleResourceRegistrar::~ModuleResourceRegistrar() {
  Table& table = Resources();
  std::lock_guard lock(table.mutex);
  std::erase_if(table.entries, [this](const auto& entry) { return entry.second.owner == this; });
}

} // namespace krocore::utility
