# Bottom to top: a room includes only rooms named before it. `./dev lint` reads this line.
set(ORVANDATA_ROOMS common settings products records layout params monitor project frame)

# orvan_room(SOURCES … HEADERS …): a room of the library, called in its own folder.
# HEADERS are installed for hosts; a header that is not named stays private to the library.
function(orvan_room)
    cmake_parse_arguments(ROOM "" "" "SOURCES;HEADERS" ${ARGN})
    list(TRANSFORM ROOM_SOURCES PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
    list(TRANSFORM ROOM_HEADERS PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
    target_sources(OrvanDataObjects PRIVATE ${ROOM_SOURCES})
    set_property(GLOBAL APPEND PROPERTY ORVANDATA_PUBLIC_HEADERS ${ROOM_HEADERS})
endfunction()

# orvan_tests(room file…): one test program a room. It sees the insides of the library (object files).
function(orvan_tests room)
    add_executable(test_${room} ${ARGN})
    target_link_libraries(test_${room} PRIVATE OrvanTestSupport)
    add_test(NAME ${room} COMMAND test_${room})
endfunction()
