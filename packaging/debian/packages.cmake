# Packages for Debian, by CPack: a package for each component. Their libraries are the system's.
set(maintainer "The TAMUR Reader developers <developers@tamur-reader.invalid>")
set(runtime_package libtamurreader${PROJECT_VERSION_MAJOR})
set(library_package libtamur${PROJECT_VERSION_MAJOR})
set(development_package libtamurreader-dev)
set(tool_package tamur)

# Documents where Debian has them, and as it has them.
set(documents_dir ${PROJECT_BINARY_DIR}/documents)
set(man_page ${PROJECT_BINARY_DIR}/documents/tamur.1.gz)
set(components runtime library development tool)
list(TRANSFORM components PREPEND ${documents_dir}/ OUTPUT_VARIABLE copyrights)
list(TRANSFORM copyrights APPEND /copyright)
add_custom_command(
    OUTPUT ${copyrights} ${documents_dir}/changelog.gz ${man_page}
    COMMAND ${Python3_EXECUTABLE} -B ${PROJECT_SOURCE_DIR}/packaging/debian/documents.py
            ${documents_dir} ${maintainer} ${description_dir}/man/man1/tamur.1
    DEPENDS tool_description ${PROJECT_SOURCE_DIR}/packaging/debian/documents.py
            ${PROJECT_SOURCE_DIR}/packaging/third_party.py
            ${PROJECT_SOURCE_DIR}/packaging/third_party.json ${PROJECT_SOURCE_DIR}/CHANGELOG.md
    COMMENT "Documents of the packages"
    VERBATIM)
add_custom_target(debian_documents ALL
    DEPENDS ${copyrights} ${documents_dir}/changelog.gz ${man_page})
install(FILES ${man_page} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
foreach(component ${components})
    install(FILES ${documents_dir}/${component}/copyright ${documents_dir}/changelog.gz
        ${PROJECT_SOURCE_DIR}/THIRD-PARTY.md
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${${component}_package} COMPONENT ${component})
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tamur-reader)
# Each package has a summary of its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_PACKAGE_CONTACT ${maintainer})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL ${components})
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
# Directories of a package belong to everybody in the same way, whoever makes it.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
    GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(about "The import takes the models that the structural-analysis product
writes as text: materials, sections, bars, surfaces, supports, loads and
load cases.")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "reader of TAMUR models, run time
${about}
This package has the component.")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "reader of TAMUR models, C interface
${about}
This package has the C interface to it, for programs in any language.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${development_package})
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${runtime_package} (= ${PROJECT_VERSION}), ${library_package} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "reader of TAMUR models, development files
${about}
This package has what programs that use it are built with.")

set(CPACK_DEBIAN_TOOL_PACKAGE_NAME ${tool_package})
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION science)
set(CPACK_DEBIAN_TOOL_DESCRIPTION "shows, checks, compares and exports TAMUR models
${about}
This package has the tool for the command line.")
include(CPack)
