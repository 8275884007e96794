#include <krocore/proplist/PropValue.h>

#include <krocore/proplist/PropList.h>

namespace krocore::proplist {
namespace {

template <typename T>
std::unique_ptr<T> CopyOf(const std::unique_ptr<T>& p) {
  return p ? std::make_unique<T>(*p) : nullptr;
}

} // namespace

PropValue::PropValue() noexcept = default;
PropValue::PropValue(bool value) noexcept : mValue(value) {}
PropValue::PropValue(int value) noexcept : mValue(std::int64_t{value}) {}
PropValue::PropValue(std::int64_t value) noexcept : mValue(value) {}
PropValue::PropValue(double value) noexcept : mValue(value) {}
PropValue::PropValue(std::string value) noexcept : mValue(std::move(value)) {}
PropValue::PropValue(const char* value) : mValue(std::string(value ? value : "")) {}
PropValue::PropValue(PropList value) : mValue(std::make_unique<PropList>(std::move(value))) {}
PropValue::PropValue(Array value) : mValue(std::make_unique<Array>(std::move(value))) {}
PropValue::PropValue(PropValue&& other) noexcept = default;
PropValue& PropValue::operator=(PropValue&& other) noexcept = default;
PropValue::~PropValue() = default;

PropValue::PropValue(const PropValue& other) {
  std::visit(
      [this](const auto& v) {
        using V = std::decay_t<decltype(v)>;
        if constexpr (std::is_same_v<V, std::unique_ptr<PropList>> || std::is_same_v<V, std::unique_ptr<Array>>)
          mValue = CopyOf(v);
        else
          mValue = v;
      },
      other.mValue);
}

PropValue& PropValue::operator=(const PropValue& other) {
  if (this != &other) *this = PropValue(other);
  return *this;
}

std::optional<bool> PropValue::AsBool() const noexcept {
  if (auto* v = std::get_if<bool>(&mValue)) return *v;
  return std::nullopt;
}

std::optional<std::int64_t> PropValue::AsInteger() const noexcept {
  if (auto* v = std::get_if<std::int64_t>(&mValue)) return *v;
  return std::nullopt;
}

std::optional<double> PropValue::AsReal() const noexcept {
  if (auto* v = std::get_if<double>(&mValue)) return *v;
  if (auto* v = std::get_if<std::int64_t>(&mValue)) return static_cast<double>(*v);
  return std::nullopt;
}

const std::string* PropValue::AsString() const noexcept { return std::get_if<std::string>(&mValue); }

const PropList* PropValue::AsList() const noexcept {
  auto* v = std::get_if<std::unique_ptr<PropList>>(&mValue);
  return v ? v->get() : nullptr;
}

const PropValue::Array* PropValue::AsArray() const noexcept {
  auto* v = std::get_if<std::unique_ptr<Array>>(&mValue);
  return v ? v->get() : nullptr;
}

bool PropValue::operator==(const PropValue& other) const {
  if (GetType() != other.GetType()) return false;
  switch (GetType()) {
  case Type::List: return *AsList() == *other.AsList();
  case Type::Array: return *AsArray() == *other.AsArray();
  default: return mValue == other.mValue;
  }
}

} // namespace krocore::proplist
