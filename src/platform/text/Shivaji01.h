#pragma once

#include <QString>

#include <vector>

// The encoding of the system's texts: Latin keys typed in visual order, each standing for a shape of a
// Devanagari letter. It is held and stored as it is; the eye meets Unicode.
namespace Shivaji01 {

// A stretch of stored text that the eye sees as one syllable, digit or sign, and where it stands in
// the Unicode text. Pieces are in order, without gaps in either text.
struct Piece {
    qsizetype storedStart = 0;
    qsizetype storedLength = 0;
    qsizetype seenStart = 0;
    qsizetype seenLength = 0;
};

// What the eye sees of a stored text, with the dots below letters as characters of their own. Characters
// outside the encoding pass through unchanged; a sign without a syllable to stand on shows by itself; a
// half form that nothing completes shows with a virama.
QString ToUnicode(QStringView stored);

// The same, with the pieces that caret and selection move by.
QString ToUnicode(QStringView stored, std::vector<Piece>& pieces);

// The canonical spelling of a Unicode text: ToUnicode of the result reads as `seen` reads; Western digits
// become the encoding's digits, and what is written in two pieces, such as अ and ॅ, becomes
// the letter that they make. What the encoding can't spell passes through unchanged: rare Devanagari
// signs and joiners (they read back as themselves; a joiner after ra makes the eyelash ra), and Latin
// letters and + # $ & * = _ { } where they have no code (most of those read back as the code they are).
QString FromUnicode(QStringView seen);

// What a stored text reads, however it is spelled: two names whose readings are equal look the same. Blanks
// at the ends and joiners don't count, and blanks in a row count once.
QString Reading(QStringView stored);

// One code of the encoding, for the picture of the keyboard.
struct Glyph {
    char16_t code = 0;
    QStringView kind; // half, full, stem, sign, vowel, ... as the table names it
    QStringView unicode; // what it contributes
};

// All codes of the encoding, in the order of their codes.
const std::vector<Glyph>& Glyphs();

// The codes that no key gives are typed with Alt and the digits of a number, "0225" for 225. The number of
// a code, 0 for one that has a key; and the code of a number, null for a number that stands for none.
int AltNumber(char16_t code);
char16_t CodeOfAltNumber(int number);

}
