#include <be/store/IPropertyStoreReader.h>

namespace BE {

// Out of line so that the interface's type information lives in this library
// alone and casts to it from other libraries agree.
IPropertyStoreReader::~IPropertyStoreReader() = default;

} // namespace BE
