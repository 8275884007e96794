# Sourced by the build scripts. Compiles through ccache when it is installed,
# so that a fresh clone in another folder (CI's) hits what earlier builds put
# in the cache: paths are rewritten relative to the project root, and the
# build (see cmake/ZelCompilerCache.cmake) maps the root out of debug paths.
zel_launcher=()
if command -v ccache > /dev/null 2>&1; then
  export CCACHE_BASEDIR="${CCACHE_BASEDIR:-$PWD}"
  export CCACHE_MAXSIZE="${CCACHE_MAXSIZE:-8G}"
  zel_launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
