#include <be/store/XMLFileReaderImpl.h>
#include <be/store/XMLFormatImpl.h>
#include <be/store/XMLPropertyStore.h>
#include <krocore/debug/Assert.h>
#include <krocore/utility/FileIO.h>

namespace BE::detail {

XMLFileReader::XMLFileReader() : mOpenGroups{PropertyTree::kTopGroup} {}

StoreReadResult XMLFileReader::ReadFile(const std::filesystem::path& path) {
  auto bytes = krocore::utility::ReadFileBytes(path, kMaxPropertyStoreFileBytes);
  if (!bytes) return StoreReadResult::Failure(StoreReadStatus::kNotAStore, bytes.Error());
  std::string subject(1, '"');
  subject.append(path.string()).append("\" ");
  return Read(std::move(bytes).Value(), subject);
}

StoreReadResult XMLFileReader::ReadBytes(std::string_view bytes) {
  // Refused before it is copied, as a file is before it is read.
  if (bytes.size() > kMaxPropertyStoreFileBytes)
    return StoreReadResult::Failure(StoreReadStatus::kNotAStore,
                                    "The text is too large to be a property store");
  return Read(std::string(bytes), "The text ");
}

StoreReadResult XMLFileReader::Read(std::string bytes, const std::string& subject) {
  PropertyTree tree;
  std::uint32_t version = 0;
  StoreReadResult result = ParseXML(bytes, tree, version);
  if (!result) return StoreReadResult::Failure(result.Status(), subject + result.Error());
  mTree = std::move(tree);
  mVersion = version;
  mOpenGroups.assign(1, PropertyTree::kTopGroup);
  return result;
}

const PropertyTree::Entry* XMLFileReader::Find(std::string_view key, PropertyValueType type) const {
  const PropertyTree::Entry* entry = mTree.Find(mOpenGroups.back(), key);
  return entry && entry->type == type ? entry : nullptr;
}

PropertyValueType XMLFileReader::GetType(std::string_view key) const {
  const PropertyTree::Entry* entry = mTree.Find(mOpenGroups.back(), key);
  return entry ? entry->type : PropertyValueType::kAbsent;
}

std::optional<bool> XMLFileReader::ReadBool(std::string_view key) const {
  if (const auto* entry = Find(key, PropertyValueType::kBool)) return entry->AsBool();
  return std::nullopt;
}

std::optional<std::int64_t> XMLFileReader::ReadInteger(std::string_view key) const {
  if (const auto* entry = Find(key, PropertyValueType::kInteger)) return entry->AsInteger();
  return std::nullopt;
}

std::optional<std::uint32_t> XMLFileReader::ReadUnsigned(std::string_view key) const {
  if (const auto* entry = Find(key, PropertyValueType::kUnsigned)) return entry->AsUnsigned();
  return std::nullopt;
}

std::optional<double> XMLFileReader::ReadReal(std::string_view key) const {
  if (const auto* entry = Find(key, PropertyValueType::kReal)) return entry->AsReal();
  return std::nullopt;
}

std::optional<std::string_view> XMLFileReader::ReadString(std::string_view key) const {
  if (const auto* entry = Find(key, PropertyValueType::kString)) return entry->text;
  return std::nullopt;
}

bool XMLFileReader::OpenGroup(std::string_view key) {
  const PropertyTree::Entry* entry = Find(key, PropertyValueType::kGroup);
  if (!entry) return false;
  mOpenGroups.push_back(entry->AsGroup());
  return true;
}

bool XMLFileReader::CloseGroup() {
  if (!KROCORE_ASSERT(mOpenGroups.size() > 1, "CloseGroup without an open group")) return false;
  mOpenGroups.pop_back();
  return true;
}

std::vector<std::string_view> XMLFileReader::GetKeys() const {
  std::vector<std::string_view> keys;
  for (auto index = mTree.FirstInGroup(mOpenGroups.back()); index != PropertyTree::kNone;
       index = mTree.At(index).next)
    keys.push_back(mTree.At(index).key);
  return keys;
}

} // namespace BE::detail
