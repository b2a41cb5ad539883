#pragma once

// The glyph table and the rules of the script that converting in both directions needs. For the sources of
// the encoding only.

#include "Shivaji01Rows.h"

#include <array>
#include <iterator>

namespace Shivaji01 {

inline constexpr char16_t Virama = u'\u094D';
inline constexpr char16_t Nukta = u'\u093C';
inline constexpr char16_t SignAa = u'\u093E';
inline constexpr char16_t SignI = u'\u093F';
inline constexpr char16_t Visarga = u'\u0903';
inline constexpr char16_t VowelI = u'\u0907';
inline constexpr char16_t VowelIi = u'\u0908';
inline constexpr char16_t Ra = u'\u0930';

inline constexpr char16_t StemCode = u'a';
inline constexpr char16_t PrefixCode = u'i';
inline constexpr char16_t RephCode = u'-';
inline constexpr char16_t RakarCode = u'`';
inline constexpr char16_t RakarBelowCode = u'/'; // the shape below a letter without a stem
inline constexpr char16_t ViramaCode = u'\\';
inline constexpr char16_t NuktaCode = u',';
inline constexpr char16_t ColonCode = u':';

// Two signs that look like a third one when they stand together, in the order in which they are written.
struct Composite {
    char16_t first;
    char16_t second;
    char16_t whole;
};

// Later rows are other ways to write an earlier one.
inline constexpr Composite Composites[] = {
    {u'\u0905', SignAa, u'\u0906'},
    {u'\u0906', u'\u0947', u'\u0913'},
    {u'\u0906', u'\u0948', u'\u0914'},
    {u'\u0906', u'\u0945', u'\u0911'},
    {u'\u0905', u'\u0945', u'\u0972'},
    {u'\u090F', u'\u0947', u'\u0910'},
    {u'\u090F', u'\u0945', u'\u090D'},
    {SignAa, u'\u0947', u'\u094B'},
    {SignAa, u'\u0948', u'\u094C'},
    {SignAa, u'\u0945', u'\u0949'},
    {u'\u0947', SignAa, u'\u094B'},
    {u'\u0948', SignAa, u'\u094C'},
    {u'\u0945', SignAa, u'\u0949'},
    {u'\u0905', u'\u094B', u'\u0913'},
    {u'\u0905', u'\u094C', u'\u0914'},
    {u'\u0905', u'\u0949', u'\u0911'},
};

// The sign that two signs look like together, or 0.
constexpr char16_t Compose(char16_t first, char16_t second)
{
    for (const Composite& c : Composites) {
        if (c.first == first && c.second == second)
            return c.whole;
    }
    return 0;
}

// Normalises a Unicode text: signs that look like one become one, even with a joiner between them; dots below
// are separate characters, except in the eyelash ra.
QString OneForm(QStringView seen);

// Whether the encoding can write a dot below this letter.
constexpr bool TakesNukta(char16_t letter)
{
    return letter == u'\u0916' || letter == u'\u0917' || letter == u'\u091C' || letter == u'\u0921'
        || letter == u'\u0922' || letter == u'\u092B';
}

// Finds the row of a code: one page of 256 entries for each high byte in the table, page 0 for all others.
class GlyphIndex {
public:
    constexpr GlyphIndex()
    {
        unsigned char pages = 1;
        for (std::size_t row = 0; row < std::size(GlyphRows); ++row) {
            const unsigned code = GlyphRows[row].code;
            unsigned char& page = m_page[code >> 8];
            if (page == 0)
                page = pages++;
            m_row[page][code & 0xFF] = static_cast<unsigned char>(row + 1);
        }
    }

    // The row of a code, or null if it isn't in the encoding.
    constexpr const GlyphRow* Find(char16_t code) const
    {
        const unsigned char row = m_row[m_page[code >> 8]][code & 0xFF];
        return row == 0 ? nullptr : &GlyphRows[row - 1];
    }

private:
    static constexpr std::size_t PageCount = 8;

    std::array<unsigned char, 256> m_page{};
    std::array<std::array<unsigned char, 256>, PageCount> m_row{};
};

inline constexpr GlyphIndex Index;

}
