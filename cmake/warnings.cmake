# Results must not depend on the processor: no multiply-add where the source has two steps.
set(exact_sums -ffp-contract=off)
# Others have their own warnings, and a compiler that warns of more is no reason to stop their build.
option(TAMUR_WARNINGS_ARE_ERRORS "Warnings are errors" OFF)
if(NOT PROJECT_IS_TOP_LEVEL)
    add_compile_options(${exact_sums})
    return()
endif()

# Both compilers, the same warnings.
add_compile_options(
    -Wall -Wextra -Wpedantic $<$<BOOL:${TAMUR_WARNINGS_ARE_ERRORS}>:-Werror>
    -Wshadow -Wconversion -Wsign-conversion -Wcast-align
    -Wundef -Wnull-dereference -Wdouble-promotion -Wformat=2
    ${exact_sums}
    # GCC 12 warns of overlaps inside its own std::string.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
    $<$<COMPILE_LANGUAGE:CXX>:-Woverloaded-virtual>
    $<$<COMPILE_LANGUAGE:CXX>:-Wold-style-cast>
    $<$<COMPILE_LANGUAGE:CXX>:-Wextra-semi>)
