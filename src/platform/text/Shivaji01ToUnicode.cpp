#include "platform/text/Shivaji01.h"
#include "platform/text/Shivaji01Table.h"

#include <QVarLengthArray>

#include <algorithm>

namespace Shivaji01 {
namespace {

// The greatest number of characters that one code adds (a half form of two letters).
constexpr qsizetype MostPerCode = 4;

// Reads codes one by one and writes syllables. The letters of a syllable are written at once; signs that
// follow them in Unicode, but may be typed earlier, are kept until the syllable ends.
class Reader {
public:
    Reader(QStringView stored, char16_t* out, std::vector<Piece>* pieces)
        : m_stored(stored)
        , m_begin(out)
        , m_out(out)
        , m_unit(out)
        , m_pieces(pieces)
    {
    }

    // Reads everything and returns the length of the output.
    qsizetype Read();

private:
    enum class Open { Nothing, Prefix, Letters, Vowel };

    void Take(char16_t code);
    void TakeLetters(const GlyphRow& glyph);
    void TakeStem();
    void TakeSign(char16_t sign);
    void TakeMark(char16_t code, char16_t mark);
    void TakeReph();
    void TakeRakar(QStringView rakar);
    void TakeVirama();
    void TakeNukta();

    void Begin(Open open);
    void End();
    void Alone(QStringView shown);
    void Alone(char16_t shown) { Alone(QStringView(&shown, 1)); }
    void Write(QStringView text);
    bool TakesMoreLetters() const { return m_open == Open::Letters && m_sign == 0; }

    QStringView m_stored;
    qsizetype m_at = 0;
    char16_t* m_begin;
    char16_t* m_out;

    Open m_open = Open::Nothing;
    char16_t* m_unit; // start of the open syllable in the output
    qsizetype m_unitStored = 0; // and in the stored text
    bool m_half = false; // its last letter is a half form
    bool m_halfForGood = false; // because of a virama; a stem can't complete it
    bool m_prefix = false;
    bool m_reph = false;
    char16_t m_sign = 0;
    int m_markCount = 0;
    std::array<char16_t, 4> m_marks{};

