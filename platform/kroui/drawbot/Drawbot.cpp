#include <kroui/drawbot/Drawbot.h>

namespace kroui::drawbot {

Drawbot::~Drawbot() = default;

} // namespace kroui::drawbot
