#pragma once

#include <be/Export.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace BE {

// Keys are plain std::string, not interned ImmutableStrings. A store of ten
// thousand items makes "item.0" to "item.9999" once each while it is read or
// written; interning would keep every one of them in a process-wide table for
// the life of the process, and a file claiming four billion items would grow
// that table without end. Keys this short fit std::string's inline buffer,
// so making one allocates nothing.

/// "context" and "Timeline" give "context.Timeline"; an empty base gives the suffix alone.
BE_API std::string CreateKeyWithSuffix(std::string_view base, std::string_view suffix);

/// "item" and 3 give "item.3"; an empty base gives the number alone.
BE_API std::string CreateKeyWithIndex(std::string_view base, std::uint32_t index);

} // namespace BE
