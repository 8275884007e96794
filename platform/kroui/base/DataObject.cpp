#include <kroui/base/DataObject.h>

namespace kroui::ui {

void DataObject::SetData(std::string_view format, std::string bytes) {
  mPayloads.insert_or_assign(std::string(format), std::move(bytes));
}

const std::string* DataObject::GetData(std::string_view format) const {
  const auto found = mPayloads.find(format);
  return found == mPayloads.end() ? nullptr : &found->second;
}

bool DataObject::HasFormat(std::string_view format) const { return mPayloads.contains(format); }

std::string DataObject::GetText() const {
  const std::string* text = GetData(kFormat_Text);
  return text ? *text : std::string();
}

} // namespace kroui::ui
