# Debian packages: the libraries, what a project needs to build against them, and the command.
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

set(CPACK_DEB_COMPONENT_INSTALL YES)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS YES)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS YES)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS YES)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME liborvandata${ORVANDATA_INTERFACE})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME liborvandata-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS qtbase5-dev)
set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME orvan)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
# Drawings show Chinese names only where some font has them.
set(CPACK_DEBIAN_TOOLS_PACKAGE_RECOMMENDS fonts-wqy-microhei)

include(CPack)
cpack_add_component(runtime DESCRIPTION "The shared libraries.")
cpack_add_component(development DESCRIPTION "Headers, and the files that CMake and pkg-config find the library by." DEPENDS runtime)
cpack_add_component(tools DESCRIPTION "The command orvan, which looks at, checks, draws and makes LED wall projects." DEPENDS runtime)
