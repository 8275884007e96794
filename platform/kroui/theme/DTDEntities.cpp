#include <kroui/theme/DTDEntities.h>

#include <krocore/string/UTFConversion.h>

#include <algorithm>
#include <charconv>

namespace kroui::ui {
namespace {

using krocore::utility::Result;

bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

bool IsNameStart(char c) {
  const auto u = static_cast<unsigned char>(c);
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || c == ':' || u >= 0x80;
}

bool IsNameChar(char c) { return IsNameStart(c) || (c >= '0' && c <= '9') || c == '-' || c == '.'; }

// A reader over the internal subset that remembers the first thing it could
// not make sense of.
class SubsetScanner {
public:
  explicit SubsetScanner(std::string_view text) : mText(text) {}

  bool AtEnd() const { return mPos >= mText.size(); }
  bool LooksAt(std::string_view prefix) const { return mText.substr(mPos).starts_with(prefix); }
  void Advance(std::size_t count) { mPos = std::min(mText.size(), mPos + count); }

  bool SkipSpace() {
    const std::size_t start = mPos;
    while (!AtEnd() && IsSpace(mText[mPos])) ++mPos;
    return mPos > start;
  }

  bool SkipPast(std::string_view terminator) {
    const std::size_t found = mText.find(terminator, mPos);
    if (found == std::string_view::npos) return false;
    mPos = found + terminator.size();
    return true;
  }

  // To the '>' that closes a declaration, stepping over quoted literals,
  // which may hold a '>' of their own.
  bool SkipDeclaration() {
    while (!AtEnd()) {
      const char c = mText[mPos++];
      if (c == '>') return true;
      if ((c == '"' || c == '\'') && !SkipPast(std::string_view(&c, 1))) return false;
    }
    return false;
  }

  std::string_view ReadName() {
    const std::size_t start = mPos;
    if (AtEnd() || !IsNameStart(mText[mPos])) return {};
    while (!AtEnd() && IsNameChar(mText[mPos])) ++mPos;
    return mText.substr(start, mPos - start);
  }

  bool ReadQuoted(std::string_view& literal) {
    if (AtEnd() || (mText[mPos] != '"' && mText[mPos] != '\'')) return false;
    const char quote = mText[mPos];
    const std::size_t end = mText.find(quote, mPos + 1);
    if (end == std::string_view::npos) return false;
    literal = mText.substr(mPos + 1, end - mPos - 1);
    mPos = end + 1;
    return true;
  }

  std::size_t Position() const { return mPos; }

private:
  std::string_view mText;
  std::size_t mPos = 0;
};

std::string Where(const SubsetScanner& scanner) {
  return " (at character " + std::to_string(scanner.Position()) + " of the DTD)";
}

bool AppendCharacterReference(std::string_view digits, std::string& out) {
  const bool hex = digits.starts_with('x');
  if (hex) digits.remove_prefix(1);
  std::uint32_t code = 0;
  const auto [end, error] =
      std::from_chars(digits.data(), digits.data() + digits.size(), code, hex ? 16 : 10);
  const bool valid = error == std::errc() && end == digits.data() + digits.size() && !digits.empty() &&
                     code != 0 && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
  if (valid) krocore::string::AppendUTF8(out, static_cast<char32_t>(code));
  return valid;
}

char PredefinedEntity(std::string_view name) {
  if (name == "amp") return '&';
  if (name == "lt") return '<';
  if (name == "gt") return '>';
  if (name == "apos") return '\'';
  if (name == "quot") return '"';
  return 0;
}

} // namespace

struct DTDEntities::Expansion {
  std::string out;
  std::string error;
  std::size_t references = 0;
  std::vector<std::string_view> active; // the entities being expanded, outermost first

