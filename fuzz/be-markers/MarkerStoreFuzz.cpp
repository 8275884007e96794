// Marker files come from users' disks and from strangers: whatever the bytes,
// reading must either fail with a reason and leave the markers held as they
// were, or give sound markers that write back and read again unchanged.
#include <be/markers/MarkerStore.h>
#include <be/markers/Markers.h>
#include <be/markers/UpgradeValidator.h>
#include <be/store/XMLPropertyStore.h>

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace {

using namespace BE;

void Require(bool condition) {
  if (!condition) std::abort();
}

std::vector<MarkerRecord> Records(const IMarkers& markers) {
  const ReadValidator validator;
  std::vector<MarkerRecord> records;
  for (const IMarkerRef& m : markers.GetMarkers(validator)) records.push_back({m->GetID(), m->GetFields()});
  return records;
}

// Made once: each collection interns a station name for the life of the process.
IMarkers& Held() {
  static const auto sMarkers = Markers::Create();
  return *sMarkers;
}

IMarkers& Copy() {
  static const auto sMarkers = Markers::Create();
  return *sMarkers;
}

const std::vector<MarkerRecord> kHeld = {{3, {TickTime(7), TickTime(0), MarkerUtils::MarkerColorID::kRed,
                                               std::string(kMarkerType_Chapter), "held", ""}}};

void RequireSound(const std::vector<MarkerRecord>& records) {
  std::unordered_set<MarkerID> ids;
  for (std::size_t i = 0; i < records.size(); ++i) {
    Require(CheckMarkerFields(records[i].fields).empty());
    Require(records[i].id > 0 && ids.insert(records[i].id).second);
    if (i > 0) Require(records[i - 1].fields.start <= records[i].fields.start);
  }
}

std::string WrittenBack(const IMarkers& markers) {
  auto writer = krocore::classref::CreateClassInstanceRef<IPropertyStoreWriter>(kXMLFileWriterClassID);
  MarkerStore::Write(*writer, markers, ReadValidator());
  return writer->ToBytes();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const UpgradeValidator validator;
  Held().ReplaceMarkers(kHeld, validator, nullptr);
  const auto read = MarkerStore::LoadBytes(std::string_view(reinterpret_cast<const char*>(data), size), Held(), validator);
  if (!read) {
    Require(!read.Error().empty());
    Require(Records(Held()) == kHeld);
    return 0;
  }
  const auto records = Records(Held());
  RequireSound(records);
  const std::string written = WrittenBack(Held());
  Require(static_cast<bool>(MarkerStore::LoadBytes(written, Copy(), validator)));
  Require(Records(Copy()) == records);
  Require(WrittenBack(Copy()) == written);
  return 0;
}
