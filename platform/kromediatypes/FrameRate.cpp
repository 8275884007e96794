#include <kromediatypes/FrameRate.h>

#include <krocore/debug/Assert.h>

namespace kromediatypes {

void FrameRate::ReportInvalidRate() {
  KROCORE_FAIL("A frame rate must be positive, and one frame a whole number of ticks");
}

double FrameRate::ToDouble() const noexcept {
  return IsKnown() ? static_cast<double>(mNumerator) / static_cast<double>(mDenominator) : 0.0;
}

} // namespace kromediatypes
