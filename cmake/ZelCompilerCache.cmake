# Through ccache, a build in another folder hits the cache only when nothing
# in a compile carries the folder: map the project root out of debug paths
# (ccache then leaves the working directory out of its hash as well).
if(CMAKE_CXX_COMPILER_LAUNCHER MATCHES "ccache")
  add_compile_options("-fdebug-prefix-map=${PROJECT_SOURCE_DIR}=.")
endif()
