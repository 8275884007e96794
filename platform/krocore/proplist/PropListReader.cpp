// Reads the text form that PropListWriter.cpp writes. The text may come from
// a damaged or hostile file: every failure names its line and column, depth
// is bounded, and nothing is returned but a whole list.
#include <krocore/proplist/PropList.h>
#include <krocore/string/UTFConversion.h>

#include <cctype>
#include <charconv>
#include <cmath>
#include <limits>

namespace krocore::proplist {
namespace {

using utility::Result;

class Reader {
public:
  explicit Reader(std::string_view text) : mText(text) {}

  Result<PropList> ReadDocument() {
    PropList list;
    SkipSpace();
    if (ReadList(list, 0)) {
      SkipSpace();
      if (mPos == mText.size()) return Result<PropList>::Success(std::move(list));
      Error("unexpected text after the closing '}'");
    }
    return Result<PropList>::Failure(mError);
  }

private:
  bool Error(std::string_view what) {
    if (!mError.empty()) return false;
    int line = 1, column = 1;
    for (std::size_t i = 0; i < mPos && i < mText.size(); ++i) {
      if (mText[i] == '\n') ++line, column = 1;
      else ++column;
    }
    mError = "line " + std::to_string(line) + ", column " + std::to_string(column) + ": " + std::string(what);
    return false;
  }

  // Built step by step: GCC 12 warns wrongly (-Wrestrict) on a chain of + here.
  static std::string Quoted(std::string_view text) {
    std::string quoted;
    quoted.reserve(text.size() + 2);
    quoted.push_back('"');
    quoted.append(text);
    quoted.push_back('"');
    return quoted;
  }

  bool AtEnd() const { return mPos >= mText.size(); }
  char Peek() const { return AtEnd() ? '\0' : mText[mPos]; }

  void SkipSpace() {
    while (!AtEnd()) {
      const char c = mText[mPos];
      if (c == '#') {
        while (!AtEnd() && mText[mPos] != '\n') ++mPos;
      } else if (c == ' ' || c == '\t' || c == '\n' || c == '\r') {
        ++mPos;
      } else {
        return;
      }
    }
  }

  bool Expect(char c, std::string_view what) {
    SkipSpace();
    if (Peek() != c) return Error(what);
    ++mPos;
    return true;
  }

  bool ReadList(PropList& list, int depth) {
    if (depth >= PropList::kMaxDepth) return Error("lists are nested too deeply");
    if (!Expect('{', "expected '{'")) return false;
    for (SkipSpace(); Peek() != '}'; SkipSpace()) {
      if (AtEnd()) return Error("expected '}' before the end of the text");
      std::string key;
      if (Peek() != '"' || !ReadString(key)) return Error("expected a quoted key");
      if (list.Has(key)) return Error("the key " + Quoted(key) + " appears twice");
      if (!Expect('=', "expected '=' after a key")) return false;
      PropValue value;
      if (!ReadValue(value, depth)) return false;
      if (!Expect(';', "expected ';' after a value")) return false;
      list.Set(key, std::move(value));
    }
    ++mPos;
    return true;
  }

  bool ReadValue(PropValue& value, int depth) {
    SkipSpace();
    const char c = Peek();
    if (c == '{') {
      PropList nested;
      if (!ReadList(nested, depth + 1)) return false;
      value = PropValue(std::move(nested));
      return true;
    }
    if (c == '(') return ReadArray(value, depth);
    if (c == '"') {
      std::string text;
      if (!ReadString(text)) return false;
      value = PropValue(std::move(text));
      return true;
    }
    return ReadWord(value);
  }

  bool ReadArray(PropValue& value, int depth) {
    if (depth + 1 >= PropList::kMaxDepth) return Error("lists are nested too deeply");
    ++mPos;
    PropValue::Array array;
    SkipSpace();
    if (Peek() == ')') {
      ++mPos;
      value = PropValue(std::move(array));
      return true;
    }
    for (;;) {
      PropValue element;
      if (!ReadValue(element, depth + 1)) return false;
      array.push_back(std::move(element));
      SkipSpace();
      if (Peek() == ')') break;
      if (!Expect(',', "expected ',' or ')' in an array")) return false;
    }
    ++mPos;
    value = PropValue(std::move(array));
    return true;
  }

