#pragma once

// Where the project's source tree is, for tests that read files committed
// beside them (reference images). __FILE__ cannot say: builds through ccache
// compile with paths relative to the build folder.

#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace testsupport {

/// The root of the source tree: ZEL_SOURCE_DIR (CTest sets it), else the
/// nearest folder above the test executable that holds zel/ZEL.h.
inline std::filesystem::path SourceRoot() {
  if (const char* root = std::getenv("ZEL_SOURCE_DIR"); root && *root) return root;
  std::error_code error;
  std::filesystem::path folder = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
  for (; !error && !folder.empty() && folder != folder.root_path(); folder = folder.parent_path()) {
    if (std::filesystem::exists(folder / "zel" / "ZEL.h", error)) return folder;
  }
  return std::filesystem::current_path();
}

/// A path given from the root of the source tree.
inline std::filesystem::path SourcePath(std::string_view fromRoot) { return SourceRoot() / fromRoot; }

} // namespace testsupport
