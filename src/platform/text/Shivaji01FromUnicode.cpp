#include "platform/text/Shivaji01.h"
#include "platform/text/Shivaji01Table.h"

#include <algorithm>
#include <optional>

namespace Shivaji01 {
namespace {

constexpr char16_t Tta = u'\u091F';

// Codes that are never written: the stored texts spell these letters out, as in "f@t" and "rijasTr".
constexpr QStringView UnusedCodes = u">\u0178";

// A glyph that stands for letters; for a half form, `letters` doesn't include its virama.
struct Spelling {
    QStringView letters;
    char16_t code;
    bool half;
};

// The glyph table in reverse: from letters and signs to their codes.
class Spellings {
public:
    Spellings();

    // The glyphs whose letters begin with this one, longest first; a full form before a half form of the same
    // length.
    const std::vector<Spelling>& Letters(char16_t first) const
    {
        return InBlock(first) ? m_letters[first - BlockStart] : m_letters[0];
    }

    // Whether the encoding has this consonant.
    bool IsLetter(char16_t c) const { return !Letters(c).empty(); }

    // The codes of a vowel, sign, mark, digit or other character; empty if it has none.
    QStringView Single(char16_t c) const
    {
        if (InBlock(c))
            return m_signs[c - BlockStart];
        return c < m_ascii.size() ? QStringView(m_ascii[c]) : Outside(c);
    }

    // The one code of a letter together with its vowel sign, or 0.
    char16_t Syllable(char16_t letter, char16_t sign) const;

private:
    static constexpr char16_t BlockStart = u'\u0900';
    static constexpr std::size_t BlockSize = 128;

    static bool InBlock(char16_t c) { return c >= BlockStart && c < BlockStart + BlockSize; }
    QStringView Outside(char16_t c) const;
    QString& Slot(char16_t c);
    void AddLetters(const GlyphRow& row);
    void AddSingle(const GlyphRow& row);
    void AddComposites();

    struct Other {
        char16_t seen;
        QString code;
    };
    std::array<std::vector<Spelling>, BlockSize> m_letters;
    std::array<QString, BlockSize> m_signs;
    std::array<QString, 128> m_ascii;
    std::vector<Other> m_others;
    std::vector<const GlyphRow*> m_syllables;
};

Spellings::Spellings()
{
    for (const GlyphRow& row : GlyphRows) {
        if (UnusedCodes.contains(row.code))
            continue;
        if (row.kind == GlyphKind::Half || row.kind == GlyphKind::Full)
            AddLetters(row);
        else if (row.kind == GlyphKind::Syllable)
            m_syllables.push_back(&row);
        else
            AddSingle(row);
    }
    for (std::vector<Spelling>& same : m_letters) {
        std::stable_sort(same.begin(), same.end(), [](const Spelling& a, const Spelling& b) {
            if (a.letters.size() != b.letters.size())
                return a.letters.size() > b.letters.size();
            return !a.half && b.half;
        });
    }
    AddComposites();
}

void Spellings::AddLetters(const GlyphRow& row)
{
    const bool half = row.kind == GlyphKind::Half;
    const QStringView letters = half ? row.unicode.chopped(1) : row.unicode;
    m_letters[letters.front().unicode() - BlockStart].push_back({letters, row.code, half});
}

void Spellings::AddSingle(const GlyphRow& row)
{
    if (row.unicode.size() != 1)
        return;
    QString& slot = Slot(row.unicode.front().unicode());
    if (slot.isEmpty())
        slot = QChar(row.code);
    if (row.kind == GlyphKind::Digit)
        m_ascii[row.code] = QChar(row.code);
}

QString& Spellings::Slot(char16_t c)
{
    if (InBlock(c))
        return m_signs[c - BlockStart];
    if (c < m_ascii.size())
        return m_ascii[c];
    for (Other& other : m_others) {
        if (other.seen == c)
            return other.code;
    }
    return m_others.emplace_back(Other{c, {}}).code;
}

// Signs made of two parts are written with two codes, even if the table also has a single code for them.
void Spellings::AddComposites()
{
    for (auto c = std::rbegin(Composites); c != std::rend(Composites); ++c)
        Slot(c->whole).clear();
    for (const Composite& c : Composites) {
        QString& slot = Slot(c.whole);
        if (slot.isEmpty())
            slot = Slot(c.first) + Slot(c.second);
    }
    Slot(VowelIi) = Slot(VowelI) + QChar(RephCode);
}

QStringView Spellings::Outside(char16_t c) const
{
    for (const Other& other : m_others) {
        if (other.seen == c)
            return other.code;
    }
    return {};
}

char16_t Spellings::Syllable(char16_t letter, char16_t sign) const
{
    for (const GlyphRow* row : m_syllables) {
        if (row->unicode.size() == 2 && row->unicode[0] == letter && row->unicode[1] == sign)
            return row->code;
    }
    return 0;
}

constexpr bool IsSign(char16_t c)
{
    return (c >= SignAa && c <= u'\u0943')
        || (c >= u'\u0945' && c <= u'\u094C' && c != u'\u0946' && c != u'\u094A');
}

constexpr bool IsMark(char16_t c)
{
    return c == u'\u0901' || c == u'\u0902' || c == Visarga;
}

constexpr bool IsVowel(char16_t c)
{
    return (c >= u'\u0905' && c <= u'\u0914') || c == u'\u0972';
}

// What one glyph covers at the start of some letters: its own letters, a dot and a rakar.
struct FormEnd {
    qsizetype at = 0;
    bool dotted = false;
    bool rakar = false;
    bool last = false; // nothing follows
};

// No value if the letters don't begin with this glyph.
std::optional<FormEnd> EndOf(const Spelling& form, QStringView letters)
{
    const auto at = [&letters](qsizetype i) { return i < letters.size() ? letters[i].unicode() : u'\0'; };
    FormEnd end{form.letters.size()};
    if (!letters.startsWith(form.letters) || (at(end.at) != 0 && at(end.at) != Virama && at(end.at) != Nukta))
        return {};
    end.dotted = at(end.at) == Nukta;
    end.at += end.dotted ? 1 : 0;
    end.rakar = at(end.at) == Virama && at(end.at + 1) == Ra;
    end.at += end.rakar ? 2 : 0;
    end.last = end.at == letters.size();
    return end;
}

// Writes a text syllable by syllable. Characters that the encoding lacks are copied; ToUnicode copies them
// back.
class Speller {
public:
    explicit Speller(QStringView text) : m_text(text) { m_out.reserve(text.size() * 2); }