    std::vector<Piece>* m_pieces;
};

qsizetype Reader::Read()
{
    for (m_at = 0; m_at < m_stored.size(); ++m_at)
        Take(m_stored[m_at].unicode());
    End();
    return m_out - m_begin;
}

void Reader::Take(char16_t code)
{
    const GlyphRow* glyph = Index.Find(code);
    if (!glyph)
        return Alone(code);
    const char16_t shown = glyph->unicode.front().unicode();
    switch (glyph->kind) {
    case GlyphKind::Half:
    case GlyphKind::Full:
    case GlyphKind::Syllable:
        return TakeLetters(*glyph);
    case GlyphKind::Stem:
        return TakeStem();
    case GlyphKind::Sign:
        return TakeSign(shown);
    case GlyphKind::Prefix:
        Begin(Open::Prefix);
        m_prefix = true;
        return;
    case GlyphKind::Vowel:
        Begin(Open::Vowel);
        return Write(glyph->unicode);
    case GlyphKind::Mark:
        return TakeMark(code, shown);
    case GlyphKind::Reph:
        return TakeReph();
    case GlyphKind::Rakar:
        return TakeRakar(glyph->unicode);
    case GlyphKind::Virama:
        return TakeVirama();
    case GlyphKind::Nukta:
        return TakeNukta();
    case GlyphKind::Digit:
    case GlyphKind::Punct:
    case GlyphKind::Other:
        return Alone(shown);
    }
}

void Reader::TakeLetters(const GlyphRow& glyph)
{
    const bool bringsSign = glyph.kind == GlyphKind::Syllable;
    const bool afterPrefix = m_open == Open::Prefix;
    const bool afterHalf = m_open == Open::Letters && m_half;
    if (!(afterPrefix || afterHalf) || (bringsSign && m_prefix))
        Begin(Open::Letters);
    m_open = Open::Letters;
    Write(bringsSign ? glyph.unicode.chopped(1) : glyph.unicode);
    if (bringsSign)
        m_sign = glyph.unicode.back().unicode();
    m_half = glyph.kind == GlyphKind::Half;
    m_halfForGood = false;
}

void Reader::TakeStem()
{
    if (m_open != Open::Letters || !m_half || m_halfForGood)
        return TakeSign(SignAa);
    --m_out; // removes the virama
    m_half = false;
}

void Reader::TakeSign(char16_t sign)
{
    if (m_open == Open::Vowel) {
        if (const char16_t whole = Compose(m_out[-1], sign)) {
            m_out[-1] = whole;
            return;
        }
    } else if (m_open == Open::Letters && !m_half && !m_prefix) {
        if (const char16_t whole = m_sign == 0 ? sign : Compose(m_sign, sign)) {
            m_sign = whole;
            return;
        }
    }
    Alone(sign);
}

void Reader::TakeMark(char16_t code, char16_t mark)
{
    const bool onSyllable = m_open == Open::Vowel || (m_open == Open::Letters && !m_half);
    if (mark == Visarga && (!onSyllable || m_markCount > 0))
        return Alone(code);
    if (!onSyllable || m_markCount == static_cast<int>(m_marks.size()))
        return Alone(mark);
    m_marks[m_markCount++] = mark;
}

void Reader::TakeReph()
{
    if (m_open == Open::Vowel && m_out[-1] == VowelI) {
        m_out[-1] = VowelIi;
        return;
    }
    if (m_reph || m_open == Open::Nothing || m_open == Open::Prefix)
        return Alone(RephCode);
    m_reph = true;
}

void Reader::TakeRakar(QStringView rakar)
{
    if (!TakesMoreLetters())
        return Alone(rakar);
    if (m_half) {
        *m_out++ = Ra;
        *m_out++ = Virama;
        m_halfForGood = false;
    } else {
        Write(rakar);
    }
}

void Reader::TakeVirama()
{
    if (!TakesMoreLetters() || m_markCount > 0 || m_halfForGood)
        return Alone(Virama);
    if (!m_half)
        *m_out++ = Virama;
    m_half = true;
    m_halfForGood = true;
}

void Reader::TakeNukta()
{
    char16_t* after = m_half ? m_out - 1 : m_out;
    if (!TakesMoreLetters() || !TakesNukta(after[-1]))
        return Alone(NuktaCode);
    *after = Nukta;
    if (m_half)
        after[1] = Virama;
    ++m_out;
}

void Reader::Begin(Open open)
{
    End();
    m_open = open;
    m_unit = m_out;
    m_unitStored = m_at;
}

void Reader::End()
{
    if (m_open == Open::Nothing)
        return;
    if (m_prefix)
        *m_out++ = SignI;
    if (m_sign != 0)
        *m_out++ = m_sign;
    m_out = std::copy_n(m_marks.begin(), m_markCount, m_out);
    if (m_reph) {
        std::copy_backward(m_unit, m_out, m_out + 2);
        m_unit[0] = Ra;
        m_unit[1] = Virama;
        m_out += 2;
    }
    if (m_pieces)
        m_pieces->push_back({m_unitStored, m_at - m_unitStored, m_unit - m_begin, m_out - m_unit});
    m_open = Open::Nothing;
    m_half = m_halfForGood = m_prefix = m_reph = false;
    m_sign = 0;
    m_markCount = 0;
}

// Writes a code that is part of no syllable as a piece of its own.
void Reader::Alone(QStringView shown)
{
    End();
    if (m_pieces)
        m_pieces->push_back({m_at, 1, m_out - m_begin, shown.size()});
    Write(shown);
}

void Reader::Write(QStringView text)
{
    m_out = std::copy(text.utf16(), text.utf16() + text.size(), m_out);
}

QString Read(QStringView stored, std::vector<Piece>* pieces)
{
    QVarLengthArray<char16_t, 512> seen(stored.size() * MostPerCode);
    const qsizetype length = Reader(stored, seen.data(), pieces).Read();
    Q_ASSERT(length <= seen.size());
    return QStringView(seen.data(), length).toString();
}

}

QString ToUnicode(QStringView stored)
{
    return Read(stored, nullptr);
}

QString ToUnicode(QStringView stored, std::vector<Piece>& pieces)
{
    pieces.clear();
    return Read(stored, &pieces);
}

}
