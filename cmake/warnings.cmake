# Both compilers, the same warnings, all of them errors.
add_compile_options(
    -Wall -Wextra -Wpedantic -Werror -Wshadow -Wconversion -Wsign-conversion -Wcast-align
    -Wundef -Wnull-dereference -Wdouble-promotion -Wformat=2
    # Results must not depend on the processor: no multiply-add where the source has two steps.
    -ffp-contract=off
    # GCC 12 warns of overlaps inside its own std::string.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
    $<$<COMPILE_LANGUAGE:CXX>:-Woverloaded-virtual>
    $<$<COMPILE_LANGUAGE:CXX>:-Wold-style-cast>
    $<$<COMPILE_LANGUAGE:CXX>:-Wextra-semi>)
