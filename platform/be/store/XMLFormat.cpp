// The XML text of a property store, both ways. The bytes may come from a
// damaged or hostile file: the size is bounded before parsing, pugixml parses
// without recursion, a document with a DTD is refused before any entry is
// read (the writer never makes one, and its entities are never expanded),
// group nesting is bounded, the walk over the elements keeps its place in a
// fixed array rather than on the call stack, and nothing is sized from a
// number written in the file.
#include <be/store/StoreTextImpl.h>
#include <be/store/XMLFormatImpl.h>
#include <be/store/XMLPropertyStore.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <pugixml.hpp>
#include <vector>

namespace BE::detail {
namespace {

using Entry = PropertyTree::Entry;
using Index = PropertyTree::Index;

constexpr const char* kTopElement = "propertystore";
constexpr const char* kVersionAttribute = "version";
constexpr const char* kKeyAttribute = "key";
constexpr const char* kValueAttribute = "value";
constexpr const char* kTrue = "true";
constexpr const char* kFalse = "false";

struct ElementName {
  PropertyValueType type;
  const char* name;
};

// One list for both directions, so the writer and the reader cannot disagree.
constexpr std::array<ElementName, 6> kElementNames{{
    {PropertyValueType::kBool, "bool"},
    {PropertyValueType::kInteger, "integer"},
    {PropertyValueType::kUnsigned, "unsigned"},
    {PropertyValueType::kReal, "real"},
    {PropertyValueType::kString, "string"},
    {PropertyValueType::kGroup, "group"},
}};

const char* NameOfType(PropertyValueType type) {
  for (const ElementName& element : kElementNames)
    if (element.type == type) return element.name;
  return nullptr;
}

PropertyValueType TypeOfName(const char* name) {
  for (const ElementName& element : kElementNames)
    if (element.name[0] == name[0] && std::strcmp(element.name, name) == 0) return element.type;
  return PropertyValueType::kAbsent;
}

// ---- Writing ----

class StringSink final : public pugi::xml_writer {
public:
  explicit StringSink(std::string& bytes) : mBytes(bytes) {}
  void write(const void* data, size_t size) override { mBytes.append(static_cast<const char*>(data), size); }

private:
  std::string& mBytes;
};

template <typename T>
void SetNumber(pugi::xml_attribute attribute, T value) {
  // Large enough for the shortest text of any double that reads back exactly.
  char text[32];
  const auto end = std::to_chars(text, text + sizeof text, value).ptr;
  attribute.set_value(text, static_cast<std::size_t>(end - text));
}

void SetValue(pugi::xml_attribute attribute, const Entry& entry) {
  switch (entry.type) {
  case PropertyValueType::kBool:
    attribute.set_value(entry.AsBool() ? kTrue : kFalse);
    break;
  case PropertyValueType::kInteger:
    SetNumber(attribute, entry.AsInteger());
    break;
  case PropertyValueType::kUnsigned:
    SetNumber(attribute, entry.AsUnsigned());
    break;
  case PropertyValueType::kReal:
    SetNumber(attribute, entry.AsReal());
    break;
  case PropertyValueType::kString:
    attribute.set_value(entry.text.empty() ? "" : entry.text.data(), entry.text.size());
    break;
  default:
    break;
  }
}

void AppendDeclaration(pugi::xml_document& document) {
  pugi::xml_node declaration = document.append_child(pugi::node_declaration);
  declaration.append_attribute("version").set_value("1.0");
  declaration.append_attribute("encoding").set_value("UTF-8");
}

} // namespace

std::string FormatXML(const PropertyTree& tree) {
  pugi::xml_document document;
  AppendDeclaration(document);
  pugi::xml_node top = document.append_child(kTopElement);
  top.append_attribute(kVersionAttribute).set_value(kXMLPropertyStoreVersion);
  // A parent's entry always comes before its children's, so one pass in
  // vector order builds every group in the order its keys were first written.
  // Groups given up for a value keep no element, and so neither do their entries.
  std::vector<pugi::xml_node> elementOfGroup(tree.GroupCount());
  elementOfGroup[PropertyTree::kTopGroup] = top;
  for (Index index = 0; index < tree.EntryCount(); ++index) {
    const Entry& entry = tree.At(index);
    pugi::xml_node parent = elementOfGroup[entry.group];
    const char* name = NameOfType(entry.type);
    if (!parent || !name) continue;
    pugi::xml_node element = parent.append_child(name);
    element.append_attribute(kKeyAttribute).set_value(entry.key.data(), entry.key.size());
    if (entry.type == PropertyValueType::kGroup)
      elementOfGroup[entry.AsGroup()] = element;
    else
      SetValue(element.append_attribute(kValueAttribute), entry);
  }
  // About one line of text per entry, so that the text seldom moves as it grows.
  constexpr std::size_t kBytesPerEntryGuess = 64;
  std::string bytes;
  bytes.reserve(256 + tree.EntryCount() * kBytesPerEntryGuess);
  StringSink sink(bytes);
  document.save(sink, "  ", pugi::format_indent, pugi::encoding_utf8);
  return bytes;
}

namespace {

// ---- Reading ----

StoreReadResult NotAStore(std::string message) {
  return StoreReadResult::Failure(StoreReadStatus::kNotAStore, std::move(message));
}

// A key from the file, clipped so that a hostile one cannot swell a message.
std::string Quoted(std::string_view key) {
  constexpr std::size_t kShown = 48;
  std::size_t end = std::min(key.size(), kShown);
  while (end < key.size() && end > 0 && (static_cast<unsigned char>(key[end]) & 0xC0) == 0x80) --end;
  std::string quoted(1, '"');
  quoted.append(key.substr(0, end));
  quoted.append(end < key.size() ? "...\"" : "\"");
  return quoted;
}

std::string At(pugi::xml_node node) { return " at byte " + std::to_string(node.offset_debug()); }

template <typename T>
bool ParseNumber(std::string_view text, T& value) {
  const char* end = text.data() + text.size();
  const auto [last, error] = std::from_chars(text.data(), end, value);
  return error == std::errc() && last == end;
}

bool ParseValue(PropertyTree& tree, Entry& entry, PropertyValueType type, std::string_view text) {
  switch (type) {
  case PropertyValueType::kBool:
    if (text != kTrue && text != kFalse) return false;
    tree.SetBool(entry, text == kTrue);
    return true;
  case PropertyValueType::kInteger: {
    std::int64_t value = 0;
    return ParseNumber(text, value) && (tree.SetInteger(entry, value), true);
  }
  case PropertyValueType::kUnsigned: {
    std::uint32_t value = 0;
    return ParseNumber(text, value) && (tree.SetUnsigned(entry, value), true);
  }
  case PropertyValueType::kReal: {
    double value = 0;
    return ParseNumber(text, value) && (tree.SetReal(entry, value), true);
  }
  case PropertyValueType::kString:
    return IsStoreText(text) && (tree.SetString(entry, text), true);
  default:
    return false;
  }
}

/// Turns the elements under the top element into entries, one element at a
/// time in document order.
class EntryReader {
public:
  explicit EntryReader(PropertyTree& tree) : mTree(tree) {}

