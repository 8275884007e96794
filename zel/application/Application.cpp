#include <zel/application/Application.h>

#include <zel/appearance/Cursor.h>
#include <zel/appearance/ThemeResources.h>

#include <string>

namespace ZEL {
namespace {

std::shared_ptr<Application>& Installed() {
  static std::shared_ptr<Application> sApplication;
  return sApplication;
}

} // namespace

Application::Application() = default;

Application::~Application() = default;

kroui::utility::ResourceManager& Application::GetResourceManager() {
  // Made on first use, so that a subclass with a manager of its own never pays for this one.
  if (!mResourceManager) {
    mResourceManager =
        std::make_unique<kroui::utility::ResourceManager>(std::string(ThemeResources::kModule));
    for (const Cursor::SharedCursor& cursor : Cursor::GetSharedCursors()) {
      if (cursor.id >= Cursor::kFirstApplicationCursor)
        mResourceManager->RegisterPNGCursor(cursor.id, cursor.resourceName, {});
    }
  }
  return *mResourceManager;
}

std::shared_ptr<Application> Application::Instance() { return Installed(); }

void Application::SetInstance(std::shared_ptr<Application> application) {
  Installed() = std::move(application);
}

void Application::MacAppFixAfterModalDialogOnStartup() {}

} // namespace ZEL
