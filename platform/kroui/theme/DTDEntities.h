#pragma once

#include <kroui/Export.h>

#include <krocore/utility/Result.h>

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kroui::ui {

/// The general entities declared in a document's inline DTD, and their
/// expansion in attribute values. Theme files name colour IDs, brightness
/// levels and shared values through entities ("&kColor_Focus;"), which the
/// XML parser leaves alone, so the theme reader expands them here.
///
/// Expansion is bounded, because the DTD comes with the file: an entity that
/// refers to itself, nesting deeper than kMaxDepth, more than kMaxReferences
/// references or more than kMaxExpandedSize bytes of text fail the value
/// instead of growing without end. External entities are never read.
class KROUI_API DTDEntities {
public:
  static constexpr std::size_t kMaxDepth = 16;
  static constexpr std::size_t kMaxReferences = 4096;
  static constexpr std::size_t kMaxExpandedSize = 16 * 1024;

  /// Reads the declarations of an internal subset (the text between "[" and
  /// "]" of the DOCTYPE). Comments, processing instructions and the other
  /// declarations are skipped; parameter entities are declared but not used.
  static krocore::utility::Result<DTDEntities> Parse(std::string_view internalSubset);

  /// The text with every entity and character reference replaced.
  krocore::utility::Result<std::string> Expand(std::string_view text) const;

  /// The internal general entities, name and replacement text, in declaration order.
  std::vector<std::pair<std::string, std::string>> GetEntities() const;

  bool IsEmpty() const noexcept { return mEntities.empty(); }

private:
  struct Entity {
    std::string value;
    bool external = false;
    std::size_t order = 0;
  };
  struct Expansion;

  bool ExpandInto(std::string_view text, Expansion& expansion) const;
  bool ExpandReference(std::string_view name, Expansion& expansion) const;

  std::map<std::string, Entity, std::less<>> mEntities;
};

} // namespace kroui::ui
