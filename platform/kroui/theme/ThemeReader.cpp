// The one place of kroui that sees pugixml.
#include <kroui/theme/ThemeReader.h>

#include <kroui/theme/DTDEntities.h>

#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <pugixml.hpp>
#include <string>

namespace kroui::ui {
namespace {

using krocore::utility::Result;

std::string_view Trim(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r\n") - first + 1);
}

template <typename Number>
std::optional<Number> ParseNumber(std::string_view text) {
  text = Trim(text);
  Number value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || text.empty()) return std::nullopt;
  if constexpr (std::is_floating_point_v<Number>) {
    if (!std::isfinite(value)) return std::nullopt;
  }
  return value;
}

bool IsGeneralLevel(std::string_view rawPosition) {
  rawPosition = Trim(rawPosition);
  return rawPosition == "&General;" || rawPosition == "&Generic;";
}

// Walks the document, expanding entities in every attribute it reads and
// keeping the first problem it meets.
class Walker {
public:
  explicit Walker(const DTDEntities& entities) : mEntities(entities) {}

  bool ReadRoot(const pugi::xml_node& root);
  const std::string& Error() const { return mError; }
  ThemeDocument TakeDocument() { return std::move(mDocument); }

private:
  bool ReadColors(const pugi::xml_node& colors);
  bool ReadTheme(const pugi::xml_node& theme);
  bool ReadKeyFrame(const pugi::xml_node& node, std::optional<float> themePosition, bool general);
  bool ReadFonts(const pugi::xml_node& fonts);
  bool ReadValues(const pugi::xml_node& values);

  std::optional<std::string> Attribute(const pugi::xml_node& node, const char* name, bool required);
  template <typename Number>
  bool ReadNumber(const pugi::xml_node& node, const char* name, Number& value, Number low, Number high,
                  bool required);

  bool Fail(const pugi::xml_node& node, const std::string& message) {
    if (mError.empty())
      mError = message + " (<" + node.name() + "> at byte " + std::to_string(node.offset_debug()) + ")";
    return false;
  }

