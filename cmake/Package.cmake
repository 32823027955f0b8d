# What `cpack` makes of the installed files: packages on Debian, elsewhere one archive with everything.
set(CPACK_PACKAGE_NAME zu)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_VENDOR "The zu maintainers")
set(CPACK_PACKAGE_CONTACT "The zu maintainers <maintainers@zu.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_COMPONENTS_ALL runtime development)
if(TARGET zu-demo)
    list(APPEND CPACK_COMPONENTS_ALL tools)
endif()

if(WIN32)
    set(CPACK_GENERATOR ZIP)
    set(CPACK_SYSTEM_NAME win64)
elseif(NOT EXISTS /etc/debian_version)
    set(CPACK_GENERATOR TGZ)
else()
    set(CPACK_GENERATOR DEB)
    set(CPACK_DEB_COMPONENT_INSTALL ON)
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(library_package libzu${ZU_SOVERSION})
    set(this_library "${library_package} (= ${PROJECT_VERSION})")

    # Versions that programs cannot exchange can be installed side by side.
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${library_package})
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
    set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
        "The shared library: lists, typed field lists, INI files, tables over ODBC, messages,\nfiles and directories, geometry, host services.")
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libzu-dev)
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS ${this_library})
    set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
        "What programs are built with: the headers, a CMake package and a pkg-config file.")
    set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME zu-demo)
    set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
    set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS ${this_library})
    set(CPACK_COMPONENT_TOOLS_DESCRIPTION
        "The library from the command line: configuration, tables, files, geometry.")

    # What the binaries are linked with becomes dependencies; the library itself is found in the build.
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
    set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
    set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
    set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
    set(CPACK_DEBIAN_TOOLS_PACKAGE_SUGGESTS libsqliteodbc)
    set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
        OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
endif()
include(CPack)
