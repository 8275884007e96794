#include <zel/Localization.h>

#include <vector>

namespace ZEL {

std::string Localize(std::string_view key) {
  const auto equals = key.find('=');
  return std::string(equals == std::string_view::npos ? key : key.substr(equals + 1));
}

std::string ReplacePlaceholders(std::string_view templateText, std::initializer_list<std::string_view> texts) {
  const std::vector<std::string_view> args(texts);
  std::string out;
  out.reserve(templateText.size());
  for (std::size_t i = 0; i < templateText.size(); ++i) {
    const char c = templateText[i];
    if (c == '@' && i + 1 < templateText.size() && templateText[i + 1] >= '0' && templateText[i + 1] <= '9') {
      const auto index = static_cast<std::size_t>(templateText[i + 1] - '0');
      if (index < args.size()) {
        out += args[index];
        ++i;
        continue;
      }
    }
    out += c;
  }
  return out;
}

} // namespace ZEL
