#include <krocore/pointers/EnableSharedAs.h>

namespace krocore::utility {

// Out of line so that the type information lives in krocore alone, and casts
// between libraries agree on it.
EnableSharedAs::~EnableSharedAs() = default;

} // namespace krocore::utility
