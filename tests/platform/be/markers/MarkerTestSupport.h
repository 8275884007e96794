#pragma once

// Helpers shared by the marker model's tests: fields in one call, a
// collection's markers as (start seconds, ID) pairs, and a counter of change
// announcements.

#include <be/markers/IMarkers.h>
#include <be/markers/MarkersChangedMessage.h>
#include <be/markers/ReadValidator.h>

#include <krocore/messaging/Listener.h>

#include <string>
#include <utility>
#include <vector>

namespace BE::test {

inline MarkerFields Fields(std::int64_t startSeconds, std::int64_t durationSeconds = 0,
                           MarkerUtils::MarkerColorID color = MarkerUtils::MarkerColorID::kGreen,
                           std::string_view type = kMarkerType_Comment) {
  MarkerFields fields;
  fields.start = TickTime::FromSeconds(startSeconds);
  fields.duration = TickTime::FromSeconds(durationSeconds);
  fields.color = color;
  fields.type = std::string(type);
  return fields;
}

/// (start in whole seconds, ID) of each marker, in the collection's order.
inline std::vector<std::pair<std::int64_t, MarkerID>> Order(const IMarkers& markers) {
  const ReadValidator validator;
  std::vector<std::pair<std::int64_t, MarkerID>> order;
  for (const IMarkerRef& m : markers.GetMarkers(validator)) order.emplace_back(m->GetStart().ToWholeSeconds(), m->GetID());
  return order;
}

class ChangeCounter : public krocore::messaging::Listener {
public:
  explicit ChangeCounter(const IMarkers& markers) { SubscribeTo(markers.GetStationID()); }
  void ListenToMessage(const krocore::messaging::Message& message) override {
    if (message.Is<MarkersChangedMessage>()) ++mCount;
  }
  int Count() const { return mCount; }

private:
  int mCount = 0;
};

} // namespace BE::test
