# SPDX-FileCopyrightText: 2026 Quellfern
# SPDX-License-Identifier: GPL-3.0-or-later

# keys_stay(THERE BUILT RESULT): whether the file THERE holds a key for a map and the file BUILT, which
# would take its place, has none. Users were told to put their keys there.
function(keys_stay there built result)
    set(key "(google|baidu)['\"]?[ \t]*[:=][ \t]*['\"`][ \t]*[^'\"` \t\r\n]")
    foreach(file there built)
        set(text "")
        if(EXISTS "${${file}}")
            file(READ "${${file}}" text)
        endif()
        string(REGEX MATCH "${key}" key_${file} "${text}")
    endforeach()
    if(key_there AND NOT key_built)
        message(STATUS "Kept for the keys in it: ${there}")
        set(${result} ON PARENT_SCOPE)
    else()
        set(${result} OFF PARENT_SCOPE)
    endif()
endfunction()
