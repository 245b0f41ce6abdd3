# Cross-compiling for 64-bit Windows with Debian's MinGW-w64 (the "posix"
# thread model, so that std::thread and std::mutex exist), as
# scripts/test-windows does:
#   cmake -S . -B build/x -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64-x86_64.cmake
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(mingw_triplet x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${mingw_triplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${mingw_triplet}-g++-posix)
set(CMAKE_RC_COMPILER ${mingw_triplet}-windres)

# Headers and libraries come from the MinGW tree (and from prefixes the
# caller adds), programs from the build machine.
list(APPEND CMAKE_FIND_ROOT_PATH /usr/${mingw_triplet})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The programs carry libgcc, libstdc++ and winpthread inside them, so they
# run on any Windows (or under Wine) without hunting for MinGW's DLLs.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")

# Lets ctest (and gtest_discover_tests) run the programs on this machine.
find_program(BRENKO_WINE NAMES wine64 wine)
if(BRENKO_WINE)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${BRENKO_WINE})
endif()
