#pragma once

#include <cstdint>

namespace BE {

/// What a key of a property store holds. A value is read back only as the
/// type it was written with; any other type answers "absent".
enum class PropertyValueType : std::uint8_t {
  kAbsent,
  kBool,
  kInteger,  ///< signed 64-bit
  kUnsigned, ///< unsigned 32-bit
  kReal,     ///< double
  kString,   ///< UTF-8
  kGroup,    ///< a nested group of keys
};

} // namespace BE
