#pragma once

namespace kroworkspace::workspace {

class TopLevelWindow;
class TopLevelWindowImpl;

} // namespace kroworkspace::workspace
