#pragma once

// Helpers shared by the property store's tests: stores made the way the
// framework makes them, a one-line-per-key picture of a store to compare
// against, and a folder that a test may fill and that goes away with it.

#include <be/store/XMLPropertyStore.h>

#include <gtest/gtest.h>

#include <charconv>
#include <filesystem>
#include <random>
#include <string>

namespace BE::test {

inline krocore::FlexPtr<IPropertyStoreWriter> MakeWriter() {
  return krocore::classref::CreateClassInstanceRef<IPropertyStoreWriter>(kXMLFileWriterClassID);
}

inline krocore::FlexPtr<IPropertyStoreReader> MakeReader() {
  return krocore::classref::CreateClassInstanceRef<IPropertyStoreReader>(kXMLFileReaderClassID);
}

/// The open group of `reader`, one "key: type value" line per key, a nested
/// group's keys indented under it.
inline std::string Dump(IPropertyStoreReader& reader, const std::string& indent = "") {
  std::string out;
  for (std::string_view view : reader.GetKeys()) {
    const std::string key(view);
    char real[32] = {};
    std::to_chars(real, real + sizeof real - 1, reader.ReadReal(key).value_or(0));
    switch (reader.GetType(key)) {
    case PropertyValueType::kBool:
      out += indent + key + ": bool " + (*reader.ReadBool(key) ? "true" : "false");
      break;
    case PropertyValueType::kInteger:
      out += indent + key + ": integer " + std::to_string(*reader.ReadInteger(key));
      break;
    case PropertyValueType::kUnsigned:
      out += indent + key + ": unsigned " + std::to_string(*reader.ReadUnsigned(key));
      break;
    case PropertyValueType::kReal:
      out += indent + key + ": real " + real;
      break;
    case PropertyValueType::kString:
      out += indent + key + ": string \"" + std::string(*reader.ReadString(key)) + "\"";
      break;
    case PropertyValueType::kGroup:
      reader.OpenGroup(key);
      out += indent + key + ": group\n" + Dump(reader, indent + "  ");
      reader.CloseGroup();
      continue;
    case PropertyValueType::kAbsent:
      ADD_FAILURE() << "GetKeys gave the absent key " << key;
      break;
    }
    out += "\n";
  }
  return out;
}

/// The picture of what `writer` holds, read back through a new reader.
inline std::string ReadBack(const IPropertyStoreWriter& writer) {
  auto reader = MakeReader();
  const StoreReadResult read = reader->ReadBytes(writer.ToBytes());
  EXPECT_TRUE(read) << read.Error();
  return Dump(*reader);
}

class TemporaryFolder {
public:
  TemporaryFolder() {
    std::random_device random;
    mPath = std::filesystem::temp_directory_path() / ("zel-be-" + std::to_string(random()));
    std::filesystem::create_directories(mPath);
  }
  ~TemporaryFolder() { std::filesystem::remove_all(mPath); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& Path() const { return mPath; }
  std::filesystem::path operator/(const std::string& name) const { return mPath / name; }

private:
  std::filesystem::path mPath;
};

} // namespace BE::test
