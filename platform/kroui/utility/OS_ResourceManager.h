#pragma once

#include <kroui/Export.h>
#include <kroui/utility/ResourceManager.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace kroui::utility {

/// The platform's resource manager: besides what is registered with it, it
/// knows the operating system's cursors (0 to 6) and the platform's own
/// (10 to 23), drawn on first use. The arrow is the system's (a null cursor);
/// the other system cursors carry their ui::SystemCursor shape, so that a
/// backend with the system's cursors shows those.
class KROUI_API OS_ResourceManager : public ResourceManager {
public:
  /// kroui's own module, over which the default platform resource manager is made.
  static constexpr std::string_view kModule = "kroui";

  // The operating system's cursors.
  static constexpr std::int32_t kOSArrow = 0;
  static constexpr std::int32_t kOSIBeam = 1;
  static constexpr std::int32_t kOSWait = 2;
  static constexpr std::int32_t kOSCross = 3;
  static constexpr std::int32_t kOSNoDrop = 4;
  static constexpr std::int32_t kOSCopy = 5;
  static constexpr std::int32_t kOSLink = 6;

  // The platform's own cursors.
  static constexpr std::int32_t kMoveVSplitter = 10;
  static constexpr std::int32_t kMoveHSplitter = 11;
  static constexpr std::int32_t kMoveHVSplitter = 12;
  static constexpr std::int32_t kHand = 13;
  static constexpr std::int32_t kHandClosed = 14;
  static constexpr std::int32_t kResizeHorizontal = 15;
  static constexpr std::int32_t kResizeVertical = 16;
  static constexpr std::int32_t kFingerPointy = 17;
  static constexpr std::int32_t kFingerScrub = 18;
  static constexpr std::int32_t kDragTab = 19;
  static constexpr std::int32_t kDragFrame = 20;
  static constexpr std::int32_t kCircle = 21;
  static constexpr std::int32_t kMoveCross = 22;
  static constexpr std::int32_t kPencil = 23;

  explicit OS_ResourceManager(std::string module = std::string(kModule));
  ~OS_ResourceManager() override;

  /// Hides or shows the pointer over every window, through the backend.
  /// `counted`: the request nests with the other counted ones, so the
  /// pointer shows again only after as many counted shows as counted hides;
  /// an uncounted show shows it whatever the count. `untilPointerMoves`: a
  /// hide that ends by itself when the pointer next moves (ignored when
  /// showing). See ui::ShowPointer.
  static void ShowPlatformCursor(bool show, bool counted, bool untilPointerMoves);
  static bool IsPlatformCursorShown();
};

} // namespace kroui::utility
