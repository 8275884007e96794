#pragma once

#include <be/Export.h>
#include <krocore/classref/ClassRegistry.h>
#include <krocore/utility/Result.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace BE {

/// Builds a property store, a tree of typed values under keys, and writes it
/// out. Created by class ID (kXMLFileWriterClassID). Values go into the group
/// opened last; writing a key again in the same group replaces its value in
/// place, so the file keeps the order in which keys were first written:
///
///   WriteString("platform", "windows")
///   OpenGroup("context.Timeline")
///     OpenGroup("item.0")  WriteString("commandname", ...)  CloseGroup()
///     WriteUnsigned("itemcount", 1)
///   CloseGroup()
///   Save(path)
///
/// Keys must be non-empty UTF-8; strings must be UTF-8 without NUL. Misuse is
/// reported by assertion: a bad key is not written, a bad string is written
/// with U+FFFD for every offending part, so that the file still reads back.
class BE_API IPropertyStoreWriter : public krocore::classref::UnknownBase {
public:
  ~IPropertyStoreWriter() override;

  virtual void WriteBool(std::string_view key, bool value) = 0;
  virtual void WriteInteger(std::string_view key, std::int64_t value) = 0;
  virtual void WriteUnsigned(std::string_view key, std::uint32_t value) = 0;
  virtual void WriteReal(std::string_view key, double value) = 0;
  virtual void WriteString(std::string_view key, std::string_view value) = 0;

  /// Enters the group under `key`, made (or made from a value) when needed.
  /// False, with an assertion, past kMaxPropertyGroupDepth: writes go nowhere
  /// until the matching CloseGroup.
  virtual bool OpenGroup(std::string_view key) = 0;
  /// Returns to the enclosing group; false, with an assertion, at the top.
  virtual bool CloseGroup() = 0;

  /// The whole store as file bytes, whatever group is open.
  virtual std::string ToBytes() const = 0;
  /// Writes ToBytes() atomically: when saving fails, the previous file is untouched.
  virtual krocore::utility::Result<void> Save(const std::filesystem::path& path) const = 0;
  /// Empties the store and returns to the top.
  virtual void Clear() = 0;
};

} // namespace BE
