#pragma once

#include <QStringView>

// What a glyph does in a syllable; the names are those of the glyph table.
namespace Shivaji01 {

enum class GlyphKind : unsigned char {
    Half,
    Full,
    Stem,
    Sign,
    Prefix,
    Vowel,
    Syllable,
    Mark,
    Reph,
    Rakar,
    Virama,
    Nukta,
    Digit,
    Punct,
    Other,
};

struct GlyphRow {
    char16_t code = 0;
    GlyphKind kind = GlyphKind::Other;
    QStringView kindName;
    QStringView unicode;
};

}
