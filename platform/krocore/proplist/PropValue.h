#pragma once

#include <krocore/Export.h>
#include <krocore/Forward.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace krocore::proplist {

/// One typed value of a property list: a boolean, a 64-bit integer, a real,
/// a UTF-8 string, a nested list or an array of values.
class KROCORE_API PropValue {
public:
  enum class Type { None, Bool, Integer, Real, String, List, Array };
  using Array = std::vector<PropValue>;

  PropValue() noexcept;
  PropValue(bool value) noexcept;          // NOLINT: values convert as literals do
  PropValue(int value) noexcept;           // NOLINT
  PropValue(std::int64_t value) noexcept;  // NOLINT
  PropValue(double value) noexcept;        // NOLINT
  PropValue(std::string value) noexcept;   // NOLINT
  PropValue(const char* value);            // NOLINT
  PropValue(PropList value);               // NOLINT
  PropValue(Array value);                  // NOLINT
  PropValue(const PropValue& other);
  PropValue(PropValue&& other) noexcept;
  PropValue& operator=(const PropValue& other);
  PropValue& operator=(PropValue&& other) noexcept;
  ~PropValue();

  Type GetType() const noexcept { return static_cast<Type>(mValue.index()); }

  std::optional<bool> AsBool() const noexcept;
  std::optional<std::int64_t> AsInteger() const noexcept;
  /// Integers widen to reals; nothing else converts.
  std::optional<double> AsReal() const noexcept;
  const std::string* AsString() const noexcept;
  const PropList* AsList() const noexcept;
  const Array* AsArray() const noexcept;

  bool operator==(const PropValue& other) const;

private:
  std::variant<std::monostate, bool, std::int64_t, double, std::string, std::unique_ptr<PropList>,
               std::unique_ptr<Array>>
      mValue;
};

} // namespace krocore::proplist
