# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later

# Makes `link`, which leads to `target`, and notes it in the manifest. Within one prefix links are
# relative, so that they hold wherever the files are staged; what lies elsewhere stays there.
cmake_path(ABSOLUTE_PATH link BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}" NORMALIZE)
cmake_path(ABSOLUTE_PATH target BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}" NORMALIZE)
cmake_path(GET link PARENT_PATH folder)
cmake_path(IS_PREFIX CMAKE_INSTALL_PREFIX "${target}" NORMALIZE is_inside)
if(is_inside)
    file(RELATIVE_PATH target "${folder}" "${target}")
endif()
message(STATUS "Installing: $ENV{DESTDIR}${link}")
# Earlier installations had a copy of the folder here.
if(IS_DIRECTORY "$ENV{DESTDIR}${link}" AND NOT IS_SYMLINK "$ENV{DESTDIR}${link}")
    file(REMOVE_RECURSE "$ENV{DESTDIR}${link}")
endif()
file(MAKE_DIRECTORY "$ENV{DESTDIR}${folder}")
file(CREATE_LINK "${target}" "$ENV{DESTDIR}${link}" SYMBOLIC)
list(APPEND CMAKE_INSTALL_MANIFEST_FILES "${link}")
