// Property stores come from files a user can damage or a stranger can craft:
// reading any bytes must fail with a reason, or give a store that, written
// back and read again, is the same tree, and whose written form is stable.
#include <be/store/XMLPropertyStore.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace BE;

krocore::FlexPtr<IPropertyStoreReader> MakeReader() {
  return krocore::classref::CreateClassInstanceRef<IPropertyStoreReader>(kXMLFileReaderClassID);
}

krocore::FlexPtr<IPropertyStoreWriter> MakeWriter() {
  return krocore::classref::CreateClassInstanceRef<IPropertyStoreWriter>(kXMLFileWriterClassID);
}

void Require(bool condition) {
  if (!condition) std::abort();
}

// Recursion is bounded by the store's own group depth limit.
void CopyGroup(IPropertyStoreReader& from, IPropertyStoreWriter& to) {
  for (std::string_view key : from.GetKeys()) {
    switch (from.GetType(key)) {
    case PropertyValueType::kBool:
      to.WriteBool(key, *from.ReadBool(key));
      break;
    case PropertyValueType::kInteger:
      to.WriteInteger(key, *from.ReadInteger(key));
      break;
    case PropertyValueType::kUnsigned:
      to.WriteUnsigned(key, *from.ReadUnsigned(key));
      break;
    case PropertyValueType::kReal:
      to.WriteReal(key, *from.ReadReal(key));
      break;
    case PropertyValueType::kString:
      to.WriteString(key, *from.ReadString(key));
      break;
    case PropertyValueType::kGroup:
      Require(from.OpenGroup(key) && to.OpenGroup(key));
      CopyGroup(from, to);
      Require(from.CloseGroup() && to.CloseGroup());
      break;
    case PropertyValueType::kAbsent:
      std::abort();
    }
  }
}

bool SameReal(std::optional<double> a, std::optional<double> b) {
  return a && b && (std::isnan(*a) ? std::isnan(*b) : std::signbit(*a) == std::signbit(*b) && *a == *b);
}

bool SameGroup(IPropertyStoreReader& a, IPropertyStoreReader& b) {
  const auto keys = a.GetKeys();
  if (keys != b.GetKeys()) return false;
  for (std::string_view key : keys) {
    const PropertyValueType type = a.GetType(key);
    if (type != b.GetType(key)) return false;
    bool same = true;
    switch (type) {
    case PropertyValueType::kBool:
      same = a.ReadBool(key) == b.ReadBool(key);
      break;
    case PropertyValueType::kInteger:
      same = a.ReadInteger(key) == b.ReadInteger(key);
      break;
    case PropertyValueType::kUnsigned:
      same = a.ReadUnsigned(key) == b.ReadUnsigned(key);
      break;
    case PropertyValueType::kReal:
      same = SameReal(a.ReadReal(key), b.ReadReal(key));
      break;
    case PropertyValueType::kString:
      same = a.ReadString(key) == b.ReadString(key);
      break;
    case PropertyValueType::kGroup:
      Require(a.OpenGroup(key) && b.OpenGroup(key));
      same = SameGroup(a, b);
      Require(a.CloseGroup() && b.CloseGroup());
      break;
    case PropertyValueType::kAbsent:
      same = false;
      break;
    }
    if (!same) return false;
  }
  return true;
}

std::string WrittenBack(IPropertyStoreReader& reader) {
  auto writer = MakeWriter();
  CopyGroup(reader, *writer);
  return writer->ToBytes();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  auto reader = MakeReader();
  const StoreReadResult read = reader->ReadBytes(std::string_view(reinterpret_cast<const char*>(data), size));
  if (!read) {
    Require(!read.Error().empty());
    return 0;
  }
  Require(reader->GetVersion() == kXMLPropertyStoreVersion);
  const std::string written = WrittenBack(*reader);
  auto again = MakeReader();
  Require(static_cast<bool>(again->ReadBytes(written)));
  Require(SameGroup(*reader, *again));
  Require(WrittenBack(*again) == written);
  return 0;
}
