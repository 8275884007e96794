#pragma once

#include <krocore/Export.h>

#include <string>
#include <string_view>

namespace krocore {

/// A sink of UTF-16 text, for writers that talk to the platform's wide-text
/// consoles and logs. Text goes out in the order written.
class KROCORE_API UTF16OutputStream {
public:
  virtual ~UTF16OutputStream();

  virtual void Write(std::u16string_view text) = 0;

  UTF16OutputStream& operator<<(std::u16string_view text) {
    Write(text);
    return *this;
  }
  UTF16OutputStream& operator<<(char16_t c) {
    Write(std::u16string_view(&c, 1));
    return *this;
  }
  /// UTF-8 text, converted.
  UTF16OutputStream& operator<<(std::string_view utf8Text);

protected:
  UTF16OutputStream() = default;
  UTF16OutputStream(const UTF16OutputStream&) = default;
  UTF16OutputStream& operator=(const UTF16OutputStream&) = default;
};

/// Collects what is written in a string.
class KROCORE_API StringUTF16OutputStream final : public UTF16OutputStream {
public:
  void Write(std::u16string_view text) override { mText.append(text); }

  const std::u16string& GetText() const noexcept { return mText; }
  void Clear() noexcept { mText.clear(); }

private:
  std::u16string mText;
};

} // namespace krocore
