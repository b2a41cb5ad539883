#include "society/Fields.h"
#include "society/Words.h"

std::vector<ChoiceField::Choice> ChoicesOf(std::initializer_list<QStringView> words)
{
    std::vector<ChoiceField::Choice> choices;
    for (const QStringView word : words)
        choices.push_back({QChar(u'1' + static_cast<int>(choices.size())), word.toString()});
    return choices;
}

namespace {

std::vector<ChoiceField::Choice> Shifts()
{
    return ChoicesOf({Word::Morning, Word::Evening});
}

std::vector<ChoiceField::Choice> Animals()
{
    return ChoicesOf({Word::Cow, Word::Buffalo});
}

// The counters' guides begin with two blanks.
Caption IndentedGuide(const std::vector<ChoiceField::Choice>& choices)
{
    return Shivaji(QString(u"  " % ChoiceField::GuideTo(choices)));
}

}

ShiftField::ShiftField(Screen* screen, const char* name, const Handler& lostFocus)
    : ChoiceField(screen, name, Shifts(), lostFocus)
{
    SetLocked(true);
    SetGuide(UsualGuide());
}

Caption ShiftField::UsualGuide()
{
    return IndentedGuide(Shifts());
}

AnimalField::AnimalField(Screen* screen, const char* name, const Handler& lostFocus)
    : ChoiceField(screen, name, Animals(), lostFocus)
{
    SetLocked(true);
    SetGuide(UsualGuide());
}

Caption AnimalField::UsualGuide()
{
    return IndentedGuide(Animals());
}
