#pragma once

// The XML property store: what a user of it includes. The writer and the
// reader are made by class ID, so the XML library behind them stays hidden:
//
//   auto writer = krocore::classref::CreateClassInstanceRef<BE::IPropertyStoreWriter>(
//       BE::kXMLFileWriterClassID);
//
// The file it writes (the format version sits on the root element; each value
// is one element named after its type):
//
//   <?xml version="1.0" encoding="UTF-8"?>
//   <propertystore version="1">
//     <string key="platform" value="windows" />
//     <group key="context.Timeline">
//       <group key="item.0">
//         <string key="commandname" value="edit.copy" />
//         <unsigned key="virtualkey" value="67" />
//         <bool key="modifier.ctrl" value="true" />
//       </group>
//       <unsigned key="itemcount" value="1" />
//     </group>
//   </propertystore>

#include <be/Export.h>
#include <be/store/IPropertyStoreReader.h>
#include <be/store/IPropertyStoreWriter.h>
#include <be/store/PropertyKey.h>
#include <krocore/classref/ClassRegistry.h>

#include <cstddef>
#include <cstdint>

namespace BE {

/// Registered while the library loads; each creation gives a new, empty store.
BE_API extern const krocore::classref::ClassID kXMLFileWriterClassID;
BE_API extern const krocore::classref::ClassID kXMLFileReaderClassID;

/// The format version that the writer writes and the reader reads.
inline constexpr std::uint32_t kXMLPropertyStoreVersion = 1;
/// Files above this size are refused before they are read: the XML parser
/// needs many times a file's size in memory, and a 10,000-shortcut set is 3 MB.
inline constexpr std::size_t kMaxPropertyStoreFileBytes = 8u * 1024 * 1024;
/// Groups nest at most this deep, counting a group at the top as depth 1.
inline constexpr std::size_t kMaxPropertyGroupDepth = 64;

} // namespace BE
