# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later

# Installs the file `built` into the folder `maps` below the prefix, or leaves the keys of users there.
include("${CMAKE_CURRENT_LIST_DIR}/../maps/keys.cmake")
cmake_path(ABSOLUTE_PATH maps BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}" NORMALIZE)
keys_stay("$ENV{DESTDIR}${maps}/keys.js" "${built}" are_kept)
if(are_kept)
    list(APPEND CMAKE_INSTALL_MANIFEST_FILES "${maps}/keys.js")
else()
    file(INSTALL "${built}" DESTINATION "${maps}")
endif()
