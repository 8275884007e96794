#include <be/markers/MarkerStore.h>

#include <be/markers/IMarkers.h>
#include <be/markers/ScopedUndoStep.h>
#include <be/markers/UpgradeValidator.h>
#include <be/store/XMLPropertyStore.h>

#include <krocore/debug/Assert.h>

#include <optional>
#include <string>
#include <unordered_set>

namespace BE {
namespace {

using krocore::utility::Result;
using Records = std::vector<MarkerRecord>;

constexpr std::string_view kGroup = "markers";
constexpr std::string_view kCount = "count";
constexpr std::string_view kItem = "marker";

std::string Missing(std::string_view key, std::string_view kind) {
  std::string text(1, '"');
  text.append(key).append("\" is missing or not ").append(kind);
  return text;
}

// The fields of the open marker group, or what is wrong with them.
Result<MarkerRecord> ReadMarker(const IPropertyStoreReader& reader) {
  const auto id = reader.ReadInteger("id");
  const auto start = reader.ReadInteger("start");
  const auto duration = reader.ReadInteger("duration");
  const auto color = reader.ReadUnsigned("color");
  const auto type = reader.ReadString("type");
  const auto name = reader.ReadString("name");
  const auto comment = reader.ReadString("comment");
  if (!id) return Result<MarkerRecord>::Failure(Missing("id", "an integer"));
  if (*id <= 0) return Result<MarkerRecord>::Failure("the ID " + std::to_string(*id) + " is not above zero");
  if (!start) return Result<MarkerRecord>::Failure(Missing("start", "an integer"));
  if (!duration) return Result<MarkerRecord>::Failure(Missing("duration", "an integer"));
  if (!color) return Result<MarkerRecord>::Failure(Missing("color", "an unsigned number"));
  if (!MarkerUtils::IsMarkerColorIndex(*color))
    return Result<MarkerRecord>::Failure("the colour index " + std::to_string(*color) + " is not one of 0 to 7");
  if (!type || !name || !comment)
    return Result<MarkerRecord>::Failure(Missing(!type ? "type" : !name ? "name" : "comment", "a string"));
  MarkerRecord record{static_cast<MarkerID>(*id),
                      {TickTime(*start), TickTime(*duration), static_cast<MarkerUtils::MarkerColorID>(*color),
                       std::string(*type), std::string(*name), std::string(*comment)}};
  if (std::string problem = CheckMarkerFields(record.fields); !problem.empty())
    return Result<MarkerRecord>::Failure(std::move(problem));
  return Result<MarkerRecord>::Success(std::move(record));
}

Result<MarkerRecord> ReadMarkerGroup(IPropertyStoreReader& reader, const std::string& key) {
  if (!reader.OpenGroup(key)) return Result<MarkerRecord>::Failure(key + " is missing");
  auto record = ReadMarker(reader);
  reader.CloseGroup();
  if (!record) return Result<MarkerRecord>::Failure(key + ": " + record.Error());
  return record;
}

std::optional<std::string> CheckCount(const IPropertyStoreReader& reader, std::optional<std::uint32_t> count) {
  if (!count) return "the marker count " + Missing(kCount, "an unsigned number");
  if (*count > MarkerStore::kMaxMarkerCount)
    return "the file claims " + std::to_string(*count) + " markers; at most " +
           std::to_string(MarkerStore::kMaxMarkerCount) + " are read";
  if (const std::size_t entries = reader.GetKeys().size() - 1; entries != *count)
    return "the group holds " + std::to_string(entries) + " entries besides the count, which says " +
           std::to_string(*count);
  return std::nullopt;
}

Result<Records> ReadOpenGroup(IPropertyStoreReader& reader) {
  const auto count = reader.ReadUnsigned(kCount);
  if (auto problem = CheckCount(reader, count)) return Result<Records>::Failure(std::move(*problem));
  Records records;
  records.reserve(*count);
  std::unordered_set<MarkerID> ids;
  for (std::uint32_t i = 0; i < *count; ++i) {
    const std::string key = CreateKeyWithIndex(kItem, i);
    auto record = ReadMarkerGroup(reader, key);
    if (!record) return Result<Records>::Failure(record.Error());
    if (!ids.insert(record.Value().id).second)
      return Result<Records>::Failure(key + ": the ID " + std::to_string(record.Value().id) + " is used twice");
    records.push_back(std::move(record).Value());
  }
  return Result<Records>::Success(std::move(records));
}

void WriteMarker(IPropertyStoreWriter& writer, const IMarker& marker) {
  const MarkerFields& fields = marker.GetFields();
  writer.WriteInteger("id", static_cast<std::int64_t>(marker.GetID()));
  writer.WriteInteger("start", fields.start.GetTicks());
  writer.WriteInteger("duration", fields.duration.GetTicks());
  writer.WriteUnsigned("color", static_cast<std::uint32_t>(fields.color));
  writer.WriteString("type", fields.type);
  writer.WriteString("name", fields.name);
  writer.WriteString("comment", fields.comment);
}

} // namespace

void MarkerStore::Write(IPropertyStoreWriter& writer, const IMarkers& markers, const ReadValidator& validator) {
  const MarkerList& list = markers.GetMarkers(validator);
  writer.OpenGroup(kGroup);
  writer.WriteUnsigned(kCount, static_cast<std::uint32_t>(list.size()));
  for (std::size_t i = 0; i < list.size(); ++i) {
    writer.OpenGroup(CreateKeyWithIndex(kItem, static_cast<std::uint32_t>(i)));
    WriteMarker(writer, *list[i]);
    writer.CloseGroup();
  }
  writer.CloseGroup();
}

Result<Records> MarkerStore::ReadRecords(IPropertyStoreReader& reader) {
  if (!reader.OpenGroup(kGroup)) return Result<Records>::Failure("the store holds no group \"markers\"");
  auto records = ReadOpenGroup(reader);
  reader.CloseGroup();
  return records;
}

Result<void> MarkerStore::Read(IPropertyStoreReader& reader, IMarkers& markers, const UpgradeValidator& validator,
                               ICompoundAction* action) {
  if (!KROCORE_ASSERT(validator.IsValid(), "Markers read into without a valid upgrade validator"))
    return Result<void>::Failure("the markers cannot be changed from here");
  auto records = ReadRecords(reader);
  if (!records) return Result<void>::Failure("Markers not read: " + records.Error());
  ScopedUndoStep step(markers.GetUndoStack(), "Read Markers", action);
  markers.ReplaceMarkers(records.Value(), validator, &step.Action());
  return Result<void>::Success();
}

Result<void> MarkerStore::Save(const std::filesystem::path& path, const IMarkers& markers,
                               const ReadValidator& validator) {
  auto writer = krocore::classref::CreateClassInstanceRef<IPropertyStoreWriter>(kXMLFileWriterClassID);
  Write(*writer, markers, validator);
  return writer->Save(path);
}

Result<void> MarkerStore::Load(const std::filesystem::path& path, IMarkers& markers,
                               const UpgradeValidator& validator, ICompoundAction* action) {
  auto reader = krocore::classref::CreateClassInstanceRef<IPropertyStoreReader>(kXMLFileReaderClassID);
  if (const StoreReadResult read = reader->ReadFile(path); !read)
    return Result<void>::Failure("Markers not read: " + read.Error());
  return Read(*reader, markers, validator, action);
}

Result<void> MarkerStore::LoadBytes(std::string_view bytes, IMarkers& markers, const UpgradeValidator& validator,
                                    ICompoundAction* action) {
  auto reader = krocore::classref::CreateClassInstanceRef<IPropertyStoreReader>(kXMLFileReaderClassID);
  if (const StoreReadResult read = reader->ReadBytes(bytes); !read)
    return Result<void>::Failure("Markers not read: " + read.Error());
  return Read(*reader, markers, validator, action);
}

} // namespace BE
