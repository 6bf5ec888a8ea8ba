# ZLIB::ZLIB, the static one: what goes anywhere needs no library but the system's. For Windows from
# where MinGW's libraries are.
if(WIN32)
    find_library(ZLIB_LIBRARY libz.a PATHS /usr/x86_64-w64-mingw32/lib NO_DEFAULT_PATH)
    find_path(ZLIB_INCLUDE_DIR zlib.h PATHS /usr/x86_64-w64-mingw32/include NO_DEFAULT_PATH)
elseif(NOT TAMUR_SYSTEM_LIBRARIES)
    set(ZLIB_USE_STATIC_LIBS ON)
endif()
find_package(ZLIB REQUIRED)
