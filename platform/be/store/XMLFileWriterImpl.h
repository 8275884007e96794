#pragma once

#include <be/store/IPropertyStoreWriter.h>
#include <be/store/PropertyTreeImpl.h>

#include <vector>

namespace BE::detail {

/// The writer made from kXMLFileWriterClassID.
class XMLFileWriter final : public IPropertyStoreWriter {
public:
  XMLFileWriter();

  void WriteBool(std::string_view key, bool value) override;
  void WriteInteger(std::string_view key, std::int64_t value) override;
  void WriteUnsigned(std::string_view key, std::uint32_t value) override;
  void WriteReal(std::string_view key, double value) override;
  void WriteString(std::string_view key, std::string_view value) override;
  bool OpenGroup(std::string_view key) override;
  bool CloseGroup() override;
  std::string ToBytes() const override;
  krocore::utility::Result<void> Save(const std::filesystem::path& path) const override;
  void Clear() override;

private:
  /// The entry of `key` in the open group; null when the write is refused.
  PropertyTree::Entry* Prepare(std::string_view key);

  PropertyTree mTree;
  std::vector<PropertyTree::Index> mOpenGroups; ///< the top group first
  /// Groups opened while refused (past the depth limit, or with a bad key):
  /// what is written inside them goes nowhere, and their CloseGroup is matched.
  std::size_t mRefusedGroups = 0;
};

} // namespace BE::detail
