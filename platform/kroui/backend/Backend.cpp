#include <kroui/backend/Backend.h>

#include <backends/headless/HeadlessBackend.h>

namespace kroui::backend {
namespace {

std::unique_ptr<Backend>& CurrentBackend() {
  static std::unique_ptr<Backend> sBackend;
  return sBackend;
}

} // namespace

Backend::~Backend() = default;

Backend& GetBackend() {
  std::unique_ptr<Backend>& current = CurrentBackend();
  if (!current) current = std::make_unique<HeadlessBackend>();
  return *current;
}

void SetBackend(std::unique_ptr<Backend> backend) {
  CurrentBackend() = std::move(backend);
}

} // namespace kroui::backend