    QString Spell();

private:
    void SpellNext();
    void SpellSyllable(bool reph);
    void SpellVowel(bool reph);
    void SpellStray(char16_t c);
    void SpellSign(char16_t sign);
    void SpellMarks();
    void Copy(char16_t c);

    qsizetype LettersEnd(qsizetype from) const;
    void SpellLetters(QStringView letters);
    qsizetype SpellForm(QStringView letters);
    void AddForm(const Spelling& form, const FormEnd& end);
    char16_t At(qsizetype i) const { return i < m_text.size() ? m_text[i].unicode() : u'\0'; }
    void Add(char16_t code) { m_out += QChar(code); }

    static const Spellings& Table()
    {
        static const Spellings table;
        return table;
    }

    QStringView m_text;
    qsizetype m_at = 0;
    QString m_out;

    bool m_open = false; // the last output is a syllable, or unknown
    bool m_joins = false; // ToUnicode would join any sign to it
    char16_t m_last = 0; // its vowel or sign, which may form one with the next sign
};

QString Speller::Spell()
{
    while (m_at < m_text.size())
        SpellNext();
    return m_out;
}

void Speller::SpellNext()
{
    const char16_t c = At(m_at);
    const bool reph = c == Ra && At(m_at + 1) == Virama;
    const char16_t below = reph ? At(m_at + 2) : u'\0';
    if (reph && Table().IsLetter(below)) {
        m_at += 2;
        SpellSyllable(true);
    } else if (reph && IsVowel(below) && below != VowelI && !Table().Single(below).isEmpty()) {
        m_at += 2;
        SpellVowel(true);
    } else if (Table().IsLetter(c)) {
        SpellSyllable(false);
    } else if (IsVowel(c) && !Table().Single(c).isEmpty()) {
        SpellVowel(false);
    } else if (IsSign(c) || IsMark(c) || c == Virama || c == Nukta) {
        SpellStray(c);
    } else {
        Copy(c);
    }
}

// The end of the letters joined by viramas, without a virama after the last one.
qsizetype Speller::LettersEnd(qsizetype from) const
{
    for (;;) {
        const bool dotted = At(from + 1) == Nukta && TakesNukta(At(from));
        from += dotted ? 2 : 1;
        if (At(from) != Virama || !Table().IsLetter(At(from + 1)))
            return from;
        ++from;
    }
}

void Speller::SpellSyllable(bool reph)
{
    const qsizetype end = LettersEnd(m_at);
    const QStringView letters = m_text.sliced(m_at, end - m_at);
    m_at = end;
    const char16_t sign = IsSign(At(m_at)) ? At(m_at) : u'\0';
    const bool dead = At(m_at) == Virama;

    if (sign == SignI)
        Add(PrefixCode);
    const bool alone = letters.size() == 1 || letters.back() != Ra;
    if (const char16_t whole = alone ? Table().Syllable(letters.back().unicode(), sign) : u'\0') {
        SpellLetters(letters.chopped(1));
        Add(whole);
    } else {
        SpellLetters(letters);
        if (sign != 0 && sign != SignI)
            m_out += Table().Single(sign);
    }
    if (dead)
        Add(ViramaCode);
    if (sign != 0 || dead)
        ++m_at;
    if (reph)
        Add(RephCode);
    m_last = sign;
    m_open = !dead;
    m_joins = sign == 0 || sign == SignI;
    if (m_open)
        SpellMarks();
}

void Speller::SpellVowel(bool reph)
{
    m_last = At(m_at++);
    m_out += Table().Single(m_last);
    if (reph)
        Add(RephCode);
    m_open = true;
    m_joins = false;
    SpellMarks();
}

void Speller::SpellMarks()
{
    for (bool first = true; IsMark(At(m_at)); first = false) {
        if (At(m_at) == Visarga && !first)
            return;
        m_out += Table().Single(At(m_at++));
        m_joins = true;
    }
}

// A sign that belongs to no syllable is written as a code only if ToUnicode won't join it to one.
void Speller::SpellStray(char16_t c)
{
    const bool joins = m_open && (m_joins || Compose(m_last, c) != 0);
    const QStringView codes = Table().Single(c);
    const char16_t next = At(++m_at);
    bool plain = codes.size() == 1 && !joins;
    if (c == SignI)
        plain = plain && (next == 0 || next == u' ');
    else if (c == Virama)
        plain = plain && !m_open;
    else if (c == Nukta || c == Visarga)
        plain = false;
    Add(plain ? codes.front().unicode() : c);
    m_open = false;
}

void Speller::Copy(char16_t c)
{
    const QStringView codes = Table().Single(c);
    ++m_at;
    if (codes.isEmpty())
        Add(c);
    else
        m_out += codes;
    // If the character is also a code, ToUnicode reads it as that code, with an effect that we don't follow.
    m_open = codes.isEmpty() && Index.Find(c);
    m_joins = true;
}

void Speller::SpellLetters(QStringView letters)
{
    while (!letters.isEmpty())
        letters = letters.sliced(SpellForm(letters));
}

// Writes the letters of one glyph with their dot and rakar; returns how many characters that was.
qsizetype Speller::SpellForm(QStringView letters)
{
    const std::vector<Spelling>& forms = Table().Letters(letters.front().unicode());
    for (const bool halvesOnly : {true, false}) {
        for (const Spelling& form : forms) {
            const std::optional<FormEnd> end = EndOf(form, letters);
            if (!end || (halvesOnly && !end->last && !form.half))
                continue;
            AddForm(form, *end);
            return end->last ? end->at : end->at + 1;
        }
    }
    Q_UNREACHABLE(); // every letter of the table has a form of its own
    return letters.size();
}

void Speller::AddForm(const Spelling& form, const FormEnd& end)
{
    Add(form.code);
    if (form.half && end.last)
        Add(StemCode);
    if (end.dotted)
        Add(NuktaCode);
    if (end.rakar)
        Add(form.letters.back() == Tta ? RakarBelowCode : RakarCode);
    if (!form.half && !end.last)
        Add(ViramaCode);
}

}

QString FromUnicode(QStringView seen)
{
    const QString text = OneForm(seen);
    return Speller(text).Spell();
}

}
