# SPDX-FileCopyrightText: 2026 The Tovarel authors
# SPDX-License-Identifier: MIT
#
# read_releases(CHANGES RESULT): what the change log says of each version, as the <release> elements
# of a metainfo file. A version's heading is "## VERSION, DATE" with a date as in 2026-11-25, or
# "## VERSION, not released yet"; below it is a list whose items may go on in indented lines.
function(read_releases changes result)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${changes}")
    file(READ "${changes}" text)
    # Semicolons and brackets mean something to lists.
    foreach(pair "&=&amp#" "<=&lt#" ">=&gt#" ";=&#59#" "[=&#91#" "]=&#93#")
        string(SUBSTRING "${pair}" 0 1 character)
        string(SUBSTRING "${pair}" 2 -1 written)
        string(REPLACE "${character}" "${written}" text "${text}")
    endforeach()
    string(REGEX REPLACE "\n  +" " " text "${text}")
    string(REPLACE "\n" ";" lines "${text}")
    set(elements "")
    set(end "")
    foreach(line ${lines})
        if(line MATCHES "^## ([0-9.]+), (.*)$")
            set(version "${CMAKE_MATCH_1}")
            set(date "${CMAKE_MATCH_2}")
            if(date MATCHES "^[0-9]+-[0-9]+-[0-9]+$")
                set(attributes "date=\"${date}\"")
            else()
                string(TIMESTAMP date "%Y-%m-%d" UTC)
                set(attributes "date=\"${date}\" type=\"development\"")
            endif()
            string(APPEND elements "${end}    <release version=\"${version}\" ${attributes}>\n"
                "      <description>\n        <ul>\n")
            set(end "        </ul>\n      </description>\n    </release>\n")
        elseif(line MATCHES "^- (.*)$")
            string(APPEND elements "          <li>${CMAKE_MATCH_1}</li>\n")
        endif()
    endforeach()
    string(APPEND elements "${end}")
    # The end of a reference was written "#" so that it didn't end a list's item.
    string(REGEX REPLACE "&(amp|lt|gt|#59|#91|#93)#" "&\\1;" elements "${elements}")
    set(${result} "${elements}" PARENT_SCOPE)
endfunction()
