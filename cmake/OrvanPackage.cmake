# Debian packages: the libraries, what a project needs to build against them, the command, and the desktop program.
set(ORVANDATA_MAINTAINER "OrvanData developers <orvandata@example.org>" CACHE STRING "Maintainer of the packages")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orvandata)
set(CPACK_PACKAGE_VENDOR OrvanData)
set(CPACK_PACKAGE_CONTACT ${ORVANDATA_MAINTAINER})
set(CPACK_STRIP_FILES YES)
set(CPACK_COMPONENTS_ALL runtime development)
if(TARGET orvan)
    list(APPEND CPACK_COMPONENTS_ALL tools)
endif()
if(TARGET orvan-designer)
    list(APPEND CPACK_COMPONENTS_ALL designer)
endif()

set(CPACK_DEB_COMPONENT_INSTALL YES)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS YES)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS YES)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS YES)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME liborvandata${ORVANDATA_INTERFACE})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON) # whatever the checked out file has
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/cmake/debian/triggers)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME liborvandata-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
# Qt for the headers; Svg and png for programs that link the static OrvanTools.
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "qtbase5-dev (>= 5.15), libqt5svg5-dev (>= 5.15), libpng-dev")
set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME orvan)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
# Drawings show Chinese names only where some font has them.
set(CPACK_DEBIAN_TOOLS_PACKAGE_RECOMMENDS fonts-wqy-microhei)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_NAME orvan-designer)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_SECTION graphics)
# Qt's own texts in Chinese are a package of their own.
set(CPACK_DEBIAN_DESIGNER_PACKAGE_RECOMMENDS "fonts-wqy-microhei, qttranslations5-l10n")

# The first line is what a list of packages shows, in place of one summary for all.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(about "OrvanData holds the documents of an application that configures LED video
walls: projects with their senders, ports, cabinets and parameters, with undo
of each edit, the library of cabinet products, settings and monitoring.")
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "document library for LED video walls\n${about}
.
This package holds the shared libraries and the translations of their messages.")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "document library for LED video walls (development files)\n${about}
.
This package holds the headers, the static library of tools, and the files by
which CMake and pkg-config find both.")
set(CPACK_DEBIAN_TOOLS_DESCRIPTION "look at, check, draw and make LED wall projects\n${about}
.
The command orvan works on project files without the application.")
set(CPACK_DEBIAN_DESIGNER_DESCRIPTION "lay out, number and check LED walls in a window\n${about}
.
The desktop program orvan-designer works on project files, and exports
drawings, sheets for the crew, and lists of cabinets and cables.")

# What Debian wants beside the files themselves, for each package. Only an installation below /usr is a package's.
function(orvan_package_papers)
    set(changelog ${PROJECT_BINARY_DIR}/compressed/changelog)
    set(writer ${PROJECT_SOURCE_DIR}/cmake/debian/changelog.sh)
    set(changes ${PROJECT_SOURCE_DIR}/CHANGELOG.md)
    add_custom_command(OUTPUT ${changelog}
        COMMAND ${writer} ${PROJECT_VERSION} ${ORVANDATA_MAINTAINER} ${changes} > ${changelog}
        DEPENDS ${writer} ${changes} VERBATIM)
    orvan_compressed(${changelog} compressed)
    foreach(component IN LISTS CPACK_COMPONENTS_ALL)
        string(TOUPPER ${component} upper)
        set(package ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
        install(FILES cmake/debian/copyright ${compressed} DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${package}
                COMPONENT ${component})
        install(FILES cmake/debian/${component}.overrides DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides
                RENAME ${package} COMPONENT ${component})
    endforeach()
endfunction()

if(ORVANDATA_INSTALL AND CMAKE_INSTALL_PREFIX STREQUAL /usr)
    orvan_package_papers()
endif()

include(CPack)
cpack_add_component(runtime)
cpack_add_component(development DEPENDS runtime)
cpack_add_component(tools DEPENDS runtime)
cpack_add_component(designer DEPENDS runtime)
