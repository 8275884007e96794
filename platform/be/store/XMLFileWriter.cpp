#include <be/store/StoreTextImpl.h>
#include <be/store/XMLFileWriterImpl.h>
#include <be/store/XMLFormatImpl.h>
#include <be/store/XMLPropertyStore.h>
#include <krocore/debug/Assert.h>
#include <krocore/utility/FileIO.h>

namespace BE::detail {

XMLFileWriter::XMLFileWriter() : mOpenGroups{PropertyTree::kTopGroup} {}

PropertyTree::Entry* XMLFileWriter::Prepare(std::string_view key) {
  if (mRefusedGroups > 0) return nullptr;
  if (!KROCORE_ASSERT(!key.empty() && IsStoreText(key), "A property key must be non-empty UTF-8 without NUL"))
    return nullptr;
  bool isNew = false;
  return &mTree.Insert(mOpenGroups.back(), key, isNew);
}

void XMLFileWriter::WriteBool(std::string_view key, bool value) {
  if (auto* entry = Prepare(key)) mTree.SetBool(*entry, value);
}

void XMLFileWriter::WriteInteger(std::string_view key, std::int64_t value) {
  if (auto* entry = Prepare(key)) mTree.SetInteger(*entry, value);
}

void XMLFileWriter::WriteUnsigned(std::string_view key, std::uint32_t value) {
  if (auto* entry = Prepare(key)) mTree.SetUnsigned(*entry, value);
}

void XMLFileWriter::WriteReal(std::string_view key, double value) {
  if (auto* entry = Prepare(key)) mTree.SetReal(*entry, value);
}

void XMLFileWriter::WriteString(std::string_view key, std::string_view value) {
  auto* entry = Prepare(key);
  if (!entry) return;
  if (KROCORE_ASSERT(IsStoreText(value), "A property string must be UTF-8 without NUL"))
    mTree.SetString(*entry, value);
  else
    mTree.SetString(*entry, RepairedStoreText(value));
}

bool XMLFileWriter::OpenGroup(std::string_view key) {
  const bool isTooDeep = mOpenGroups.size() > kMaxPropertyGroupDepth;
  if (mRefusedGroups == 0 && isTooDeep)
    KROCORE_FAIL("Property groups nest at most " + std::to_string(kMaxPropertyGroupDepth) + " deep");
  auto* entry = isTooDeep ? nullptr : Prepare(key);
  if (!entry) {
    ++mRefusedGroups;
    return false;
  }
  mOpenGroups.push_back(entry->type == PropertyValueType::kGroup ? entry->AsGroup() : mTree.SetGroup(*entry));
  return true;
}

bool XMLFileWriter::CloseGroup() {
  if (mRefusedGroups > 0) {
    --mRefusedGroups;
    return true;
  }
  if (!KROCORE_ASSERT(mOpenGroups.size() > 1, "CloseGroup without an open group")) return false;
  mOpenGroups.pop_back();
  return true;
}

std::string XMLFileWriter::ToBytes() const { return FormatXML(mTree); }

krocore::utility::Result<void> XMLFileWriter::Save(const std::filesystem::path& path) const {
  return krocore::utility::WriteFileAtomically(path, ToBytes());
}

void XMLFileWriter::Clear() {
  mTree = PropertyTree();
  mOpenGroups.assign(1, PropertyTree::kTopGroup);
  mRefusedGroups = 0;
}

} // namespace BE::detail
