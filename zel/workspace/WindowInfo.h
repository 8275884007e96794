#pragma once

#include <zel/commands/CommandTypes.h>

#include <krocore/classref/ClassRegistry.h>

#include <memory>

namespace ZEL {

/// One open window of a window class, as the window menu lists it.
struct WindowInfo {
  unsigned int mWindowID = 0;
  UTF8String mName;
  unsigned int mCommandID = 0;
  std::weak_ptr<krocore::classref::UnknownBase> mProject; ///< the project it belongs to, if any
  std::weak_ptr<krocore::classref::UnknownBase> mItem;    ///< the item it shows, if any
  int mWindowInfoCommandID = 0;
  /// The switchable tab view a window context lives in; 0 for other windows.
  unsigned int mViewID = 0;
};

} // namespace ZEL
