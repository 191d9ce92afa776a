# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later

# Makes the `folders` and notes in `record` which ones were not there before, the inner ones first, so
# that an uninstallation leaves those of others, empty or not. A package has an owner for that.
set(noted "")
if(EXISTS "${record}")
    file(READ "${record}" noted)
endif()
foreach(folder ${folders})
    cmake_path(ABSOLUTE_PATH folder BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}" NORMALIZE)
    set(folder "$ENV{DESTDIR}${folder}")
    set(made "${folder}")
    set(new "")
    while(NOT EXISTS "${folder}")
        string(APPEND new "${folder}\n")
        cmake_path(GET folder PARENT_PATH folder)
    endwhile()
    string(PREPEND noted "${new}")
    file(MAKE_DIRECTORY "${made}")
endforeach()
if(NOT CMAKE_INSTALL_COMPONENT)
    file(WRITE "${record}" "${noted}")
endif()