  StoreReadResult Read(pugi::xml_node top) {
    for (pugi::xml_node node = top.first_child(); node;) {
      Index opened = PropertyTree::kNone;
      if (!Add(node, opened)) return NotAStore(std::move(mError));
      if (opened != PropertyTree::kNone && node.first_child()) {
        mGroups[++mDepth] = opened;
        node = node.first_child();
        continue;
      }
      while (mDepth > 0 && !node.next_sibling()) {
        node = node.parent();
        --mDepth;
      }
      node = node.next_sibling();
    }
    return StoreReadResult::Success();
  }

private:
  bool Fail(pugi::xml_node node, std::string what) {
    mError = "is not a valid property store: " + what + At(node);
    return false;
  }

  bool Add(pugi::xml_node node, Index& opened) {
    if (node.type() != pugi::node_element) return Fail(node, "text stands between the values");
    const PropertyValueType type = TypeOfName(node.name());
    if (type == PropertyValueType::kAbsent)
      return Fail(node, "the element " + Quoted(node.name()) + " is no value type");
    const std::string_view key = node.attribute(kKeyAttribute).value();
    if (key.empty() || !IsStoreText(key)) return Fail(node, "a value has no valid key");
    bool isNew = false;
    Entry& entry = mTree.Insert(mGroups[mDepth], key, isNew);
    if (!isNew) return Fail(node, "the key " + Quoted(key) + " appears twice in one group");
    if (type == PropertyValueType::kGroup) return AddGroup(node, entry, opened);
    const pugi::xml_attribute value = node.attribute(kValueAttribute);
    if (!value || node.first_child()) return Fail(node, "the key " + Quoted(key) + " has no single value");
    if (!ParseValue(mTree, entry, type, value.value()))
      return Fail(node, "the key " + Quoted(key) + " has no valid " + NameOfType(type) + " value");
    return true;
  }

