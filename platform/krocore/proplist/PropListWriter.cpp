// The text form of a property list; PropListReader.cpp reads it back.
#include <krocore/proplist/PropList.h>

#include <charconv>
#include <cmath>
#include <cstdio>

namespace krocore::proplist {
namespace {

class Writer {
public:
  std::string Take() { return std::move(mOut); }

  void WriteList(const PropList& list, int depth) {
    if (list.IsEmpty()) {
      mOut += "{}";
      return;
    }
    mOut += "{\n";
    for (const auto& [key, value] : list.Entries()) {
      Indent(depth + 1);
      WriteString(key);
      mOut += " = ";
      WriteValue(value, depth + 1);
      mOut += ";\n";
    }
    Indent(depth);
    mOut += '}';
  }

private:
  void Indent(int depth) { mOut.append(static_cast<std::size_t>(depth) * 2, ' '); }

  void WriteValue(const PropValue& value, int depth) {
    switch (value.GetType()) {
    case PropValue::Type::None: mOut += "none"; break;
    case PropValue::Type::Bool: mOut += *value.AsBool() ? "true" : "false"; break;
    case PropValue::Type::Integer: mOut += std::to_string(*value.AsInteger()); break;
    case PropValue::Type::Real: WriteReal(*value.AsReal()); break;
    case PropValue::Type::String: WriteString(*value.AsString()); break;
    case PropValue::Type::List: WriteList(*value.AsList(), depth); break;
    case PropValue::Type::Array: WriteArray(*value.AsArray(), depth); break;
    }
  }

  void WriteArray(const PropValue::Array& array, int depth) {
    mOut += '(';
    for (std::size_t i = 0; i < array.size(); ++i) {
      mOut += i == 0 ? " " : ", ";
      WriteValue(array[i], depth);
    }
    mOut += array.empty() ? ")" : " )";
  }

  // Shortest text that reads back to the same double, always marked as real.
  void WriteReal(double value) {
    if (std::isnan(value)) {
      mOut += "nan";
      return;
    }
    char buffer[64];
    auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value);
    std::string_view text(buffer, static_cast<std::size_t>(end - buffer));
    mOut += text;
    if (text.find_first_of(".eni") == std::string_view::npos) mOut += ".0";
  }

  void WriteString(std::string_view text) {
    mOut += '"';
    for (char c : text) {
      switch (c) {
      case '"': mOut += "\\\""; break;
      case '\\': mOut += "\\\\"; break;
      case '\n': mOut += "\\n"; break;
      case '\r': mOut += "\\r"; break;
      case '\t': mOut += "\\t"; break;
      default:
        if (static_cast<unsigned char>(c) < 0x20) {
          char escape[8];
          std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(c));
          mOut += escape;
        } else {
          mOut += c;
        }
      }
    }
    mOut += '"';
  }

  std::string mOut;
};

} // namespace

std::string PropList::ToText() const {
  Writer writer;
  writer.WriteList(*this, 0);
  std::string text = writer.Take();
  text += '\n';
  return text;
}

} // namespace krocore::proplist