  // true, false, none, an integer or a real.
  bool ReadWord(PropValue& value) {
    const std::size_t start = mPos;
    while (!AtEnd() && (std::isalnum(static_cast<unsigned char>(Peek())) || Peek() == '-' || Peek() == '+' ||
                        Peek() == '.'))
      ++mPos;
    const std::string_view word = mText.substr(start, mPos - start);
    if (word == "true" || word == "false") value = PropValue(word == "true");
    else if (word == "none") value = PropValue();
    else if (!ReadNumber(word, value)) {
      mPos = start;
      return Error(word.empty() ? std::string("expected a value") : Quoted(word) + " is not a value");
    }
    return true;
  }

  static bool ReadNumber(std::string_view word, PropValue& value) {
    if (word.empty()) return false;
    const char* first = word.data();
    const char* last = word.data() + word.size();
    if (word.find_first_of(".eEni") == std::string_view::npos) {
      std::int64_t integer = 0;
      auto [end, error] = std::from_chars(first, last, integer);
      if (error != std::errc() || end != last) return false;
      value = PropValue(integer);
      return true;
    }
    if (word == "inf" || word == "-inf") {
      value = PropValue(word[0] == '-' ? -std::numeric_limits<double>::infinity()
                                       : std::numeric_limits<double>::infinity());
      return true;
    }
    if (word == "nan") {
      value = PropValue(std::numeric_limits<double>::quiet_NaN());
      return true;
    }
    double real = 0;
    auto [end, error] = std::from_chars(first, last, real);
    if (error != std::errc() || end != last || !std::isfinite(real)) return false;
    value = PropValue(real);
    return true;
  }

  bool ReadString(std::string& out) {
    ++mPos; // the opening quote
    while (!AtEnd()) {
      const char c = mText[mPos++];
      if (c == '"') return true;
      if (c != '\\') {
        out += c;
        continue;
      }
      if (!ReadEscape(out)) return false;
    }
    return Error("a string is not closed");
  }

  bool ReadEscape(std::string& out) {
    if (AtEnd()) return Error("a string is not closed");
    switch (const char c = mText[mPos++]) {
    case '"': out += '"'; return true;
    case '\\': out += '\\'; return true;
    case 'n': out += '\n'; return true;
    case 'r': out += '\r'; return true;
    case 't': out += '\t'; return true;
    case 'u': return ReadUnicodeEscape(out);
    default: return Error(std::string("unknown escape \\") + c);
    }
  }

  bool ReadHex4(char32_t& unit) {
    if (mText.size() - mPos < 4) return Error("\\u needs four hexadecimal digits");
    unsigned value = 0;
    auto [end, error] = std::from_chars(mText.data() + mPos, mText.data() + mPos + 4, value, 16);
    if (error != std::errc() || end != mText.data() + mPos + 4) return Error("\\u needs four hexadecimal digits");
    mPos += 4;
    unit = value;
    return true;
  }

  bool ReadUnicodeEscape(std::string& out) {
    char32_t unit = 0;
    if (!ReadHex4(unit)) return false;
    if (unit >= 0xD800 && unit <= 0xDBFF && mText.substr(mPos, 2) == "\\u") {
      mPos += 2;
      char32_t low = 0;
      if (!ReadHex4(low)) return false;
      if (low >= 0xDC00 && low <= 0xDFFF) unit = 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
      else string::AppendUTF8(out, string::kReplacementCharacter), unit = low;
    }
    string::AppendUTF8(out, unit); // a lone surrogate becomes U+FFFD
    return true;
  }

  std::string_view mText;
  std::size_t mPos = 0;
  std::string mError;
};

} // namespace

utility::Result<PropList> PropList::FromText(std::string_view text) { return Reader(text).ReadDocument(); }

} // namespace krocore::proplist
