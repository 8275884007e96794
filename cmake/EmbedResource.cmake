# Script mode: writes a C++ source holding INPUT's bytes and a registrar that
# files them under MODULE/TYPE/NAME in the module resource table.
file(READ "${INPUT}" _hex HEX)
string(LENGTH "${_hex}" _len)
math(EXPR _size "${_len} / 2")
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," _bytes "${_hex}")
string(REGEX REPLACE "((0x[0-9a-f][0-9a-f],){32})" "\\1\n  " _bytes "${_bytes}")
file(WRITE "${OUTPUT}.tmp"
"// Generated from ${INPUT}; do not edit.
#include <krocore/resources/ModuleResources.h>

namespace {
// One extra zero byte so that text resources can be read as C strings.
alignas(16) const unsigned char k${SYMBOL}[] = {
  ${_bytes}0x00};
const krocore::utility::ModuleResourceRegistrar kRegistrar${SYMBOL}{
  \"${MODULE}\", u\"${TYPE}\", u\"${NAME}\", k${SYMBOL}, ${_size}};
} // namespace
")
file(COPY_FILE "${OUTPUT}.tmp" "${OUTPUT}" ONLY_IF_DIFFERENT)
file(REMOVE "${OUTPUT}.tmp")
