# Everything that is made from the contract, idl/TAMURReader.idl.
find_program(WIDL NAMES x86_64-w64-mingw32-widl REQUIRED)
find_package(Python3 REQUIRED COMPONENTS Interpreter)
set(WINE_INCLUDE_DIR /usr/include/wine/wine/windows CACHE PATH "The system's IDL files")
set(WINE_LIBRARY_DIR /usr/lib/x86_64-linux-gnu/wine/x86_64-windows CACHE PATH "stdole2.tlb")

set(idl_dir ${PROJECT_SOURCE_DIR}/idl)
set(generated_dir ${PROJECT_BINARY_DIR}/generated)
set(widl ${WIDL} -I ${WINE_INCLUDE_DIR} -L ${WINE_LIBRARY_DIR})

# widl notes its own file name and, in the type library, the time; both are taken out again, so
# that two builds give the same bytes.
add_custom_command(
    OUTPUT ${generated_dir}/TAMURReader.h ${generated_dir}/TAMURReader_i.c
           ${generated_dir}/TAMURReader.tlb
    COMMAND ${CMAKE_COMMAND} -E make_directory ${generated_dir}/tamur
    COMMAND ${widl} -h -o ${generated_dir}/TAMURReader.h TAMURReader.idl
    COMMAND ${widl} -u -o ${generated_dir}/TAMURReader_i.c TAMURReader.idl
    COMMAND ${widl} -t -o ${generated_dir}/TAMURReader.tlb TAMURReader.idl
    COMMAND ${Python3_EXECUTABLE} ${idl_dir}/fix_type_library_time.py
            ${generated_dir}/TAMURReader.tlb
    DEPENDS ${idl_dir}/TAMURReader.idl ${idl_dir}/fix_type_library_time.py
    WORKING_DIRECTORY ${idl_dir}
    COMMENT "Contract: header, identifiers, type library"
    VERBATIM)

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

add_custom_target(contract DEPENDS ${generated_dir}/TAMURReader.h
                                   ${generated_dir}/tamur/fields.h
                                   ${generated_dir}/tamur/tables.h
                                   ${generated_dir}/tamur/rows.h
                                   ${generated_dir}/component/accessor_classes.h)

# What hosts include; on other systems than Windows with the stand-ins for its headers.
add_library(tamur_contract INTERFACE)
add_dependencies(tamur_contract contract)
target_include_directories(tamur_contract SYSTEM INTERFACE ${generated_dir})
target_include_directories(tamur_contract INTERFACE ${PROJECT_SOURCE_DIR}/include)
if(WIN32)
    # On Windows the header only declares the identifiers.
    set_source_files_properties(${generated_dir}/TAMURReader_i.c PROPERTIES GENERATED TRUE)
    add_library(tamur_identifiers OBJECT ${generated_dir}/TAMURReader_i.c)
    add_dependencies(tamur_identifiers contract)
    target_sources(tamur_contract INTERFACE $<TARGET_OBJECTS:tamur_identifiers>)
else()
    target_include_directories(tamur_contract SYSTEM INTERFACE ${PROJECT_SOURCE_DIR}/include/compat)
endif()
