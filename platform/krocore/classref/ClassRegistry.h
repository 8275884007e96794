#pragma once

#include <krocore/Export.h>
#include <krocore/pointers/FlexPtr.h>
#include <krocore/utility/ImmutableString.h>

#include <functional>

namespace krocore::classref {

/// The base of every object made by class ID, so that one library can create
/// another's implementation knowing only its interface and its ID.
class KROCORE_API UnknownBase {
public:
  virtual ~UnknownBase();
};

using ClassID = utility::ImmutableString;
using ClassFactory = std::function<FlexPtr<UnknownBase>()>;

/// Returns false (and asserts) when the ID is taken or the factory empty.
KROCORE_API bool RegisterClassFactory(const ClassID& id, ClassFactory factory);
KROCORE_API bool UnregisterClassFactory(const ClassID& id);
KROCORE_API bool IsClassRegistered(const ClassID& id);
/// A new instance, or null when no factory has the ID.
KROCORE_API FlexPtr<UnknownBase> CreateUnknownInstance(const ClassID& id);

/// A new instance of the class registered under `id`, as the interface T;
/// null when the ID is unknown or the class is not a T.
template <typename T>
FlexPtr<T> CreateClassInstanceRef(const ClassID& id) {
  return std::dynamic_pointer_cast<T>(CreateUnknownInstance(id));
}

} // namespace krocore::classref
