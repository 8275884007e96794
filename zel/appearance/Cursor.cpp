#include <zel/appearance/Cursor.h>

#include <zel/appearance/ThemeResources.h>
#include <zel/application/Application.h>

#include <krocore/debug/Assert.h>

#include <array>
#include <memory>

namespace ZEL {
namespace Cursor {
namespace {

using kroui::utility::CursorMode;

// Every cursor request asks for the cursor to stay until the next one.
constexpr CursorMode kMode = CursorMode::Keep;
static_assert(static_cast<int>(kMode) == 3);

#define ZEL_CURSOR_ROW(id, constant, resource) SharedCursor{id, #constant, u"" resource},
#define ZEL_CURSOR_UNNAMED_ROW(id, resource) SharedCursor{id, {}, u"" resource},
constexpr std::array kSharedCursors{ZEL_CURSOR_LIST(ZEL_CURSOR_ROW, ZEL_CURSOR_UNNAMED_ROW)};
#undef ZEL_CURSOR_UNNAMED_ROW
#undef ZEL_CURSOR_ROW

bool sIsModal = false;

} // namespace

std::span<const SharedCursor> GetSharedCursors() noexcept { return kSharedCursors; }

void Set(std::int32_t id) {
  if (id == kInvalid) return;
  if (id < kFirstApplicationCursor) return kroui::utility::GetResourceManager().SetCursor(id, kMode);
  // Held only for the call: the host may replace its application object at any time.
  const std::shared_ptr<Application> application = Application::Instance();
  if (!KROCORE_ASSERT(application, "Application has not been initialized")) return;
  application->GetResourceManager().SetCursor(id, kMode);
}

void SetArrowCursor() { kroui::utility::GetResourceManager().SetCursor(kOSArrow, kMode); }

void SetWaitCursor() { kroui::utility::GetResourceManager().SetCursor(kOSWait, kMode); }

void SetModal(bool isModal) noexcept { sIsModal = isModal; }

bool IsModal() noexcept { return sIsModal; }

void RegisterSharedCursors(kroui::utility::ResourceManager& manager) {
  for (const SharedCursor& cursor : kSharedCursors)
    manager.RegisterPNGCursor(cursor.id, cursor.resourceName, ThemeResources::kModule);
}

} // namespace Cursor

CursorInitializer::CursorInitializer() {
  Cursor::RegisterSharedCursors(kroui::utility::GetResourceManager());
}

CursorInitializer::~CursorInitializer() = default;

void HideCursor() { kroui::utility::OS_ResourceManager::ShowPlatformCursor(false, true, false); }

void ShowCursor(bool force) { kroui::utility::OS_ResourceManager::ShowPlatformCursor(true, !force, false); }

} // namespace ZEL
