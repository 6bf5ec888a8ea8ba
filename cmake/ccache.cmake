# Where ccache is installed, what was compiled before is not compiled again.
find_program(CCACHE ccache)
if(CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    # Precompiled headers are compared by what they are made of.
    set(ccache ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros)
    if(NOT TAMUR_SYMBOLS)
        # It makes paths relative, which debug information would show.
        list(APPEND ccache CCACHE_BASEDIR=${PROJECT_SOURCE_DIR})
    endif()
    list(APPEND ccache ${CCACHE})
    set(CMAKE_C_COMPILER_LAUNCHER ${ccache})
    set(CMAKE_CXX_COMPILER_LAUNCHER ${ccache})
endif()
