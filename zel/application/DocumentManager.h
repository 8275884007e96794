#pragma once

#include <zel/Export.h>

#include <memory>

namespace ZEL {

/// The process's document manager: one for the process, made on first use
/// and shared by everyone who asks. UI thread only.
class ZEL_API DocumentManager {
public:
  static std::shared_ptr<DocumentManager> Instance();

  virtual ~DocumentManager();
  DocumentManager(const DocumentManager&) = delete;
  DocumentManager& operator=(const DocumentManager&) = delete;

private:
  DocumentManager();
};

} // namespace ZEL
