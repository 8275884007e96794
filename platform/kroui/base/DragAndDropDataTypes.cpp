#include <kroui/base/DragAndDropDataTypes.h>

#include <algorithm>

namespace kroui::ui {
namespace {

std::vector<std::string>& Formats() {
  static std::vector<std::string> sFormats;
  return sFormats;
}

std::vector<std::string>::iterator Find(std::string_view format) {
  return std::find(Formats().begin(), Formats().end(), format);
}

} // namespace

bool DragAndDropDataTypes::Register(std::string_view format) {
  if (format.empty() || IsRegistered(format)) return false;
  Formats().emplace_back(format);
  return true;
}

bool DragAndDropDataTypes::Unregister(std::string_view format) {
  const auto found = Find(format);
  if (found == Formats().end()) return false;
  Formats().erase(found);
  return true;
}

bool DragAndDropDataTypes::IsRegistered(std::string_view format) { return Find(format) != Formats().end(); }

std::vector<std::string> DragAndDropDataTypes::GetRegistered() { return Formats(); }

void DragAndDropDataTypes::Clear() { Formats().clear(); }

} // namespace kroui::ui
