#include <zel/application/DocumentManager.h>

namespace ZEL {

DocumentManager::DocumentManager() = default;

DocumentManager::~DocumentManager() = default;

std::shared_ptr<DocumentManager> DocumentManager::Instance() {
  // Not make_shared: the constructor is private, so that this is the only one.
  static const std::shared_ptr<DocumentManager> sInstance(new DocumentManager());
  return sInstance;
}

} // namespace ZEL
