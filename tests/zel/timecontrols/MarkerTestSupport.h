#pragma once

// A sequence with markers made in one line each, the process-wide marker
// filter emptied before and after every case, and markers named by ID.

#include <zel/timecontrols/MarkerUtils.h>

#include <be/markers/Sequence.h>
#include <be/markers/UndoStack.h>
#include <be/markers/UpgradeValidator.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ZEL::testing {

using BE::MarkerUtils::MarkerColorID;

inline BE::MarkerFields Fields(std::int64_t seconds, MarkerColorID color = MarkerColorID::kGreen,
                               std::string_view type = BE::kMarkerType_Comment, std::int64_t durationSeconds = 0) {
  BE::MarkerFields fields;
  fields.start = TickTime::FromSeconds(seconds);
  fields.duration = TickTime::FromSeconds(durationSeconds);
  fields.color = color;
  fields.type = std::string(type);
  return fields;
}

inline kroui::drawbot::ColorRGBA Standard(MarkerColorID id) {
  return GetStandardMarkerColors()[static_cast<std::size_t>(id)];
}

/// The IDs of the markers, in the list's order; 0 for null.
inline std::vector<BE::MarkerID> IDs(const BE::MarkerList& list) {
  std::vector<BE::MarkerID> ids;
  for (const auto& m : list) ids.push_back(m ? m->GetID() : 0);
  return ids;
}

inline BE::MarkerID IDOf(const BE::IMarkerRef& marker) { return marker ? marker->GetID() : 0; }

class MarkerFixture : public ::testing::Test {
protected:
  void SetUp() override { ClearMarkerFilter(); }
  void TearDown() override { ClearMarkerFilter(); }

  BE::IMarkerRef Add(const BE::MarkerFields& fields) {
    return mSequence.GetMarkers()->AddMarker(fields, mValidator, nullptr);
  }
  BE::IMarkers& Markers() { return *mSequence.GetMarkers(); }
  BE::MarkerList All() { return Markers().GetMarkers(mValidator); }
  BE::UndoStack& History() { return *mSequence.GetUndoStack(); }

  BE::Sequence mSequence;
  BE::UpgradeValidator mValidator;
};

} // namespace ZEL::testing
