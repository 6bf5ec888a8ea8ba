# What makes a fault in the component harder to use. In builds that are shipped only: sanitizers have
# checks of their own, and the run time's checks need optimisation.
set(TAMUR_HARDENED FALSE)
if(CMAKE_BUILD_TYPE STREQUAL Release)
    set(TAMUR_HARDENED TRUE)
endif()

# harden(TARGET): how it is compiled and, for a library that is loaded, linked.
function(harden target)
    if(NOT TAMUR_HARDENED)
        return()
    endif()
    get_target_property(type ${target} TYPE)
    if(WIN32)
        # Not the stack protector: its run time opens a cryptographic provider, which loads libraries,
        # while this one is being loaded. That can lock up the host.
        if(type STREQUAL SHARED_LIBRARY)
            target_link_options(${target} PRIVATE
                -Wl,--nxcompat -Wl,--dynamicbase -Wl,--high-entropy-va)
        endif()
    else()
        # Level 3 of the last would check each copied string: a bar takes a fifth longer.
        target_compile_options(${target} PRIVATE
            -fstack-protector-strong -fcf-protection=full -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
        if(type STREQUAL SHARED_LIBRARY)
            target_link_options(${target} PRIVATE -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
        endif()
    endif()
endfunction()
