#include <krocore/string/UTF16OutputStream.h>

#include <krocore/string/UTFConversion.h>

namespace krocore {

UTF16OutputStream::~UTF16OutputStream() = default;

UTF16OutputStream& UTF16OutputStream::operator<<(std::string_view utf8Text) {
  Write(string::UTF8to16(utf8Text));
  return *this;
}

} // namespace krocore
