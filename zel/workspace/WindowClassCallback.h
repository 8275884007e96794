#pragma once

#include <zel/Export.h>
#include <zel/commands/CommandTypes.h>

namespace ZEL {

/// Called once per window class by ForEachWindowClass.
class ZEL_API WindowClassCallback {
public:
  virtual void OnWindowClass(const UTF8String& className) = 0;
  virtual ~WindowClassCallback() = default;
};

/// Orders the window classes for ForEachWindowClass: a strict weak order.
class ZEL_API WindowClassSortCallback {
public:
  virtual bool IsBefore(const UTF8String& left, const UTF8String& right) = 0;
  virtual ~WindowClassSortCallback() = default;
};

} // namespace ZEL
