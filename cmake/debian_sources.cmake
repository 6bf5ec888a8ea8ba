# find_debian_source(PACKAGE FILE): sets PACKAGE_DIR to where ./dev setup put its source.
function(find_debian_source package file)
    set(dir ${PROJECT_SOURCE_DIR}/build/sources/${package})
    if(NOT EXISTS ${dir}/${file})
        message(FATAL_ERROR "${dir}/${file} is missing: run ./dev setup")
    endif()
    set(${package}_DIR ${dir} PARENT_SCOPE)
endfunction()
