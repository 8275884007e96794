#pragma once

#include <cstdint>

namespace BE {

enum class PropertyValueType : std::uint8_t;
enum class StoreReadStatus : std::uint8_t;
class StoreReadResult;
class IPropertyStoreReader;
class IPropertyStoreWriter;

} // namespace BE
