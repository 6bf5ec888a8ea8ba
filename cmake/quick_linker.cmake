# The linker of MinGW's binutils takes 20 seconds for a large suite, LLVM's a part of a second: for
# programs that are not shipped. It has no run time for counting what is reached.
set(usual_link_rule "${CMAKE_CXX_LINK_EXECUTABLE}")
if(WIN32 AND NOT CMAKE_CXX_FLAGS MATCHES "--coverage")
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-libgcc-file-name
                    OUTPUT_VARIABLE gcc_library OUTPUT_STRIP_TRAILING_WHITESPACE)
    get_filename_component(gcc_dir ${gcc_library} DIRECTORY)
    set(lld "clang++ --target=x86_64-w64-mingw32 -fuse-ld=lld -B${gcc_dir} -L${gcc_dir}")
    string(APPEND lld " -L/usr/x86_64-w64-mingw32/lib")
    string(REPLACE "<CMAKE_CXX_COMPILER>" "${lld}" CMAKE_CXX_LINK_EXECUTABLE
           "${CMAKE_CXX_LINK_EXECUTABLE} -lpthread")
endif()
