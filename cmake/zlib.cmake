# ZLIB::ZLIB. For Windows the static one, from where MinGW's libraries are: the tool is one file there.
if(WIN32)
    find_library(ZLIB_LIBRARY libz.a PATHS /usr/x86_64-w64-mingw32/lib NO_DEFAULT_PATH)
    find_path(ZLIB_INCLUDE_DIR zlib.h PATHS /usr/x86_64-w64-mingw32/include NO_DEFAULT_PATH)
endif()
find_package(ZLIB REQUIRED)
