#pragma once

namespace kromediaui {

class UI_ZoomBar;
class ZoomBarLayout;
struct UI_ZoomBarImpl;
struct ZoomBarColors;
struct ZoomBarRange;

} // namespace kromediaui