  bool Fail(std::string message) {
    if (error.empty()) error = std::move(message);
    return false;
  }
};

Result<DTDEntities> DTDEntities::Parse(std::string_view internalSubset) {
  DTDEntities entities;
  SubsetScanner scanner(internalSubset);
  for (scanner.SkipSpace(); !scanner.AtEnd(); scanner.SkipSpace()) {
    bool good = true;
    if (scanner.LooksAt("<!--")) {
      good = scanner.SkipPast("-->");
    } else if (scanner.LooksAt("<?")) {
      good = scanner.SkipPast("?>");
    } else if (scanner.LooksAt("<!ENTITY")) {
      scanner.Advance(8);
      if (!scanner.SkipSpace())
        return Result<DTDEntities>::Failure("An entity declaration lacks its name" + Where(scanner));
      if (scanner.LooksAt("%")) {
        good = scanner.SkipDeclaration(); // a parameter entity: never referenced from attribute values
      } else {
        const std::string_view name = scanner.ReadName();
        if (name.empty() || !scanner.SkipSpace())
          return Result<DTDEntities>::Failure("An entity declaration has no valid name" + Where(scanner));
        Entity entity;
        entity.order = entities.mEntities.size();
        std::string_view literal;
        if (scanner.ReadQuoted(literal)) {
          entity.value = std::string(literal);
          scanner.SkipSpace();
          good = scanner.LooksAt(">");
          scanner.Advance(1);
        } else {
          entity.external = true; // SYSTEM or PUBLIC: never fetched
          good = scanner.SkipDeclaration();
        }
        entities.mEntities.try_emplace(std::string(name), std::move(entity)); // the first declaration binds
      }
    } else if (scanner.LooksAt("<!")) {
      good = scanner.SkipDeclaration();
    } else {
      return Result<DTDEntities>::Failure("The DTD holds text that is no declaration" + Where(scanner));
    }
    if (!good) return Result<DTDEntities>::Failure("A declaration of the DTD is not closed" + Where(scanner));
  }
  return Result<DTDEntities>::Success(std::move(entities));
}

Result<std::string> DTDEntities::Expand(std::string_view text) const {
  Expansion expansion;
  if (!ExpandInto(text, expansion)) return Result<std::string>::Failure(expansion.error);
  return Result<std::string>::Success(std::move(expansion.out));
}

bool DTDEntities::ExpandInto(std::string_view text, Expansion& expansion) const {
  std::size_t pos = 0;
  while (pos < text.size()) {
    const std::size_t amp = text.find('&', pos);
    expansion.out.append(text.substr(pos, amp - pos));
    if (expansion.out.size() > kMaxExpandedSize) return expansion.Fail("Entities expand to too much text");
    if (amp == std::string_view::npos) return true;
    const std::size_t semicolon = text.find(';', amp);
    if (semicolon == std::string_view::npos) return expansion.Fail("An '&' starts no reference");
    if (!ExpandReference(text.substr(amp + 1, semicolon - amp - 1), expansion)) return false;
    pos = semicolon + 1;
  }
  return true;
}

bool DTDEntities::ExpandReference(std::string_view name, Expansion& expansion) const {
  if (++expansion.references > kMaxReferences) return expansion.Fail("Entities make too many references");
  if (name.starts_with('#')) {
    return AppendCharacterReference(name.substr(1), expansion.out) ||
           expansion.Fail("\"&" + std::string(name) + ";\" is no character");
  }
  if (const char c = PredefinedEntity(name)) {
    expansion.out += c;
    return true;
  }
  const auto found = mEntities.find(name);
  if (found == mEntities.end())
    return expansion.Fail("The entity \"" + std::string(name) + "\" is not declared");
  if (found->second.external) return expansion.Fail("The entity \"" + std::string(name) + "\" is external");
  if (std::find(expansion.active.begin(), expansion.active.end(), name) != expansion.active.end())
    return expansion.Fail("The entity \"" + std::string(name) + "\" refers to itself");
  if (expansion.active.size() >= kMaxDepth) return expansion.Fail("Entities nest too deeply");
  expansion.active.push_back(found->first);
  const bool expanded = ExpandInto(found->second.value, expansion);
  expansion.active.pop_back();
  return expanded;
}

std::vector<std::pair<std::string, std::string>> DTDEntities::GetEntities() const {
  std::vector<std::pair<std::string, std::string>> list(mEntities.size());
  for (const auto& [name, entity] : mEntities) list[entity.order] = {name, entity.value};
  std::erase_if(list, [&](const auto& entry) { return mEntities.find(entry.first)->second.external; });
  return list;
}

} // namespace kroui::ui
