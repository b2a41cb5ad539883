#pragma once

#include <QString>

#include <vector>

// The Shivaji01 encoding, in which all texts are stored: Latin characters in the order in which they are
// typed, each of which stands for a shape of a Devanagari letter. For the screen and for paper it is
// converted to Unicode.
namespace Shivaji01 {

// A part of a stored text that is shown as one syllable, digit or sign, and its place in the Unicode text.
// The pieces of a text are in order and leave no gaps in either text.
struct Piece {
    qsizetype storedStart = 0;
    qsizetype storedLength = 0;
    qsizetype seenStart = 0;
    qsizetype seenLength = 0;
};

// Converts a stored text to Unicode. Dots below letters (nuktas) are separate characters. Characters outside
// the encoding are copied; a sign without a syllable is shown by itself; a half form that isn't completed is
// shown with a virama.
QString ToUnicode(QStringView stored);

// The same, with the pieces by which the caret and the selection move.
QString ToUnicode(QStringView stored, std::vector<Piece>& pieces);

// Converts Unicode to the stored encoding, in its canonical spelling, so that ToUnicode of the result reads
// like `seen`. Western digits become the digits of the encoding, and a letter written in two parts, such as अ
// and ॅ, becomes one. What the encoding lacks is copied: rare Devanagari signs and joiners (ToUnicode gives
// them back; a joiner after ra makes the eyelash ra), and Latin letters and + # $ & * = _ { } where they have
// no code (ToUnicode takes most of these for codes).
QString FromUnicode(QStringView seen);

// The reading of a stored text, to compare names whose spelling differs: equal readings look the same.
// Joiners and blanks at the ends are removed, and several blanks become one.
QString Reading(QStringView stored);

// A code of the encoding, for the picture of the keyboard.
struct Glyph {
    char16_t code = 0;
    QStringView kind; // half, full, stem, sign, vowel, ... as in the glyph table
    QStringView unicode; // what it adds to the text
};

// All codes of the encoding, in the order of their codes.
const std::vector<Glyph>& Glyphs();

// Codes without a key are typed as Alt and four digits, "0225" for 225. AltNumber is the number of a code, 0
// if it has a key; CodeOfAltNumber is the code of a number, null if there is none.
int AltNumber(char16_t code);
char16_t CodeOfAltNumber(int number);

}
