#pragma once

#include <be/Export.h>
#include <be/markers/MarkerFields.h>

#include <krocore/utility/Result.h>

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <vector>

namespace BE {

class ICompoundAction;
class IMarkers;
class IPropertyStoreReader;
class IPropertyStoreWriter;
class ReadValidator;
class UpgradeValidator;

/// Markers in a property store, under the group "markers" of the group open:
///
///   <group key="markers">
///     <unsigned key="count" value="1" />
///     <group key="marker.0">
///       <integer key="id" value="7" />            identity, above zero, unique
///       <integer key="start" value="254016000000" />   ticks, known
///       <integer key="duration" value="0" />      ticks, known, not negative
///       <unsigned key="color" value="3" />        colour ID 0 to 7
///       <string key="type" value="Chapter" />     a kind of marker
///       <string key="name" value="" />
///       <string key="comment" value="" />
///     </group>
///   </group>
///
/// Reading checks the whole group before it touches the collection: a file
/// with any fault is refused with a message naming the marker and the fault,
/// and the markers held stay as they were.
class BE_API MarkerStore {
public:
  /// More markers than this are refused unread: no sequence has so many, and
  /// a file that claims more is damaged or crafted.
  static constexpr std::uint32_t kMaxMarkerCount = 100'000;

  static void Write(IPropertyStoreWriter& writer, const IMarkers& markers, const ReadValidator& validator);
  /// The records of the group, checked; the reader's open group is where it was.
  static krocore::utility::Result<std::vector<MarkerRecord>> ReadRecords(IPropertyStoreReader& reader);
  /// Replaces the markers with those read, recorded into `action`, or as one
  /// step of the collection's undo history when no action is given.
  static krocore::utility::Result<void> Read(IPropertyStoreReader& reader, IMarkers& markers,
                                             const UpgradeValidator& validator, ICompoundAction* action = nullptr);

  /// A property store file holding only the markers.
  static krocore::utility::Result<void> Save(const std::filesystem::path& path, const IMarkers& markers,
                                             const ReadValidator& validator);
  static krocore::utility::Result<void> Load(const std::filesystem::path& path, IMarkers& markers,
                                             const UpgradeValidator& validator, ICompoundAction* action = nullptr);
  /// Load, from the bytes of a file in memory.
  static krocore::utility::Result<void> LoadBytes(std::string_view bytes, IMarkers& markers,
                                                  const UpgradeValidator& validator,
                                                  ICompoundAction* action = nullptr);
};

} // namespace BE
