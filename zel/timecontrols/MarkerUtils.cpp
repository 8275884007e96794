// The visible-marker queries of MarkerUtils.h; the filter, the palettes and
// the changes have files of their own.
#include <zel/timecontrols/MarkerUtils.h>

#include <zel/timecontrols/MarkerFilterImpl.h>

#include <be/markers/ReadValidator.h>

#include <krocore/debug/Assert.h>

#include <algorithm>

namespace ZEL {
namespace {

using BE::IMarker;
using BE::IMarkerRef;
using BE::MarkerList;
using Iterator = MarkerList::const_iterator;

// The first marker at or after `time` (or, with `after`, after it).
Iterator StartingFrom(const MarkerList& list, TickTime time, bool after) {
  if (after)
    return std::upper_bound(list.begin(), list.end(), time,
                            [](TickTime t, const IMarkerRef& m) { return t < m->GetStart(); });
  return std::lower_bound(list.begin(), list.end(), time,
                          [](const IMarkerRef& m, TickTime t) { return m->GetStart() < t; });
}

// The first marker that comes after `marker` in the order (or, without `after`, not before it).
Iterator Following(const MarkerList& list, const IMarker& marker, bool after) {
  if (after)
    return std::upper_bound(list.begin(), list.end(), &marker,
                            [](const IMarker* key, const IMarkerRef& m) { return BE::ComesBefore(*key, *m); });
  return std::lower_bound(list.begin(), list.end(), &marker,
                          [](const IMarkerRef& m, const IMarker* key) { return BE::ComesBefore(*m, *key); });
}

IMarkerRef FirstVisibleFrom(const MarkerList& list, Iterator from, const MarkerFilterState& filter) {
  const auto found = std::find_if(from, list.end(), [&filter](const IMarkerRef& m) { return filter.Passes(*m); });
  return found == list.end() ? nullptr : *found;
}

IMarkerRef LastVisibleBefore(const MarkerList& list, Iterator before, const MarkerFilterState& filter) {
  for (auto at = before; at != list.begin();)
    if (filter.Passes(**--at)) return *at;
  return nullptr;
}

// A visible marker with a duration, in the order, for which `meets` holds.
template <typename Meets>
IMarkerRef FirstVisibleSpan(const MarkerList& list, Iterator end, const MarkerFilterState& filter, Meets meets) {
  const auto found = std::find_if(list.begin(), end, [&](const IMarkerRef& m) {
    return m->HasDuration() && meets(*m) && filter.Passes(*m);
  });
  return found == end ? nullptr : *found;
}

std::shared_ptr<const MarkerFilterState> Filter() { return MarkerFilterImpl::Instance().Get(); }

// Runs `query` on the collection's markers and the current filter.
template <typename Query>
IMarkerRef Ask(const BE::IMarkers& markers, Query query) {
  const BE::ReadValidator validator;
  return query(markers.GetMarkers(validator), *Filter());
}

} // namespace

IMarkerRef GetFirstVisibleMarker(const BE::IMarkers& markers) {
  return Ask(markers, [&](const MarkerList& list, const MarkerFilterState& filter) {
    return FirstVisibleFrom(list, list.begin(), filter);
  });
}

IMarkerRef GetLastVisibleMarker(const BE::IMarkers& markers) {
  return Ask(markers, [&](const MarkerList& list, const MarkerFilterState& filter) {
    return LastVisibleBefore(list, list.end(), filter);
  });
}

IMarkerRef GetNextVisibleMarker(const BE::IMarkers& markers, TickTime time) {
  return Ask(markers, [&](const MarkerList& list, const MarkerFilterState& filter) {
    return FirstVisibleFrom(list, StartingFrom(list, time, true), filter);
  });
}

IMarkerRef GetNextVisibleMarker(const BE::IMarkers& markers, const IMarker& marker) {
  return Ask(markers, [&](const MarkerList& list, const MarkerFilterState& filter) {
    return FirstVisibleFrom(list, Following(list, marker, true), filter);
  });
}

IMarkerRef GetPreviousVisibleMarker(const BE::IMarkers& markers, TickTime time) {
  return Ask(markers, [&](const MarkerList& list, const MarkerFilterState& filter) {
    return LastVisibleBefore(list, StartingFrom(list, time, false), filter);
  });
}

IMarkerRef GetPreviousVisibleMarker(const BE::IMarkers& markers, const IMarker& marker) {
  return Ask(markers, [&](const MarkerList& list, const MarkerFilterState& filter) {
    return LastVisibleBefore(list, Following(list, marker, false), filter);
  });
}

IMarkerRef GetVisibleMarker(const BE::IMarkers& markers, TickTime time, BE::MarkerLocation* location) {
  const BE::ReadValidator validator;
  const MarkerList& list = markers.GetMarkers(validator);
  const auto filter = Filter();
  const Iterator atTime = StartingFrom(list, time, false);
  const Iterator pastTime = StartingFrom(list, time, true);
  IMarkerRef found = FirstVisibleFrom(list, atTime, *filter);
  BE::MarkerLocation where = BE::MarkerLocation::kStart;
  if (!found || found->GetStart() != time) {
    where = BE::MarkerLocation::kEnd;
    found = FirstVisibleSpan(list, atTime, *filter, [time](const IMarker& m) { return m.GetEnd() == time; });
  }
  if (!found) {
    where = BE::MarkerLocation::kInside;
    found = FirstVisibleSpan(list, pastTime, *filter, [time](const IMarker& m) { return time < m.GetEnd(); });
  }
  if (found && location) *location = where;
  return found;
}

IMarkerRef GetVisibleDurationMarkerEndingAtTime(const BE::IMarkers& markers, TickTime time) {
  return Ask(markers, [&](const MarkerList& list, const MarkerFilterState& filter) {
    return FirstVisibleSpan(list, StartingFrom(list, time, false), filter,
                          [time](const IMarker& m) { return m.GetEnd() == time; });
  });
}

IMarkerRef GetVisibleMatchingSelectedMarker(const BE::IMarkers& markers, const MarkerList& selected) {
  const BE::ReadValidator validator;
  const auto filter = Filter();
  IMarkerRef first;
  for (const IMarkerRef& marker : selected) {
    if (!marker || !filter->Passes(*marker) || !markers.Contains(*marker, validator)) continue;
    if (!first || BE::ComesBefore(*marker, *first)) first = marker;
  }
  return first;
}

MarkerList GetVisibleSelectedMarkers(const MarkerList& selected) {
  MarkerList visible = selected;
  FilterMarkers(visible);
  return visible;
}

void FindAllVisibleInterestingTimes(const BE::ReadValidator& validator, const BE::ISequence& sequence,
                                    TickTime start, TickTime end, int kinds, MarkerTimeMap& times) {
  if (!KROCORE_ASSERT(validator.IsValid(), "Interesting times read without a valid read validator")) return;
  const auto filter = Filter();
  const auto within = [start, end](TickTime t) { return start <= t && t <= end; };
  for (const IMarkerRef& marker : sequence.GetMarkers()->GetMarkers(validator)) {
    if (!filter->Passes(*marker)) continue;
    if ((kinds & kInterestingMarkerStarts) && within(marker->GetStart())) times[marker->GetStart()].push_back(marker);
    if ((kinds & kInterestingMarkerEnds) && marker->HasDuration() && within(marker->GetEnd()))
      times[marker->GetEnd()].push_back(marker);
  }
}

} // namespace ZEL
