#include <krocore/messaging/Listener.h>

#include <krocore/debug/Assert.h>
#include <krocore/messaging/StationRegistryImpl.h>

namespace krocore::messaging {

Listener::~Listener() { UnsubscribeFromAll(); }

bool Listener::SubscribeTo(const utility::ImmutableString& stationID) {
  if (!KROCORE_ASSERT(!stationID.IsEmpty(), "A station needs a non-empty identifier")) return false;
  return StationRegistryImpl::Instance().Subscribe(*this, stationID);
}

bool Listener::UnsubscribeFrom(const utility::ImmutableString& stationID) {
  return StationRegistryImpl::Instance().Unsubscribe(*this, stationID);
}

void Listener::UnsubscribeFromAll() { StationRegistryImpl::Instance().UnsubscribeFromAll(*this); }

bool Listener::IsSubscribedTo(const utility::ImmutableString& stationID) const {
  return StationRegistryImpl::Instance().IsSubscribed(*this, stationID);
}

} // namespace krocore::messaging
