#include "society/Fields.h"
#include "society/Words.h"

std::vector<ChoiceField::Choice> ChoicesOf(std::initializer_list<QStringView> words)
{
    std::vector<ChoiceField::Choice> choices;
    for (const QStringView word : words)
        choices.push_back({QChar(u'1' + static_cast<int>(choices.size())), word.toString()});
    return choices;
}

ShiftField::ShiftField(Screen* screen, const char* name, const Handler& lostFocus)
    : ChoiceField(screen, name, ChoicesOf({Word::Morning, Word::Evening}), lostFocus)
{
    SetLocked(true);
    SetGuide(Shivaji(u"  1 ¹ sakaL    2 ¹ saMQyaakaL"));
}

AnimalField::AnimalField(Screen* screen, const char* name, const Handler& lostFocus)
    : ChoiceField(screen, name, ChoicesOf({Word::Cow, Word::Buffalo}), lostFocus)
{
    SetLocked(true);
    SetGuide(UsualGuide());
}

Caption AnimalField::UsualGuide()
{
    return Shivaji(u"  1 ¹ gaaya    2 ¹ mhOsa");
}
