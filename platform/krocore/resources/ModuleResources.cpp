#include <krocore/resources/ModuleResources.h>

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

struct Table {
  std::mutex mutex;
  std::map<Key, ResourceBytes> entries;
};

Table& Resources() {
  // Never destroyed: registrars of modules unloading at exit still reach it.
  static auto* table = new Table();
  return *table;
}

} // namespace

ResourceBytes GetBinaryFromModule(std::string_view module, std::u16string_view type, std::u16string_view name) {
  Table& table = Resources();
  std::lock_guard lock(table.mutex);
  auto it = table.entries.find(MakeKey(module, type, name));
  return it == table.entries.end() ? ResourceBytes{} : it->second;
}

ModuleResourceRegistrar::ModuleResourceRegistrar(const char* module, const char16_t* type, const char16_t* name,
                                                 const unsigned char* data, std::size_t size)
    : mModule(module), mType(type), mName(name) {
  Table& table = Resources();
  std::lock_guard lock(table.mutex);
  table.entries[MakeKey(module, type, name)] = ResourceBytes{data, size};
}

ModuleResourceRegistrar::~ModuleResourceRegistrar() {
  Table& table = Resources();
  std::lock_guard lock(table.mutex);
  table.entries.erase(MakeKey(mModule, mType, mName));
}

} // namespace krocore::utility
