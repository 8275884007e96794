#pragma once

#include <be/store/IPropertyStoreReader.h>
#include <be/store/PropertyTreeImpl.h>

#include <string>
#include <vector>

namespace BE::detail {

/// The reader made from kXMLFileReaderClassID.
class XMLFileReader final : public IPropertyStoreReader {
public:
  XMLFileReader();

  StoreReadResult ReadFile(const std::filesystem::path& path) override;
  StoreReadResult ReadBytes(std::string_view bytes) override;
  std::uint32_t GetVersion() const override { return mVersion; }

  PropertyValueType GetType(std::string_view key) const override;
  std::optional<bool> ReadBool(std::string_view key) const override;
  std::optional<std::int64_t> ReadInteger(std::string_view key) const override;
  std::optional<std::uint32_t> ReadUnsigned(std::string_view key) const override;
  std::optional<double> ReadReal(std::string_view key) const override;
  std::optional<std::string_view> ReadString(std::string_view key) const override;

  bool OpenGroup(std::string_view key) override;
  bool CloseGroup() override;
  std::vector<std::string_view> GetKeys() const override;

private:
  /// Reads into a new tree and takes it only when the whole read succeeds.
  StoreReadResult Read(std::string bytes, const std::string& subject);
  /// The entry of `key` in the open group when it holds a `type`.
  const PropertyTree::Entry* Find(std::string_view key, PropertyValueType type) const;

  PropertyTree mTree;
  std::vector<PropertyTree::Index> mOpenGroups; ///< the top group first
  std::uint32_t mVersion = 0;
};

} // namespace BE::detail
