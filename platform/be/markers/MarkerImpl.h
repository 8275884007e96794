#pragma once

#include <be/markers/IMarker.h>

namespace BE {

/// The marker a collection makes: its fields change only through the collection.
class MarkerImpl final : public IMarker {
public:
  MarkerImpl(MarkerID id, MarkerFields fields) : mID(id), mFields(std::move(fields)) {}

  MarkerID GetID() const noexcept override { return mID; }
  const MarkerFields& GetFields() const noexcept override { return mFields; }
  void SetFields(const MarkerFields& fields) { mFields = fields; }

private:
  MarkerID mID;
  MarkerFields mFields;
};

} // namespace BE
