# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later

# Removes what the manifest in the folder `build` lists, and of the folders that the installation
# made those that are empty then.
set(manifest "${build}/install_manifest.txt")
set(record "${build}/install_folders.txt")
if(NOT EXISTS "${manifest}")
    message(FATAL_ERROR "Nothing has been installed from here: there is no ${manifest}")
endif()

# Takes the first line off the text. A list of lines would be torn apart by a bracket in a name.
macro(take_line text line)
    string(FIND "${${text}}" "\n" length)
    string(SUBSTRING "${${text}}" 0 ${length} ${line})
    math(EXPR length "${length} + 1")
    string(SUBSTRING "${${text}}" ${length} -1 ${text})
endmacro()

file(READ "${manifest}" files)
string(APPEND files "\n")
while(NOT files STREQUAL "")
    take_line(files file)
    set(file "$ENV{DESTDIR}${file}")
    if(EXISTS "${file}" OR IS_SYMLINK "${file}")
        message(STATUS "Removing: ${file}")
        file(REMOVE "${file}")
        if(EXISTS "${file}" OR IS_SYMLINK "${file}")
            message(FATAL_ERROR "Cannot remove ${file}")
        endif()
    endif()
endwhile()

set(folders "")
if(EXISTS "${record}")
    file(READ "${record}" folders)
endif()
while(NOT folders STREQUAL "")
    take_line(folders folder)
    # The system's own command refuses a folder that others have put something into.
    execute_process(COMMAND rmdir "${folder}" RESULT_VARIABLE status ERROR_QUIET)
    if(NOT status EQUAL 0 AND EXISTS "${folder}")
        message(STATUS "Not empty: ${folder}")
    endif()
endwhile()
file(REMOVE "${record}" "${manifest}")
