#pragma once

namespace kromediatypes {

class TickTime;
class FrameRate;
class TimeDisplay;
class TimeText;

} // namespace kromediatypes
