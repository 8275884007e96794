#pragma once

#include <zel/Export.h>

#include <kroui/utility/ResourceManager.h>

#include <memory>

namespace ZEL {

/// The host's application object, one per process. The host makes it (its
/// own subclass, or this class) and installs it; the framework reaches it
/// through Instance():
///
///   ZEL::Application::SetInstance(std::make_shared<MyApplication>());
///   ...
///   ZEL::Application::SetInstance(nullptr);   // at shut-down
///
/// UI thread only.
class ZEL_API Application {
public:
  Application();
  /// The application's resource manager: where cursors from
  /// Cursor::kFirstApplicationCursor up are set. By default one of its own,
  /// over this library's module, that knows the framework's application
  /// cursors. A host that keeps its own cursors returns its own manager.
  virtual kroui::utility::ResourceManager& GetResourceManager();
  virtual ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  /// The installed application object, or null.
  static std::shared_ptr<Application> Instance();
  /// Installs `application` as the process's application object; null removes it.
  static void SetInstance(std::shared_ptr<Application> application);

  /// Does nothing on this platform.
  static void MacAppFixAfterModalDialogOnStartup();

private:
  std::unique_ptr<kroui::utility::ResourceManager> mResourceManager;
};

} // namespace ZEL
