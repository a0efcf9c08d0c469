# Options, the language level and the two interface targets that every target of the project links. As a part of
# another project this one builds its libraries and nothing else, and what is set here stays in these folders.
option(ORVANDATA_TESTS "Build the tests" ${PROJECT_IS_TOP_LEVEL})
option(ORVANDATA_COMMAND "Build the command orvan" ${PROJECT_IS_TOP_LEVEL})
option(ORVANDATA_DESIGNER "Build the desktop program orvan-designer" ${PROJECT_IS_TOP_LEVEL})
option(ORVANDATA_INSTALL "Install the libraries, their headers and the command" ${PROJECT_IS_TOP_LEVEL})
option(ORVANDATA_BENCHMARKS "Build the benchmarks" OFF)
option(ORVANDATA_FUZZ "Link the fuzzers with libFuzzer; needs clang" OFF)
option(ORVANDATA_WERROR "Treat warnings as errors" OFF)
set(ORVANDATA_SANITIZE "" CACHE STRING "Sanitizers, comma separated: address,undefined or thread")
set(ORVANDATA_KRXCONTROL_TARGET "" CACHE STRING
    "Imported target of the host's control library; empty builds the stand-in")
set(ORVANDATA_TRANSLATIONS_DIR "" CACHE STRING
    "Where translations are installed and looked for, absolute or below the prefix; empty: a folder of this version")

# Two versions of the library can be installed together.
set(ORVANDATA_TRANSLATIONS ${CMAKE_INSTALL_DATADIR}/OrvanData-${ORVANDATA_INTERFACE}/Language)
if(ORVANDATA_TRANSLATIONS_DIR)
    set(ORVANDATA_TRANSLATIONS ${ORVANDATA_TRANSLATIONS_DIR})
endif()

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)

# An installation can be moved as a whole. The system's own folders need no search path.
if(NOT CMAKE_INSTALL_PREFIX STREQUAL /usr)
    set(CMAKE_INSTALL_RPATH $ORIGIN $ORIGIN/../${CMAKE_INSTALL_LIBDIR})
endif()

add_library(OrvanWarnings INTERFACE)
target_compile_options(OrvanWarnings INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                       $<$<BOOL:${ORVANDATA_WERROR}>:-Werror>)
target_compile_definitions(OrvanWarnings INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_FOREACH)

add_library(OrvanSanitizers INTERFACE)
if(ORVANDATA_SANITIZE)
    set(flags -fsanitize=${ORVANDATA_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_compile_options(OrvanSanitizers INTERFACE ${flags})
    target_link_options(OrvanSanitizers INTERFACE ${flags})
endif()
