#pragma once

#include <zel/Export.h>

namespace ZEL {

/// Starts the framework when made and stops it when destroyed. The host makes
/// exactly one, on the UI thread, before any view, and destroys it after the
/// last view is gone:
///
///   foundation -> synthetic commands -> theme -> resources -> colours,
///   drag types, tool station -> stations -> console commands -> menus ->
///   tooltips -> custom settings -> bitmap cache
///
/// A second one made while the first lives is reported and does nothing,
/// neither when made nor when destroyed.
class ZEL_API Initializer {
public:
  Initializer();
  ~Initializer();
  Initializer(const Initializer&) = delete;
  Initializer& operator=(const Initializer&) = delete;
};

} // namespace ZEL
