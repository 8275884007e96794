#pragma once
// Forward declarations of krocore's public types, for headers that only name them.

#include <krocore/pointers/FlexPtr.h>

namespace krocore {
class IntrusiveRefCounted;
template <typename T>
class IntrusivePtr;
class UTF16OutputStream;
class StringUTF16OutputStream;
} // namespace krocore

namespace krocore::utility {
class ImmutableString;
class StringArena;
class EnableSharedAs;
template <typename T>
class Flags;
template <typename T>
class Result;
} // namespace krocore::utility

namespace krocore::messaging {
class Message;
class Listener;
class Station;
} // namespace krocore::messaging

namespace krocore::proplist {
class PropList;
class PropValue;
} // namespace krocore::proplist

namespace krocore::settings {
class ValueStore;
class Settings;
class Preferences;
} // namespace krocore::settings

namespace krocore::classref {
class UnknownBase;
} // namespace krocore::classref

namespace krocore::geom {
template <typename T>
struct PointT;
template <typename T>
struct ExtentT;
template <typename T>
struct RectT;
} // namespace krocore::geom
