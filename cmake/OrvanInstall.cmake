# What an installation holds beside the libraries, their headers and the programs: their manual pages, what
# completes the command in a shell, and how other projects find the library (CMake package, pkg-config file).
include(CMakePackageConfigHelpers)

# orvan_compressed(FILE RESULT): makes FILE.gz, with the same bytes each time; RESULT is set to its path.
function(orvan_compressed file result)
    cmake_path(GET file FILENAME name)
    set(made ${PROJECT_BINARY_DIR}/compressed/${name}.gz)
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/compressed)
    add_custom_command(OUTPUT ${made} COMMAND gzip -9nc ${file} > ${made} DEPENDS ${file} VERBATIM)
    add_custom_target(Orvan-${name}.gz ALL DEPENDS ${made})
    set(${result} ${made} PARENT_SCOPE)
endfunction()

set(config_dir ${CMAKE_INSTALL_LIBDIR}/cmake/OrvanData)
configure_package_config_file(cmake/OrvanDataConfig.cmake.in OrvanDataConfig.cmake INSTALL_DESTINATION ${config_dir})
write_basic_package_version_file(OrvanDataConfigVersion.cmake COMPATIBILITY ${ORVANDATA_COMPATIBILITY})
install(FILES ${PROJECT_BINARY_DIR}/OrvanDataConfig.cmake ${PROJECT_BINARY_DIR}/OrvanDataConfigVersion.cmake
        DESTINATION ${config_dir} COMPONENT development)
install(EXPORT OrvanDataTargets NAMESPACE OrvanData:: DESTINATION ${config_dir} COMPONENT development)

# The file names its prefix relative to itself, so that a moved installation is found too.
file(RELATIVE_PATH prefix_of_pc ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" prefix_of_pc ${prefix_of_pc})
if(NOT ORVANDATA_KRXCONTROL_TARGET)
    set(krxcontrol_cflags "-I\${includedir}/krxcontrol")
    set(krxcontrol_libs "-lKRXControl")
endif()
configure_file(cmake/orvandata.pc.in orvandata.pc @ONLY)
configure_file(cmake/orvantools.pc.in orvantools.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/orvandata.pc ${PROJECT_BINARY_DIR}/orvantools.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

if(TARGET orvan)
    orvan_compressed(${PROJECT_SOURCE_DIR}/docs/orvan.1 manual)
    install(FILES ${manual} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools)
    install(FILES tools/orvan/completions/orvan.bash RENAME orvan
            DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT tools)
    install(FILES tools/orvan/completions/_orvan
            DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions COMPONENT tools)
endif()
if(TARGET orvan-designer)
    orvan_compressed(${PROJECT_SOURCE_DIR}/docs/orvan-designer.1 manual)
    install(FILES ${manual} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT designer)
endif()

# The installation is tried as another project would use it, in a folder of the build tree. A library built with
# sanitizers wants its user built with them too, so it is left out there.
if(PROJECT_IS_TOP_LEVEL AND NOT ORVANDATA_SANITIZE)
    set(phases install headers host pkgconfig)
    if(CMAKE_BUILD_TYPE STREQUAL Release) # as it is shipped, and ccache knows the objects
        list(APPEND phases symbols subproject)
    endif()
    foreach(phase IN LISTS phases)
        add_test(NAME installed_${phase}
                 COMMAND ${PROJECT_SOURCE_DIR}/cmake/try_installation.sh ${phase} ${PROJECT_SOURCE_DIR} ${PROJECT_BINARY_DIR}
                         ${CMAKE_GENERATOR} ${CMAKE_MAKE_PROGRAM} ${CMAKE_CXX_COMPILER})
    endforeach()
    set_tests_properties(installed_install PROPERTIES FIXTURES_SETUP installation)
    list(TRANSFORM phases PREPEND installed_)
    list(REMOVE_ITEM phases installed_install installed_subproject)
    set_tests_properties(${phases} PROPERTIES FIXTURES_REQUIRED installation)
endif()
