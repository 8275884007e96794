#pragma once

#include <zel/Export.h>

#include <krocore/classref/ClassRegistry.h>
#include <krocore/pointers/FlexPtr.h>

namespace ZEL {

/// A counted reference to a host interface. The platform has no interface
/// reference of its own yet, so the workspace names the smallest one it needs.
template <class T>
using InterfaceRef = krocore::FlexPtr<T>;

/// The host's project, as far as the workspace knows it: an object that
/// windows can belong to, compared by identity only.
class ZEL_API IProject : public krocore::classref::UnknownBase {
public:
  ~IProject() override = default;
};

} // namespace ZEL
