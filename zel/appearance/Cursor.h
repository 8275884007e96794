#pragma once

#include <zel/Export.h>
#include <zel/appearance/CursorList.h>

#include <kroui/utility/OS_ResourceManager.h>

#include <cstdint>
#include <span>
#include <string_view>

namespace ZEL {

/// The framework's vocabulary of mouse cursors: IDs by name, and one
/// operation that makes a cursor current. Controls never load cursor images;
/// they call Cursor::Set with an ID, which goes to one of two resource managers:
///
///   Set(kInvalid)          nothing changes
///   Set(id < 4500)         the platform's   (kroui::utility::GetResourceManager())
///   Set(id >= 4500)        the application object's (Application::Instance()->GetResourceManager())
///
/// Every request asks for the cursor to stay until the next one
/// (kroui::utility::CursorMode::Keep). UI thread only.
namespace Cursor {

/// No cursor: setting it changes nothing.
inline constexpr std::int32_t kInvalid = -1;

// The operating system's cursors.
inline constexpr std::int32_t kOSArrow = kroui::utility::OS_ResourceManager::kOSArrow;
inline constexpr std::int32_t kOSIBeam = kroui::utility::OS_ResourceManager::kOSIBeam;
inline constexpr std::int32_t kOSWait = kroui::utility::OS_ResourceManager::kOSWait;
inline constexpr std::int32_t kOSCross = kroui::utility::OS_ResourceManager::kOSCross;
inline constexpr std::int32_t kOSNoDrop = kroui::utility::OS_ResourceManager::kOSNoDrop;
inline constexpr std::int32_t kOSCopy = kroui::utility::OS_ResourceManager::kOSCopy;
inline constexpr std::int32_t kOSLink = kroui::utility::OS_ResourceManager::kOSLink;

// The platform's own cursors.
inline constexpr std::int32_t kKROMoveVSplitter = kroui::utility::OS_ResourceManager::kMoveVSplitter;
inline constexpr std::int32_t kKROMoveHSplitter = kroui::utility::OS_ResourceManager::kMoveHSplitter;
inline constexpr std::int32_t kKROMoveHVSplitter = kroui::utility::OS_ResourceManager::kMoveHVSplitter;
inline constexpr std::int32_t kKROHand = kroui::utility::OS_ResourceManager::kHand;
inline constexpr std::int32_t kKROHandClosed = kroui::utility::OS_ResourceManager::kHandClosed;
inline constexpr std::int32_t kKROResizeHorizontal = kroui::utility::OS_ResourceManager::kResizeHorizontal;
inline constexpr std::int32_t kKROResizeVertical = kroui::utility::OS_ResourceManager::kResizeVertical;
inline constexpr std::int32_t kKROFingerPointy = kroui::utility::OS_ResourceManager::kFingerPointy;
inline constexpr std::int32_t kKROFingerScrub = kroui::utility::OS_ResourceManager::kFingerScrub;
inline constexpr std::int32_t kKRODragTab = kroui::utility::OS_ResourceManager::kDragTab;
inline constexpr std::int32_t kKRODragFrame = kroui::utility::OS_ResourceManager::kDragFrame;
inline constexpr std::int32_t kKROCircle = kroui::utility::OS_ResourceManager::kCircle;
inline constexpr std::int32_t kKROMoveCross = kroui::utility::OS_ResourceManager::kMoveCross;
inline constexpr std::int32_t kKROPencil = kroui::utility::OS_ResourceManager::kPencil;

// The framework's own cursors, in the order of their registration.
#define ZEL_CURSOR_CONSTANT(id, constant, resource) inline constexpr std::int32_t constant = id;
#define ZEL_CURSOR_NO_CONSTANT(id, resource)
ZEL_CURSOR_LIST(ZEL_CURSOR_CONSTANT, ZEL_CURSOR_NO_CONSTANT)
#undef ZEL_CURSOR_NO_CONSTANT
#undef ZEL_CURSOR_CONSTANT

/// From this ID up, cursors are the application object's.
inline constexpr std::int32_t kFirstApplicationCursor = 4500;

/// One row of the registration table. `constant` is empty for a cursor known only by its ID.
struct SharedCursor {
  std::int32_t id = kInvalid;
  std::string_view constant;
  std::u16string_view resourceName;
};

/// The framework's cursors, in the order RegisterSharedCursors registers them.
ZEL_API std::span<const SharedCursor> GetSharedCursors() noexcept;

/// Makes cursor `id` current in every window.
ZEL_API void Set(std::int32_t id);
ZEL_API void SetArrowCursor();
ZEL_API void SetWaitCursor();

/// Whether a modal cursor state (a modal loop's) is in force. Only a note
/// for callers: the cursor operations do not consult it.
ZEL_API void SetModal(bool isModal) noexcept;
ZEL_API bool IsModal() noexcept;

/// Registers the framework's cursor images, found among this library's
/// resources, with `manager`, in the table's order. Registering again with
/// the same manager changes nothing.
ZEL_API void RegisterSharedCursors(kroui::utility::ResourceManager& manager);

} // namespace Cursor

/// A start-up object: registers the framework's cursors with the platform's resource manager.
class ZEL_API CursorInitializer {
public:
  CursorInitializer();
  ~CursorInitializer();
  CursorInitializer(const CursorInitializer&) = delete;
  CursorInitializer& operator=(const CursorInitializer&) = delete;
};

/// Hides the pointer until a ShowCursor; hides nest, so that the pointer shows
/// again after as many ShowCursor(false) calls as HideCursor calls.
ZEL_API void HideCursor();
/// Undoes one HideCursor; with `force`, shows the pointer whatever was hidden before.
ZEL_API void ShowCursor(bool force);

} // namespace ZEL
