# Everything that is made from the contract, idl/TAMURReader.idl.
find_package(Python3 REQUIRED COMPONENTS Interpreter)

set(idl_dir ${PROJECT_SOURCE_DIR}/idl)
set(generated_dir ${PROJECT_BINARY_DIR}/generated)

# What widl makes for compilers is committed, so that only the Windows build needs it: for the type
# library.
set(contract_header ${idl_dir}/generated/TAMURReader.h)
set(contract_identifiers ${idl_dir}/generated/TAMURReader_i.c)
add_custom_command(
    OUTPUT ${generated_dir}/TAMURReader.h ${generated_dir}/TAMURReader_i.c
    COMMAND ${CMAKE_COMMAND} -E copy ${contract_header} ${contract_identifiers} ${generated_dir}
    DEPENDS ${contract_header} ${contract_identifiers}
    COMMENT "Contract: header, identifiers"
    VERBATIM)
if(WIN32)
    set(widl_dir ${PROJECT_BINARY_DIR}/widl)
    set(type_library ${generated_dir}/TAMURReader.tlb)
    add_custom_command(
        OUTPUT ${type_library}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${widl_dir}
        COMMAND ${idl_dir}/run_widl ${widl_dir}
        COMMAND ${CMAKE_COMMAND} -E copy ${widl_dir}/TAMURReader.tlb ${type_library}
        DEPENDS ${idl_dir}/TAMURReader.idl ${idl_dir}/run_widl ${idl_dir}/fix_type_library_time.py
        COMMENT "Contract: type library"
        VERBATIM)
endif()

add_custom_command(
    OUTPUT ${generated_dir}/tamur/fields.h
    COMMAND ${CMAKE_COMMAND} -E make_directory ${generated_dir}/tamur
    COMMAND ${Python3_EXECUTABLE} -B ${idl_dir}/generate_fields.py ${idl_dir}/TAMURReader.idl
            ${generated_dir}/tamur/fields.h
    DEPENDS ${idl_dir}/TAMURReader.idl ${idl_dir}/generate_fields.py ${idl_dir}/contract.py
    COMMENT "Contract: fields of the records"
    VERBATIM)

add_custom_command(
    OUTPUT ${generated_dir}/tamur/tables.h
    COMMAND ${Python3_EXECUTABLE} -B ${idl_dir}/generate_tables.py ${idl_dir}/TAMURReader.idl
            ${generated_dir}/tamur/tables.h
    DEPENDS ${idl_dir}/TAMURReader.idl ${idl_dir}/generate_tables.py ${idl_dir}/contract.py
            ${generated_dir}/tamur/fields.h
    COMMENT "Contract: tables of the reader"
    VERBATIM)

add_custom_command(
    OUTPUT ${generated_dir}/component/accessor_classes.h
           ${generated_dir}/component/accessor_getters.h
    COMMAND ${CMAKE_COMMAND} -E make_directory ${generated_dir}/component
    COMMAND ${Python3_EXECUTABLE} -B ${idl_dir}/generate_accessors.py ${idl_dir}/TAMURReader.idl
            ${generated_dir}/component
    DEPENDS ${idl_dir}/TAMURReader.idl ${idl_dir}/generate_accessors.py ${idl_dir}/contract.py
    COMMENT "Contract: the component's accessors"
    VERBATIM)

# The rows that tables are handed over in, in C and in Python.
add_custom_command(
    OUTPUT ${generated_dir}/tamur/rows.h ${generated_dir}/host/row_fills.h
           ${generated_dir}/host/row_layout.h ${generated_dir}/host/row_names.h
           ${generated_dir}/python/_tables.py
           ${generated_dir}/python/_tables.pyi ${generated_dir}/python/columns.md
    COMMAND ${Python3_EXECUTABLE} -B ${idl_dir}/generate_rows.py ${idl_dir}/TAMURReader.idl
            ${generated_dir}
    DEPENDS ${idl_dir}/TAMURReader.idl ${idl_dir}/generate_rows.py ${idl_dir}/python_rows.py
            ${idl_dir}/rows.py ${idl_dir}/row_columns.py ${idl_dir}/contract.py
    COMMENT "Contract: rows of the tables"
    VERBATIM)

set(bindings_dir ${generated_dir}/bindings)
file(GLOB contract_scripts CONFIGURE_DEPENDS ${idl_dir}/*.py)
add_custom_command(
    OUTPUT ${bindings_dir}/tamur_reader.py ${bindings_dir}/TAMURReader.cs
    COMMAND ${CMAKE_COMMAND} -E make_directory ${bindings_dir}
    COMMAND ${Python3_EXECUTABLE} -B ${idl_dir}/generate_bindings.py ${idl_dir}/TAMURReader.idl
            ${bindings_dir}
    DEPENDS ${idl_dir}/TAMURReader.idl ${contract_scripts}
    COMMENT "Contract: declarations for Python and C#"
    VERBATIM)
add_custom_target(bindings ALL DEPENDS ${bindings_dir}/tamur_reader.py
                                       ${bindings_dir}/TAMURReader.cs)

add_custom_target(contract DEPENDS ${type_library}
                                   ${generated_dir}/TAMURReader.h
                                   ${generated_dir}/tamur/fields.h
                                   ${generated_dir}/tamur/tables.h
                                   ${generated_dir}/tamur/rows.h
                                   ${generated_dir}/component/accessor_classes.h)

# What hosts include; on other systems than Windows with the stand-ins for its headers.
add_library(tamur_contract INTERFACE)
add_dependencies(tamur_contract contract)
target_compile_features(tamur_contract INTERFACE cxx_std_17)
target_include_directories(tamur_contract SYSTEM INTERFACE $<BUILD_INTERFACE:${generated_dir}>)
target_include_directories(tamur_contract INTERFACE
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>
    $<INSTALL_INTERFACE:${installed_headers}>)
if(WIN32)
    # On Windows the header only declares the identifiers.
    set_source_files_properties(${generated_dir}/TAMURReader_i.c PROPERTIES GENERATED TRUE)
    add_library(tamur_identifiers OBJECT ${generated_dir}/TAMURReader_i.c)
    add_dependencies(tamur_identifiers contract)
    target_sources(tamur_contract INTERFACE
        $<BUILD_INTERFACE:$<TARGET_OBJECTS:tamur_identifiers>>
        $<INSTALL_INTERFACE:${installed_headers}/TAMURReader_i.c>)
else()
    target_include_directories(tamur_contract SYSTEM INTERFACE
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include/compat>)
    target_include_directories(tamur_contract INTERFACE
        $<INSTALL_INTERFACE:${installed_headers}/compat>)
endif()
