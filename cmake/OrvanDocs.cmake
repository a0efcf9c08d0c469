# The reference of the installed headers: the target `docs`. A warning is an error.
find_package(Doxygen QUIET)
if(NOT DOXYGEN_FOUND)
    return()
endif()

set(DOXYGEN_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/docs)
set(DOXYGEN_USE_MDFILE_AS_MAINPAGE ${PROJECT_SOURCE_DIR}/docs/writing-a-host.md)
set(DOXYGEN_IMAGE_PATH ${PROJECT_SOURCE_DIR}/docs)
set(DOXYGEN_STRIP_FROM_PATH ${PROJECT_SOURCE_DIR})
set(DOXYGEN_STRIP_FROM_INC_PATH ${PROJECT_SOURCE_DIR}/src ${PROJECT_SOURCE_DIR}/krxcontrol
    ${PROJECT_SOURCE_DIR}/tools)
# Comments tell what a signature cannot; a member without one is documented by its name.
set(DOXYGEN_EXTRACT_ALL YES)
set(DOXYGEN_JAVADOC_AUTOBRIEF YES)
set(DOXYGEN_MACRO_EXPANSION YES)
set(DOXYGEN_EXPAND_ONLY_PREDEF YES)
set(DOXYGEN_PREDEFINED ORVANDATA_EXPORT= KRXCONTROL_EXPORT=)
set(DOXYGEN_HAVE_DOT NO)
set(DOXYGEN_GENERATE_LATEX NO)
set(DOXYGEN_QUIET YES)
set(DOXYGEN_WARN_AS_ERROR FAIL_ON_WARNINGS)

get_property(public_headers GLOBAL PROPERTY ORVANDATA_PUBLIC_HEADERS)
get_property(tools_headers GLOBAL PROPERTY ORVANDATA_TOOLS_HEADERS)
file(GLOB pages CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/*.md)
doxygen_add_docs(docs README.md ${pages} CHANGELOG.md src/orvandata.h ${public_headers} ${tools_headers}
                 krxcontrol/custommessagebox.h krxcontrol/customprogressbar.h
                 WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
