#pragma once

#include <be/Export.h>
#include <be/markers/MarkerColorID.h>
#include <be/markers/MarkerTypes.h>

#include <kromediatypes/TickTime.h>

#include <cstdint>
#include <string>

namespace BE {

using kromediatypes::TickTime;

/// A marker's stable identity within its collection: given in insertion
/// order, kept through changes, undo and saving, never reused.
using MarkerID = std::uint64_t;

/// What a marker says, apart from its identity.
struct MarkerFields {
  TickTime start;
  TickTime duration;
  MarkerUtils::MarkerColorID color = MarkerUtils::MarkerColorID::kGreen;
  std::string type{kMarkerType_Comment};
  std::string name;
  std::string comment;

  bool operator==(const MarkerFields&) const = default;
};

/// A marker as saved: its identity and its fields.
struct MarkerRecord {
  MarkerID id = 0;
  MarkerFields fields;

  bool operator==(const MarkerRecord&) const = default;
};

/// Empty when the fields make a marker; else what is wrong, for a person:
/// a known start, a known duration not below zero, one of the eight colours,
/// one of the known kinds.
BE_API std::string CheckMarkerFields(const MarkerFields& fields);

} // namespace BE
