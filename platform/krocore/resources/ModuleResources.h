#pragma once

#include <krocore/Export.h>

#include <cstddef>
#include <span>
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

/// One entry of the resource table the build generates for a module: the file's
/// bytes run from begin to end, and a zero byte follows them.
struct ModuleResource {
  const char16_t* type;
  const char16_t* name;
  const unsigned char* begin;
  const unsigned char* end;
};

/// Files resources under a module while it lives and withdraws them when it dies.
/// The build makes one per module, over the module's whole table, while the
/// module loads; a test can make one for a single resource of its own. A later
/// registrar of the same module, type and name takes the place of an earlier one.
class KROCORE_API ModuleResourceRegistrar {
public:
  ModuleResourceRegistrar(const char* module, std::span<const ModuleResource> resources);
  ModuleResourceRegistrar(const char* module, const char16_t* type, const char16_t* name,
                          const unsigned char* data, std::size_t size);
  ~ModuleResourceRegistrar();
  ModuleResourceRegistrar(const ModuleResourceRegistrar&) = delete;
  ModuleResourceRegistrar& operator=(const ModuleResourceRegistrar&) = delete;
};

} // namespace krocore::utility
