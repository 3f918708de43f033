# The manual: one source, made into the two formats that help viewers read, beside the program.
find_program(KORVANE_HALIBUT halibut)
if(NOT KORVANE_HALIBUT)
    message(WARNING "No halibut (package halibut): the program is built without its manual.")
    add_custom_target(aide)
    return()
endif()

set(manuel "${CMAKE_BINARY_DIR}/aide/manuel.but")
configure_file("${CMAKE_SOURCE_DIR}/aide/manuel.but" "${manuel}" @ONLY)
set(KORVANE_AIDES "${CMAKE_BINARY_DIR}/KORVANE.HLP" "${CMAKE_BINARY_DIR}/KORVANE.CHM")

# Both are made aside, then put in place: a build that stops leaves no half of a file under the name that the program opens.
add_custom_command(OUTPUT ${KORVANE_AIDES}
    COMMAND "${KORVANE_HALIBUT}" --winhelp=KORVANE.HLP --chm=KORVANE.CHM manuel.but
    COMMAND "${CMAKE_COMMAND}" -E copy KORVANE.HLP KORVANE.CHM "${CMAKE_BINARY_DIR}"
    WORKING_DIRECTORY "${CMAKE_BINARY_DIR}/aide"
    DEPENDS "${manuel}" COMMENT "Manual KORVANE.HLP, KORVANE.CHM" VERBATIM)
add_custom_target(aide ALL DEPENDS ${KORVANE_AIDES})
