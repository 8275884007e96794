#pragma once

#include <be/Export.h>
#include <be/store/PropertyValueType.h>
#include <be/store/StoreReadResult.h>
#include <krocore/classref/ClassRegistry.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

namespace BE {

/// Reads a property store written by IPropertyStoreWriter and answers typed
/// questions about it. Created by class ID (kXMLFileReaderClassID).
///
///   if (auto read = reader->ReadFile(path); !read) ... read.Status() tells which failure
///   reader->ReadString("platform")
///   if (reader->OpenGroup("context.Timeline")) {
///     reader->ReadUnsigned("itemcount")
///     reader->OpenGroup("item.0") ... reader->CloseGroup()
///     reader->CloseGroup()
///   }
///
/// Questions go to the group opened last. A key that is missing, or holds
/// another type than the one asked for, answers nullopt. A failed read keeps
/// the store read before it.
class BE_API IPropertyStoreReader : public krocore::classref::UnknownBase {
public:
  ~IPropertyStoreReader() override;

  /// Reads a file, refusing one larger than kMaxPropertyStoreFileBytes unread.
  virtual StoreReadResult ReadFile(const std::filesystem::path& path) = 0;
  /// Reads the bytes of a file already in memory. On success the top group is open.
  virtual StoreReadResult ReadBytes(std::string_view bytes) = 0;
  /// The format version of the store held; 0 before the first successful read.
  virtual std::uint32_t GetVersion() const = 0;

  virtual PropertyValueType GetType(std::string_view key) const = 0;
  virtual std::optional<bool> ReadBool(std::string_view key) const = 0;
  virtual std::optional<std::int64_t> ReadInteger(std::string_view key) const = 0;
  virtual std::optional<std::uint32_t> ReadUnsigned(std::string_view key) const = 0;
  virtual std::optional<double> ReadReal(std::string_view key) const = 0;
  /// The text stays valid until the next successful read or the reader's end.
  virtual std::optional<std::string_view> ReadString(std::string_view key) const = 0;

  /// Enters the group under `key`; false when there is no group under it.
  virtual bool OpenGroup(std::string_view key) = 0;
  /// Returns to the enclosing group; false, with an assertion, at the top.
  virtual bool CloseGroup() = 0;
  /// The keys of the open group in the order they were written; valid as ReadString's text.
  virtual std::vector<std::string_view> GetKeys() const = 0;
};

} // namespace BE
