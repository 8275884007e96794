#pragma once

#include <krocore/Export.h>
#include <krocore/utility/Result.h>

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace krocore::utility {

/// Reads a whole file, refusing one larger than `maxBytes` before reading it,
/// so that a hostile file cannot make the reader allocate without bound.
KROCORE_API Result<std::string> ReadFileBytes(const std::filesystem::path& path, std::size_t maxBytes);

/// Writes a file so that it is either the complete new content or untouched:
/// the bytes go to a temporary file beside it, are flushed to the disk, and
/// the temporary file is renamed over the old one only then.
KROCORE_API Result<void> WriteFileAtomically(const std::filesystem::path& path, std::string_view bytes);

/// Copies a file beside itself under the first free name of "<name>.bak",
/// "<name>.bak.2", ... (an existing copy is never replaced) and answers the
/// copy's path.
KROCORE_API Result<std::filesystem::path> KeepBackupCopy(const std::filesystem::path& path);

} // namespace krocore::utility
