# The Windows build: MinGW-w64 with its run time linked in, so that the DLL needs no other.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_RC_FLAGS_INIT "-c 65001")
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../tools/dev/run_in_wine)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
foreach(kind EXE SHARED MODULE)
    # No time stamps: two builds give the same bytes.
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "-static -Wl,--no-insert-timestamp")
endforeach()
add_compile_definitions(UNICODE _UNICODE _WIN32_WINNT=0x0601 WINVER=0x0601 NOMINMAX
                        WIN32_LEAN_AND_MEAN)
