# The staged driver root: a folder that stands for "/" and holds "Library/Printers/Korvane/..." as an
# installed driver would. Panels and tests look driver files up below it.
#
# Run as a script (cmake -P) it copies one tree and removes what an earlier copy left of files that are
# gone; included, it defines
#   KORVANE_ROOT_DIR    the root
#   KORVANE_BUNDLE_DIR  the plug-in's bundle below it
#   korvane_stage(OUTPUT name SOURCE folder DESTINATION folder [DEPENDS file...])
# Everything staged is writable by its owner only, whatever the umask: the print dialog loads no
# plug-in from a place that others may write.

set(_korvane_folder_mode OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
    WORLD_READ WORLD_EXECUTE)
set(_korvane_file_mode OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)

if(CMAKE_SCRIPT_MODE_FILE STREQUAL CMAKE_CURRENT_LIST_FILE)
    file(COPY "${SOURCE}/" DESTINATION "${DESTINATION}"
        FILE_PERMISSIONS ${_korvane_file_mode} DIRECTORY_PERMISSIONS ${_korvane_folder_mode})
    file(GLOB_RECURSE files LIST_DIRECTORIES false RELATIVE "${SOURCE}" "${SOURCE}/*")
    if(EXISTS "${STAMP}")
        file(STRINGS "${STAMP}" gone)
        list(REMOVE_ITEM gone ${files})
        foreach(file IN LISTS gone)
            file(REMOVE "${DESTINATION}/${file}")
        endforeach()
    endif()
    list(JOIN files "\n" files)
    file(WRITE "${STAMP}" "${files}\n")
    return()
endif()

set(KORVANE_ROOT_DIR "${CMAKE_BINARY_DIR}/root" CACHE INTERNAL "The staged driver root")
set(KORVANE_BUNDLE_DIR "${KORVANE_ROOT_DIR}/Library/Printers/Korvane/PDEs/QualityAndMedia.bundle"
    CACHE INTERNAL "The plug-in's bundle in the staged driver root")
set(_korvane_driver_root_script "${CMAKE_CURRENT_LIST_FILE}" CACHE INTERNAL "")

# korvane_staged_folder(FOLDER): makes a folder below the root, and those above it, now.
function(korvane_staged_folder folder)
    file(MAKE_DIRECTORY "${folder}")
    cmake_path(IS_PREFIX KORVANE_ROOT_DIR "${folder}" inside)
    while(inside)
        file(CHMOD "${folder}" PERMISSIONS ${_korvane_folder_mode})
        cmake_path(GET folder PARENT_PATH folder)
        cmake_path(IS_PREFIX KORVANE_ROOT_DIR "${folder}" inside)
    endwhile()
endfunction()

# korvane_stage(...): copies the tree below SOURCE to DESTINATION when a file in it has changed: those
# found there, or those that DEPENDS names where the build makes them. OUTPUT names a stamp file for
# a target to depend on; it lists the files.
function(korvane_stage)
    cmake_parse_arguments(ARG "" "OUTPUT;SOURCE;DESTINATION" "DEPENDS" ${ARGN})
    korvane_staged_folder("${ARG_DESTINATION}")
    if(NOT ARG_DEPENDS)
        file(GLOB_RECURSE ARG_DEPENDS CONFIGURE_DEPENDS "${ARG_SOURCE}/*")
    endif()
    string(MD5 names "${ARG_DEPENDS}") # in the command, so that a removed file runs it again
    add_custom_command(
        OUTPUT "${ARG_OUTPUT}"
        COMMAND ${CMAKE_COMMAND} "-DSOURCE=${ARG_SOURCE}" "-DDESTINATION=${ARG_DESTINATION}"
            "-DSTAMP=${ARG_OUTPUT}" "-DNAMES=${names}" -P "${_korvane_driver_root_script}"
        DEPENDS ${ARG_DEPENDS} "${_korvane_driver_root_script}"
        VERBATIM)
endfunction()
