#include <krocore/pointers/IntrusivePtr.h>

namespace krocore {

IntrusiveRefCounted::~IntrusiveRefCounted() = default;

} // namespace krocore
