#include <zel/views/ModalControlInterface.h>

namespace ZEL {

ModalControlInterface::~ModalControlInterface() = default;

void ModalControlInterface::ModalAboutToCommit(const Point& point, KeyModifiers modifiers) {
  ModalAboutToCommitSelf(point, modifiers);
}

void ModalControlInterface::ModalAboutToCommitSelf(const Point&, KeyModifiers) {}

} // namespace ZEL
