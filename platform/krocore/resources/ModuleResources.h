#pragma once

#include <krocore/Export.h>

#include <cstddef>
#include <string_view>

namespace krocore::utility {

/// The bytes of a resource compiled into a module; empty when none was found.
/// The bytes live as long as the module and are followed by a zero byte.
struct ResourceBytes {
  const unsigned char* data = nullptr;
  std::size_t size = 0;

  bool IsEmpty() const noexcept { return data == nullptr; }
  std::string_view AsText() const noexcept { return {reinterpret_cast<const char*>(data), size}; }
};

/// Finds a resource by module ("zel"), type (u"table") and name (u"zelcolors").
/// Type and name match case-insensitively in ASCII, as resource names do on Windows.
KROCORE_API ResourceBytes GetBinaryFromModule(std::string_view module, std::u16string_view type,
                                              std::u16string_view name);

/// Made by the code the build generates for each resource file: files the
/// bytes while the module loads, and withdraws them when it unloads.
class KROCORE_API ModuleResourceRegistrar {
public:
  ModuleResourceRegistrar(const char* module, const char16_t* type, const char16_t* name,
                          const unsigned char* data, std::size_t size);
  ~ModuleResourceRegistrar();
  ModuleResourceRegistrar(const ModuleResourceRegistrar&) = delete;
  ModuleResourceRegistrar& operator=(const ModuleResourceRegistrar&) = delete;

private:
  const char* mModule;
  const char16_t* mType;
  const char16_t* mName;
};

} // namespace krocore::utility
