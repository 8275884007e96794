#pragma once

#include <zel/Export.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace ZEL {

/// A colour formula taken apart: "$COLOR(colors.kls.base, colors.kls.white, 80%)"
/// gives the function "COLOR" and three arguments. White space is skipped
/// everywhere, text before "$" is ignored, the arguments end at the first ")"
/// (formulas do not nest: their arguments are keys and numbers).
class ZEL_API ColorExpression {
public:
  /// No function takes more; further arguments are dropped.
  static constexpr std::size_t kMaxArguments = 4;

  explicit ColorExpression(std::string_view text);
  ColorExpression(const ColorExpression&) = delete; // the views point into mText
  ColorExpression& operator=(const ColorExpression&) = delete;

  std::string_view GetFunction() const noexcept { return mFunction; }
  std::size_t GetArgumentCount() const noexcept { return mCount; }
  /// The argument at an index; empty past the last one.
  std::string_view GetArgument(std::size_t index) const noexcept {
    // The second bound is implied by the first; it lets GCC see that at -O3.
    return index < mCount && index < mArguments.size() ? mArguments[index] : std::string_view();
  }

  /// An integer argument: "0x" (either case) starts a hexadecimal number,
  /// otherwise an optional "-" and decimal digits; reading stops at the first
  /// other character ("40%" is 40). No digit, or more than 32 bits, is 0.
  static std::int32_t ReadInteger(std::string_view text) noexcept;
  /// The same without a sign.
  static std::uint32_t ReadPercent(std::string_view text) noexcept;
  /// A channel keeps the low 8 bits of its integer (256 gives 0, -1 gives 255).
  static unsigned char ReadChannel(std::string_view text) noexcept;

private:
  std::string mText; // function name and arguments, white space removed
  std::string_view mFunction;
  std::array<std::string_view, kMaxArguments> mArguments{};
  std::size_t mCount = 0;
};

} // namespace ZEL
