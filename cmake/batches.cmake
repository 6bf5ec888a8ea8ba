# Several sources in one go: what they include is compiled once, and what they make of templates too.
# So names in the unnamed namespaces of one target differ. Lint compiles one by one, and so tells when
# a file does not include what it uses.
option(TAMUR_BATCHES "Compile sources in batches" ON)

function(compile_in_batches target)
    set_target_properties(${target} PROPERTIES
        UNITY_BUILD ${TAMUR_BATCHES} UNITY_BUILD_BATCH_SIZE 8)
    if(WIN32)
        # Plain words that its headers define away, for sources that do not include them.
        set_target_properties(${target} PROPERTIES UNITY_BUILD_CODE_BEFORE_INCLUDE
            "#undef near\n#undef far\n#undef NEAR\n#undef FAR\n#define NEAR\n#define FAR")
    endif()
endfunction()