  const DTDEntities& mEntities;
  ThemeDocument mDocument;
  std::string mError;
};

std::optional<std::string> Walker::Attribute(const pugi::xml_node& node, const char* name, bool required) {
  const pugi::xml_attribute attribute = node.attribute(name);
  if (!attribute) {
    if (required) Fail(node, std::string("The attribute \"") + name + "\" is missing");
    return std::nullopt;
  }
  auto expanded = mEntities.Expand(attribute.value());
  if (!expanded) {
    Fail(node, expanded.Error() + " in \"" + name + "\"");
    return std::nullopt;
  }
  return std::move(expanded).Value();
}

template <typename Number>
bool Walker::ReadNumber(const pugi::xml_node& node, const char* name, Number& value, Number low, Number high,
                        bool required) {
  const auto text = Attribute(node, name, required);
  if (!text) return mError.empty();
  const auto number = ParseNumber<Number>(*text);
  if (!number || *number < low || *number > high)
    return Fail(node, std::string("The attribute \"") + name + "\" is not a number in its range: \"" + *text +
                          "\"");
  value = *number;
  return true;
}

bool Walker::ReadRoot(const pugi::xml_node& root) {
  if (std::string_view(root.name()) == "ThemeColors") return ReadColors(root);
  if (std::string_view(root.name()) != "ThemeParameters") return Fail(root, "The root is no theme");
  for (const pugi::xml_node& child : root.children()) {
    if (child.type() != pugi::node_element) continue;
    const std::string_view name = child.name();
    const bool good = name == "ThemeColors"   ? ReadColors(child)
                      : name == "ThemeFonts"  ? ReadFonts(child)
                      : name == "ThemeValues" ? ReadValues(child)
                                              : Fail(child, "Unexpected element");
    if (!good) return false;
  }
  return true;
}

bool Walker::ReadColors(const pugi::xml_node& colors) {
  for (const pugi::xml_node& child : colors.children()) {
    if (child.type() != pugi::node_element) continue;
    const std::string_view name = child.name();
    const bool good = name == "Theme"      ? ReadTheme(child)
                      : name == "KeyFrame" ? ReadKeyFrame(child, std::nullopt, false)
                                           : Fail(child, "Unexpected element");
    if (!good) return false;
  }
  return true;
}

bool Walker::ReadTheme(const pugi::xml_node& theme) {
  float position = 0.f;
  if (!ReadNumber(theme, "t", position, 0.f, 1.f, true)) return false;
  const bool general = IsGeneralLevel(theme.attribute("t").value());
  for (const pugi::xml_node& child : theme.children()) {
    if (child.type() != pugi::node_element) continue;
    if (std::string_view(child.name()) != "KeyFrame") return Fail(child, "Unexpected element");
    if (!ReadKeyFrame(child, position, general)) return false;
  }
  return true;
}

bool Walker::ReadKeyFrame(const pugi::xml_node& node, std::optional<float> themePosition, bool general) {
  KeyFrame frame;
  frame.general = general;
  frame.t = themePosition.value_or(0.f);
  const auto hold = Attribute(node, "hold", false);
  if (hold && *hold != "true" && *hold != "false")
    return Fail(node, "\"hold\" is neither \"true\" nor \"false\"");
  frame.hold = hold && *hold == "true";
  const bool good = ReadNumber<ColorID>(node, "name", frame.name, 0, UINT64_MAX, true) &&
                    ReadNumber(node, "t", frame.t, 0.f, 1.f, !themePosition) &&
                    ReadNumber(node, "v", frame.v, 0.f, 1.f, true) &&
                    ReadNumber(node, "h", frame.h, -360.f, 720.f, false) &&
                    ReadNumber(node, "s", frame.s, 0.f, 1.f, false) &&
                    ReadNumber(node, "a", frame.a, 0.f, 1.f, false);
  if (good) mDocument.keyFrames.push_back(frame);
  return good;
}

bool Walker::ReadFonts(const pugi::xml_node& fonts) {
  for (const pugi::xml_node& child : fonts.children()) {
    if (child.type() != pugi::node_element) continue;
    if (std::string_view(child.name()) != "FontSize") return Fail(child, "Unexpected element");
    int text = 0;
    int scheme = static_cast<int>(FontScheme::Regular);
    FontSize size;
    if (!ReadNumber(child, "name", text, 0, 2, true) ||
        !ReadNumber(child, "size", size.size, 1.f, 1000.f, true) ||
        !ReadNumber(child, "scheme", scheme, 0, 2, false))
      return false;
    size.name = static_cast<FontText>(text);
    size.scheme = static_cast<FontScheme>(scheme);
    mDocument.fontSizes.push_back(size);
  }
  return true;
}

bool Walker::ReadValues(const pugi::xml_node& values) {
  for (const pugi::xml_node& child : values.children()) {
    if (child.type() != pugi::node_element) continue;
    if (std::string_view(child.name()) != "ThemeValue") return Fail(child, "Unexpected element");
    ThemeValue value;
    if (!ReadNumber<ColorID>(child, "name", value.name, 0, UINT64_MAX, true) ||
        !ReadNumber(child, "v", value.v, -1e300, 1e300, true))
      return false;
    mDocument.values.push_back(value);
  }
  return true;
}

// The text between "[" and "]" of <!DOCTYPE root [ ... ]>, as pugixml keeps it.
std::string_view InternalSubset(const pugi::xml_document& document) {
  for (const pugi::xml_node& node : document.children()) {
    if (node.type() != pugi::node_doctype) continue;
    const std::string_view doctype = node.value();
    const auto open = doctype.find('[');
    const auto close = doctype.rfind(']');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open) return {};
    return doctype.substr(open + 1, close - open - 1);
  }
  return {};
}

} // namespace

Result<ThemeDocument> ThemeReader::Read(std::string_view xml) {
  // Escapes stay as they are, so that "&amp;General;" is never mistaken for
  // "&General;": every reference is expanded once, by the DTD's entities.
  constexpr unsigned kOptions = (pugi::parse_default | pugi::parse_doctype) & ~pugi::parse_escapes;
  pugi::xml_document document;
  const pugi::xml_parse_result parsed =
      document.load_buffer(xml.data(), xml.size(), kOptions, pugi::encoding_utf8);
  if (!parsed)
    return Result<ThemeDocument>::Failure(std::string("The theme is not well-formed XML: ") +
                                          parsed.description() + " at byte " + std::to_string(parsed.offset));
  auto entities = DTDEntities::Parse(InternalSubset(document));
  if (!entities) return Result<ThemeDocument>::Failure(entities.Error());
  Walker walker(entities.Value());
  if (!document.document_element() || !walker.ReadRoot(document.document_element()))
    return Result<ThemeDocument>::Failure(walker.Error().empty() ? "The theme has no root element"
                                                                 : walker.Error());
  ThemeDocument result = walker.TakeDocument();
  result.entities = entities.Value().GetEntities();
  return Result<ThemeDocument>::Success(std::move(result));
}

} // namespace kroui::ui
