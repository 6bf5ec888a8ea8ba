# The tool's manual page and its completions for shells, made of what the built tool says of itself. In
# the folders that they are installed in.
set(description_dir ${PROJECT_BINARY_DIR}/description)
set(zsh_dir zsh/site-functions)
if(TAMUR_DEBIAN_PACKAGES)
    set(zsh_dir zsh/vendor-completions)
endif()
set(descriptions man/man1/tamur.1 bash-completion/completions/tamur ${zsh_dir}/_tamur
    fish/vendor_completions.d/tamur.fish)
list(TRANSFORM descriptions PREPEND ${description_dir}/)
file(GLOB describing_scripts CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/packaging/tool/*.py)
add_custom_command(
    OUTPUT ${descriptions}
    COMMAND ${Python3_EXECUTABLE} -B ${PROJECT_SOURCE_DIR}/packaging/tool/describe.py
            $<TARGET_FILE:tamur> ${descriptions}
    DEPENDS tamur ${describing_scripts} ${PROJECT_SOURCE_DIR}/packaging/release.py
            ${PROJECT_SOURCE_DIR}/CHANGELOG.md
    COMMENT "Manual page and completions of the tool"
    VERBATIM)
add_custom_target(tool_description ALL DEPENDS ${descriptions})
