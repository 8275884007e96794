// The text form of a property list is JSON. This is the only file that sees
// the JSON library: the list is read through its event interface, so the
// text never becomes a second tree, and nesting is bounded as it is met.
#include <krocore/proplist/PropList.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace krocore::proplist {
namespace {

using Json = nlohmann::json;
using utility::Result;

// ---- Writing

Json ToJson(const PropList& list);

Json ToJson(const PropValue& value) {
  switch (value.GetType()) {
  case PropValue::Type::None: return nullptr;
  case PropValue::Type::Bool: return *value.AsBool();
  case PropValue::Type::Integer: return *value.AsInteger();
  case PropValue::Type::String: return *value.AsString();
  case PropValue::Type::List: return ToJson(*value.AsList());
  case PropValue::Type::Real: {
    const double real = *value.AsReal();
    return std::isfinite(real) ? Json(real) : Json(nullptr); // JSON has no infinities
  }
  case PropValue::Type::Array: {
    Json array = Json::array();
    for (const PropValue& element : *value.AsArray()) array.push_back(ToJson(element));
    return array;
  }
  }
  return nullptr;
}

Json ToJson(const PropList& list) {
  Json object = Json::object();
  for (const auto& [key, value] : list.Entries()) object.emplace(key, ToJson(value));
  return object;
}

// ---- Reading

// Hands the text to the parser byte by byte and keeps how far it got, so that
// a failure found while building (not by the parser) can name its line.
class TrackingIterator {
public:
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = const char&;

  TrackingIterator(const char* at, const char** reached) : mAt(at), mReached(reached) {}
  reference operator*() const { return *mAt; }
  TrackingIterator& operator++() {
    *mReached = ++mAt;
    return *this;
  }
  TrackingIterator operator++(int) {
    TrackingIterator before = *this;
    ++*this;
    return before;
  }
  bool operator==(const TrackingIterator& other) const { return mAt == other.mAt; }

private:
  const char* mAt;
  const char** mReached;
};

// "line L, column C" of the byte before `offset`, where reading stopped.
std::string Locate(std::string_view text, std::size_t offset) {
  offset = std::min(offset, text.size());
  const std::string_view read = text.substr(0, offset);
  const std::size_t lastBreak = read.rfind('\n');
  const std::size_t lineStart = lastBreak == std::string_view::npos ? 0 : lastBreak + 1;
  const auto line = 1 + std::count(read.begin(), read.end(), '\n');
  return "line " + std::to_string(line) + ", column " + std::to_string(std::max<std::size_t>(offset - lineStart, 1));
}

// The parser's own words, without its error number and its idea of the position.
std::string ParserReason(const nlohmann::detail::exception& error) {
  std::string_view reason = error.what();
  if (const auto close = reason.find("] "); close != std::string_view::npos) reason.remove_prefix(close + 2);
  if (reason.starts_with("parse error"))
    if (const auto colon = reason.find(": "); colon != std::string_view::npos) reason.remove_prefix(colon + 2);
  return std::string(reason);
}

// Built step by step: GCC 12 warns wrongly (-Wrestrict) on a chain of + here.
std::string Quoted(std::string_view text) {
  std::string quoted;
  quoted.reserve(text.size() + 2);
  quoted.push_back('"');
  quoted.append(text);
  quoted.push_back('"');
  return quoted;
}

/// Builds the list from the parser's events with a stack of open containers,
/// so hostile nesting costs a refusal, never a deep recursion.
class ListBuilder {
public:
  explicit ListBuilder(std::string_view text) : mText(text), mReached(text.data()) {}

  Result<PropList> Read() {
    const char* first = mText.data();
    const char* last = first + mText.size();
    Json::sax_parse(TrackingIterator(first, &mReached), TrackingIterator(last, &mReached), this);
    if (mError.empty() && !mRoot) Fail("expected an object");
    if (!mError.empty()) return Result<PropList>::Failure(mError);
    return Result<PropList>::Success(std::move(*mRoot));
  }

  // The parser's events.
  bool null() { return Add(PropValue()); }
  bool boolean(bool value) { return Add(PropValue(value)); }
  bool number_integer(std::int64_t value) { return Add(PropValue(value)); }
  bool number_unsigned(std::uint64_t value) {
    if (value > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()))
      return Fail(Quoted(std::to_string(value)) + " is too large for an integer");
    return Add(PropValue(static_cast<std::int64_t>(value)));
  }
  bool number_float(double value, const std::string& text) {
    // The parser reads an integer too long for 64 bits as a real; it stays an error.
    if (text.find_first_of(".eE") == std::string::npos) return Fail(Quoted(text) + " is too large for an integer");
    return Add(PropValue(value));
  }
  bool string(std::string& value) { return Add(PropValue(std::move(value))); }
  bool binary(Json::binary_t&) { return Fail("binary data is not a value"); }
  bool start_object(std::size_t) { return Open(true); }
  bool key(std::string& key) {
    if (mOpen.back().list.Has(key)) return Fail("the key " + Quoted(key) + " appears twice");
    mOpen.back().key = std::move(key);
    return true;
  }
  bool end_object() { return Close(); }
  bool start_array(std::size_t) { return Open(false); }
  bool end_array() { return Close(); }
  bool parse_error(std::size_t position, const std::string&, const nlohmann::detail::exception& error) {
    return Fail(ParserReason(error), position);
  }

private:
  struct Container {
    bool isList = true;
    PropList list;
    PropValue::Array array;
    std::string key; ///< the key that the next value of a list goes under
  };

  bool Open(bool isList) {
    if (mOpen.size() >= static_cast<std::size_t>(PropList::kMaxDepth)) return Fail("lists are nested too deeply");
    if (mOpen.empty() && (!isList || mRoot)) return Fail("expected an object");
    mOpen.emplace_back().isList = isList;
    return true;
  }

  bool Close() {
    Container closed = std::move(mOpen.back());
    mOpen.pop_back();
    if (mOpen.empty()) {
      mRoot = std::move(closed.list);
      return true;
    }
    return closed.isList ? Add(PropValue(std::move(closed.list))) : Add(PropValue(std::move(closed.array)));
  }

  bool Add(PropValue value) {
    if (mOpen.empty()) return Fail("expected an object");
    Container& into = mOpen.back();
    if (into.isList) into.list.Set(into.key, std::move(value));
    else into.array.push_back(std::move(value));
    return true;
  }

  bool Fail(const std::string& what) { return Fail(what, static_cast<std::size_t>(mReached - mText.data())); }
  bool Fail(const std::string& what, std::size_t offset) {
    if (mError.empty()) mError = Locate(mText, offset) + ": " + what;
    return false;
  }

  std::string_view mText;
  const char* mReached;
  std::vector<Container> mOpen;
  std::optional<PropList> mRoot;
  std::string mError;
};

} // namespace

std::string PropList::ToText() const {
  // Invalid UTF-8 in a string becomes U+FFFD rather than text no reader accepts.
  std::string text = ToJson(*this).dump(2, ' ', false, Json::error_handler_t::replace);
  text += '\n';
  return text;
}

utility::Result<PropList> PropList::FromText(std::string_view text) { return ListBuilder(text).Read(); }

} // namespace krocore::proplist
