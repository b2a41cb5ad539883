#include "platform/text/Shivaji01.h"
#include "platform/text/Shivaji01Table.h"

#include <algorithm>

namespace Shivaji01 {
namespace {

constexpr char16_t NonJoiner = u'\u200C';
constexpr char16_t Joiner = u'\u200D';
constexpr char16_t EyelashRa = u'\u0931';

struct Pair {
    char16_t letter;
    char16_t plain;
};

// Letters that are one character with their dot, and the letter without it.
constexpr Pair Dotted[] = {
    {u'\u0959', u'\u0916'},
    {u'\u095A', u'\u0917'},
    {u'\u095B', u'\u091C'},
    {u'\u095C', u'\u0921'},
    {u'\u095D', u'\u0922'},
    {u'\u095E', u'\u092B'},
};

// Whether a joiner has no effect: the letters around it are shown the same without it.
bool IsIdle(char16_t c, char16_t before, QStringView rest)
{
    if (c != Joiner && c != NonJoiner)
        return false;
    const auto* next = std::find_if(
        rest.begin(), rest.end(), [](QChar after) { return after != Joiner && after != NonJoiner; });
    return next != rest.end() && Compose(before, next->unicode()) != 0;
}

}

QString OneForm(QStringView seen)
{
    QString text;
    text.reserve(seen.size() + 8);
    for (qsizetype i = 0; i < seen.size(); ++i) {
        const char16_t c = seen[i].unicode();
        const QStringView rest = seen.sliced(i + 1);
        const auto* dotted = std::find_if(
            std::begin(Dotted), std::end(Dotted), [c](const Pair& pair) { return pair.letter == c; });
        const char16_t before = text.isEmpty() ? u'\0' : text.back().unicode();
        if (IsIdle(c, before, rest))
            continue;
        if (const char16_t whole = Compose(before, c)) {
            text.back() = QChar(whole);
        } else if (dotted != std::end(Dotted)) {
            text += QChar(dotted->plain);
            text += QChar(Nukta);
        } else if (c == Ra && rest.startsWith(Nukta)) {
            text += QChar(EyelashRa);
            ++i;
        } else if (c == Ra && rest.size() > 2 && rest[0] == Virama && rest[1] == Joiner) {
            text += QChar(EyelashRa);
            text += QChar(Virama);
            i += 2;
        } else {
            text += QChar(c);
        }
    }
    return text;
}

QString Reading(QStringView stored)
{
    QString reading = OneForm(ToUnicode(stored));
    reading.remove(QChar(Joiner)).remove(QChar(NonJoiner));
    return OneForm(reading).simplified(); // two parts of a letter may have been separated by a joiner
}

}
