#pragma once

// Private to the property store: the only place that knows the XML text, and
// the only source file of the library that includes pugixml.

#include <be/store/PropertyTreeImpl.h>
#include <be/store/StoreReadResult.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace BE::detail {

/// The file bytes of a tree, as laid out in XMLPropertyStore.h.
std::string FormatXML(const PropertyTree& tree);

/// Reads file bytes into `tree`, which must be new, parsing them where they
/// are (the buffer is changed). `version` is set to the format version found,
/// or 0. On failure the tree holds a part of the file and is to be dropped.
StoreReadResult ParseXML(std::string& bytes, PropertyTree& tree, std::uint32_t& version);

} // namespace BE::detail
