# What the rooms above the contract include, compiled once for all of them. Lint compiles without it,
# and so tells when a file does not include what it uses.
function(share_headers_of_hosts target)
    # Under sanitizers they are not all compiled alike, as compiled headers must be.
    if(CMAKE_BUILD_TYPE STREQUAL Sanitized OR CMAKE_DISABLE_PRECOMPILE_HEADERS)
        return()
    endif()
    target_precompile_headers(${target} REUSE_FROM tamur_host_headers)
    # GCC 12 does not know compiled headers as the system's, and warns of what it would pass over.
    # Lint has these warnings.
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        target_compile_options(${target} PRIVATE -Wno-array-bounds -Wno-stringop-overflow)
    endif()
endfunction()
