#include "Shivaji01.h"
#include "Shivaji01Table.h"

#include <algorithm>

namespace Shivaji01 {

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

}
