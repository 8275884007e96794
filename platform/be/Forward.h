#pragma once

#include <cstdint>

namespace BE {

enum class PropertyValueType : std::uint8_t;
enum class StoreReadStatus : std::uint8_t;
class StoreReadResult;
class IPropertyStoreReader;
class IPropertyStoreWriter;

// Markers.
enum class MarkerLocation : std::uint8_t;
struct MarkerFields;
struct MarkerRecord;
class ICompoundAction;
class IMarker;
class IMarkers;
class ISequence;
class ITrackItem;
class CompoundAction;
class Markers;
class MarkersChangedMessage;
class MarkerStore;
class MarkerTypeFilter;
class ReadValidator;
class ScopedUndoStep;
class Sequence;
class TrackItem;
class UndoStack;
class UpgradeValidator;
namespace MarkerUtils {
enum class MarkerColorID : std::uint8_t;
} // namespace MarkerUtils

} // namespace BE
