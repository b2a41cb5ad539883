#pragma once

#include <QStringView>

// The role of a glyph in a syllable, and the rows of the glyph table, from which the build makes
// Shivaji01Rows.h.
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
