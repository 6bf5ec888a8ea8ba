# cmake --install: the components runtime, development and tool.
include(CMakePackageConfigHelpers)
set(cmake_dir ${CMAKE_INSTALL_LIBDIR}/cmake/TAMURReader)

if(TAMUR_DEBIAN_PACKAGES)
    # There it is compressed, and the C interface has a package of its own: it needs libraries that the
    # component does not.
    set(not_in_debian PATTERN man EXCLUDE)
    set(library_component library)
endif()

# install_library(TARGET NAME [COMPONENT]): as TAMURReader::NAME.
function(install_library target name)
    set(component runtime ${ARGN})
    list(GET component -1 component)
    set_target_properties(${target} PROPERTIES EXPORT_NAME ${name})
    install(TARGETS ${target} EXPORT TAMURReader
        RUNTIME COMPONENT ${component}
        LIBRARY COMPONENT ${component} NAMELINK_COMPONENT development
        ARCHIVE COMPONENT development)
endfunction()

# install_headers(FOLDER FILE...): FOLDER begins with a slash or is empty.
function(install_headers folder)
    install(FILES ${ARGN} DESTINATION ${installed_headers}${folder} COMPONENT development)
endfunction()

# install_pkg_config(NAME): cmake/NAME.pc.in
function(install_pkg_config name)
    # Relative to the file, so that an installed tree may be moved.
    file(RELATIVE_PATH up /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/${name}.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT development)
endfunction()

install_library(tamur_contract contract)
install_library(tamur_core core)
install_library(TAMURReader TAMURReader)
file(GLOB headers ${PROJECT_SOURCE_DIR}/include/tamur/*.h)
install_headers(/tamur ${headers} ${generated_dir}/tamur/fields.h ${generated_dir}/tamur/rows.h
    ${generated_dir}/tamur/tables.h)
install_headers("" ${contract_header} ${idl_dir}/TAMURReader.idl)
if(WIN32)
    install_headers("" ${contract_identifiers})
else()
    file(GLOB headers ${PROJECT_SOURCE_DIR}/include/compat/*.h)
    install_headers(/compat ${headers})
    install_pkg_config(tamurreader)
endif()

if(TARGET tamur_host)
    install_library(tamur_host host)
    # All but what is for the tool only, and what follows the import inside the component.
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/host/ DESTINATION ${installed_headers}/host
        COMPONENT development FILES_MATCHING PATTERN *.h PATTERN *.def
        PATTERN export EXCLUDE PATTERN view EXCLUDE PATTERN file EXCLUDE)
    install_headers(/host/file ${PROJECT_SOURCE_DIR}/host/file/balance.h
        ${PROJECT_SOURCE_DIR}/host/file/imported_file.h)
    install_headers(/import/file ${PROJECT_SOURCE_DIR}/src/import/file/section_header.h)
endif()

if(TARGET tamur_library)
    install_library(tamur_library tamur ${library_component})
    install(TARGETS tamur RUNTIME COMPONENT tool)
    if(TARGET tool_description)
        install(DIRECTORY ${description_dir}/ DESTINATION ${CMAKE_INSTALL_DATADIR} COMPONENT tool
            ${not_in_debian})
    endif()
    if(NOT WIN32)
        install_pkg_config(libtamur)
    endif()
endif()

if(NOT TAMUR_DEBIAN_PACKAGES)
    install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/THIRD-PARTY.md
        DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime)
endif()

# Its help texts name pages of them.
if(TARGET tamur_library)
    set(tool_documents ${CMAKE_INSTALL_DOCDIR})
    if(TAMUR_DEBIAN_PACKAGES)
        set(tool_documents ${CMAKE_INSTALL_DATADIR}/doc/tamur)
    endif()
    # Not those for developers of hosts, which show the examples when they are made pages of the site.
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs DESTINATION ${tool_documents} COMPONENT tool
        PATTERN hosts EXCLUDE)
endif()

install(EXPORT TAMURReader NAMESPACE TAMURReader:: FILE TAMURReaderConfig.cmake
    DESTINATION ${cmake_dir} COMPONENT development)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TAMURReaderConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TAMURReaderConfigVersion.cmake DESTINATION ${cmake_dir}
    COMPONENT development)
