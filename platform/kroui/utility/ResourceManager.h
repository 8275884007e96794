#pragma once

#include <kroui/Export.h>
#include <kroui/utility/CursorDisplay.h>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kroui::utility {

/// How long a cursor set by ID lasts (see ui::CursorHold for what the windows do meanwhile).
enum class CursorMode : std::int32_t {
  Preload = 0,       ///< decodes the cursor's image now; what shows does not change
  UntilMove = 1,     ///< shows it; the next pointer move lets the window choose again
  UntilButtonUp = 2, ///< shows it and keeps it while a mouse button is held, as a drag wants
  Keep = 3,          ///< shows it and keeps it until the next cursor is set
};

/// Cursors by integer ID, and making one of them current:
///
///   RegisterPNGCursor(4001, u"Cur_AreaSample_3_20", "zel")   the PNG resource of module "zel"
///   SetCursor(4001, CursorMode::Keep)                        decoded on first use, hot spot (3, 20)
///       --> ui::SetCursor --> backend --> every window of ours
///
/// The platform has one (GetResourceManager), which also knows the system's
/// and the platform's own cursors (OS_ResourceManager); a host or framework
/// may make more of its own and derive from it. UI thread only.
class KROUI_API ResourceManager {
public:
  /// The resource type cursor images are filed under.
  static constexpr std::u16string_view kCursorResourceType = u"png";

  /// `module`: where this manager's own resources are (the module a
  /// registration names when it gives an empty one).
  explicit ResourceManager(std::string module);
  virtual ~ResourceManager();
  ResourceManager(const ResourceManager&) = delete;
  ResourceManager& operator=(const ResourceManager&) = delete;

  const std::string& GetModule() const noexcept { return mModule; }

  /// Registers the PNG resource `name` of `module` (empty: this manager's)
  /// as cursor `id`. The hot spot is the name's last two numbers
  /// ("Cur_AreaSample_3_20": 3, 20); the image is decoded on first use. The
  /// same registration again changes nothing; another one for the ID replaces
  /// it. A name without a hot spot is reported and not registered.
  bool RegisterPNGCursor(std::int32_t id, std::u16string_view name, std::string_view module);
  /// Registers a cursor made in code; null stands for the system arrow.
  void RegisterCursor(std::int32_t id, ui::CursorPtr cursor);

  bool HasCursor(std::int32_t id) const;
  /// The registered IDs, in the order of their first registration.
  const std::vector<std::int32_t>& GetCursorIDs() const noexcept { return mOrder; }
  /// The resource name a cursor was registered under; empty for one made in code or not registered.
  std::u16string GetCursorResourceName(std::int32_t id) const;
  /// The cursor, decoding it on first use. Null for the system arrow, and for
  /// an ID not registered or an image that cannot be read (both reported).
  ui::CursorPtr GetCursor(std::int32_t id) const;

  /// Makes cursor `id` current in every window of the process, for as long
  /// as `mode` says. An ID not registered is reported and changes nothing.
  virtual void SetCursor(std::int32_t id, CursorMode mode);

  /// "Cur_AreaSample_3_20" -> (3, 20); nothing when the name does not end in "_<x>_<y>".
  static std::optional<ui::Point> ParseHotSpot(std::u16string_view name);

protected:
  /// Registers a cursor drawn on first use by `make`.
  void RegisterLazyCursor(std::int32_t id, std::function<ui::CursorPtr()> make);

private:
  struct Entry {
    std::u16string name;
    std::string module;
    std::function<ui::CursorPtr()> make; ///< for a cursor not read from a resource
    /// Made on first use, once: an image that cannot be read is reported once.
    mutable bool isMade = false;
    mutable ui::CursorPtr cursor;
  };

  void Store(std::int32_t id, Entry entry);
  ui::CursorPtr Load(const Entry& entry) const;

  std::string mModule;
  std::map<std::int32_t, Entry> mEntries;
  std::vector<std::int32_t> mOrder;
};

/// The platform's resource manager: the one installed, else an
/// OS_ResourceManager over kroui's module made on first use.
KROUI_API ResourceManager& GetResourceManager();

/// Replaces the platform's resource manager (a host's own, or one over
/// another module). Null drops it, so that the next GetResourceManager()
/// makes a fresh default.
KROUI_API void SetResourceManager(std::unique_ptr<ResourceManager> manager);

} // namespace kroui::utility
