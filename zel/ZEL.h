#pragma once
// The umbrella header of the framework: includes every public header of ZEL.
// Each subsystem adds its headers here as it lands.

#include <kls/Foundation.h>
#include <kls/ParamColor.h>