  bool AddGroup(pugi::xml_node node, Entry& entry, Index& opened) {
    if (mDepth >= kMaxPropertyGroupDepth)
      return Fail(node, "groups nest deeper than " + std::to_string(kMaxPropertyGroupDepth));
    opened = mTree.SetGroup(entry);
    return true;
  }

  PropertyTree& mTree;
  std::array<Index, kMaxPropertyGroupDepth + 1> mGroups{PropertyTree::kTopGroup};
  std::size_t mDepth = 0;
  std::string mError;
};

// A DOCTYPE stands at the top level, though not necessarily first there.
pugi::xml_node FindDoctype(const pugi::xml_document& document) {
  for (pugi::xml_node node = document.first_child(); node; node = node.next_sibling())
    if (node.type() == pugi::node_doctype) return node;
  return {};
}

StoreReadResult ReadVersion(pugi::xml_node top, std::uint32_t& version) {
  const pugi::xml_attribute attribute = top.attribute(kVersionAttribute);
  const std::string_view text = attribute.value();
  const auto incompatible = [](std::string what) {
    return StoreReadResult::Failure(StoreReadStatus::kIncompatibleVersion, std::move(what));
  };
  if (!attribute) return incompatible("is a property store without a format version");
  if (std::uint32_t number = 0; ParseNumber(text, number))
    version = number;
  else
    return incompatible("has the format version " + Quoted(text) + ", which is no number");
  if (version != kXMLPropertyStoreVersion)
    return incompatible("has the format version " + std::to_string(version) + "; this store reads version " +
                        std::to_string(kXMLPropertyStoreVersion));
  return StoreReadResult::Success();
}

} // namespace

StoreReadResult ParseXML(std::string& bytes, PropertyTree& tree, std::uint32_t& version) {
  version = 0;
  if (bytes.size() > kMaxPropertyStoreFileBytes) return NotAStore("is too large to be a property store");
  pugi::xml_document document;
  // Comments, processing instructions and CDATA are skipped, not kept. The
  // DOCTYPE is kept only as raw text, so that it can be seen and refused;
  // its entities are never declared to the parser, let alone expanded.
  const pugi::xml_parse_result parsed = document.load_buffer_inplace(
      bytes.data(), bytes.size(), pugi::parse_minimal | pugi::parse_escapes | pugi::parse_doctype,
      pugi::encoding_utf8);
  if (!parsed)
    return NotAStore("is not XML: " + std::string(parsed.description()) + " at byte " +
                     std::to_string(parsed.offset));
  if (const pugi::xml_node doctype = FindDoctype(document))
    return NotAStore("has a document type declaration (DTD)" + At(doctype) +
                     ", which a property store never holds");
  const pugi::xml_node top = document.first_child();
  if (top.type() != pugi::node_element || top.next_sibling() || std::strcmp(top.name(), kTopElement) != 0)
    return NotAStore("is XML, but not a property store");
  if (StoreReadResult checked = ReadVersion(top, version); !checked) return checked;
  return EntryReader(tree).Read(top);
}

} // namespace BE::detail
