# Writes the glyph table as C++: cmake -DTABLE=in.tsv -DHEADER=out.h -P glyphs.cmake
# The lines are split by hand, since semicolons and brackets in the table would confuse CMake's lists.

file(READ "${TABLE}" rest)
set(rows "")
set(first TRUE)
while(NOT rest STREQUAL "")
    string(FIND "${rest}" "\n" end)
    if(end EQUAL -1)
        message(FATAL_ERROR "${TABLE}: the last line has no end")
    endif()
    string(SUBSTRING "${rest}" 0 ${end} line)
    math(EXPR next "${end} + 1")
    string(SUBSTRING "${rest}" ${next} -1 rest)
    if(first)
        set(first FALSE)
        continue()
    endif()
    if(NOT line MATCHES "^U\\+([0-9A-F]+)\t[^\t]+\t([a-z])([a-z]*)\t([^\t]+)\t")
        message(FATAL_ERROR "${TABLE}: not a row of the table: ${line}")
    endif()
    set(code "${CMAKE_MATCH_1}")
    set(kind "${CMAKE_MATCH_2}${CMAKE_MATCH_3}")
    set(tail "${CMAKE_MATCH_3}")
    set(unicode "${CMAKE_MATCH_4}")
    string(TOUPPER "${CMAKE_MATCH_2}" initial)
    string(REPLACE "\\" "\\\\" unicode "${unicode}")
    string(REPLACE "\"" "\\\"" unicode "${unicode}")
    string(APPEND rows "    {0x${code}, GlyphKind::${initial}${tail}, u\"${kind}\", u\"${unicode}\"},\n")
endwhile()

file(WRITE "${HEADER}" "#pragma once

// Made from the glyph table; changes belong there.

#include \"platform/text/Shivaji01Row.h\"

namespace Shivaji01 {
inline constexpr GlyphRow GlyphRows[] = {
${rows}};
}
")
