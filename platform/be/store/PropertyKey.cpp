#include <be/store/PropertyKey.h>

#include <charconv>
#include <limits>

namespace BE {
namespace {

constexpr char kSeparator = '.';

std::string Joined(std::string_view base, std::string_view suffix) {
  std::string key;
  key.reserve(base.size() + 1 + suffix.size());
  key.append(base);
  if (!base.empty()) key.push_back(kSeparator);
  key.append(suffix);
  return key;
}

} // namespace

std::string CreateKeyWithSuffix(std::string_view base, std::string_view suffix) {
  return Joined(base, suffix);
}

std::string CreateKeyWithIndex(std::string_view base, std::uint32_t index) {
  char digits[std::numeric_limits<std::uint32_t>::digits10 + 1];
  const auto end = std::to_chars(digits, digits + sizeof digits, index).ptr;
  return Joined(base, std::string_view(digits, static_cast<std::size_t>(end - digits)));
}

} // namespace BE
