# What debuggers want of the binaries that are shipped. Paths are noted as if the sources were in the
# current folder: builds in two places give the same bytes.
option(TAMUR_SYMBOLS "Compile with debug information, and on Windows write a .pdb for each binary" OFF)
if(TAMUR_SYMBOLS)
    # Functions and lines: variables would double the time of compiling. Not the options that the compiler
    # was called with: ccache has some of its own. The build is often in a folder of the sources, and the
    # last that fits counts.
    add_compile_options(-g1 -gno-record-gcc-switches
                        -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.
                        -ffile-prefix-map=${PROJECT_BINARY_DIR}=build)
endif()

# TARGET_FILE.pdb in the build folder: its functions by name and address, for Microsoft's debuggers. The
# compiler cannot write lines in their form: those are in the debug information, for GDB and what else
# reads DWARF.
function(write_pdb target)
    if(TAMUR_SYMBOLS AND WIN32)
        target_link_options(${target} PRIVATE -Wl,--pdb=$<TARGET_FILE_NAME:${target}>.pdb)
    endif()
endfunction()
