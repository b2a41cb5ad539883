#include "platform/text/Shivaji01.h"
#include "platform/text/Shivaji01Table.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Shivaji01 {

namespace {

// Codes whose Alt number differs from their Unicode number.
constexpr std::array<std::pair<char16_t, int>, 11> OldNumbers{{{u'\u2030', 137}, {u'\u2039', 139},
    {u'\u2018', 145}, {u'\u2019', 146}, {u'\u201C', 147}, {u'\u201D', 148}, {u'\u2013', 150},
    {u'\u02DC', 152}, {u'\u0161', 154}, {u'\u203A', 155}, {u'\u0178', 159}}};

}

const std::vector<Glyph>& Glyphs()
{
    static const std::vector<Glyph> glyphs = [] {
        std::vector<Glyph> all;
        all.reserve(std::size(GlyphRows));
        for (const GlyphRow& row : GlyphRows)
            all.push_back({row.code, row.kindName, row.unicode});
        std::sort(all.begin(), all.end(), [](const Glyph& a, const Glyph& b) { return a.code < b.code; });
        return all;
    }();
    return glyphs;
}

int AltNumber(char16_t code)
{
    for (const auto& [old, number] : OldNumbers)
        if (old == code)
            return number;
    return code > 0x7F && code <= 0xFF ? code : 0;
}

char16_t CodeOfAltNumber(int number)
{
    for (const Glyph& glyph : Glyphs())
        if (number != 0 && AltNumber(glyph.code) == number)
            return glyph.code;
    return 0;
}

}
