# Builds for 64-bit Windows on Debian, with its mingw-w64.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(triple x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triple}-g++-posix)
set(CMAKE_RC_COMPILER ${triple}-windres)

# Qt and GoogleTest for Windows, put there by tools/windows/build. CMake finds packages below these folders only.
cmake_path(SET libraries NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../../build/windows-libraries)
set(CMAKE_FIND_ROOT_PATH /usr/${triple} ${libraries}/qt ${libraries}/gtest)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The tools of Qt that run while building are those of Debian's Qt, of the same version.
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-gnu/cmake)

# The compiler's own libraries go into the program, so that it needs none but those of Windows.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)

set(CMAKE_CROSSCOMPILING_EMULATOR wine)
