#include "core/menu/CommonKeys.h"

#include "core/menu/KeyboardTutor.h"
#include "core/messages/Messages.h"
#include "platform/shell/AppFolder.h"
#include "platform/shell/World.h"

void CommonKeys::Calculator(bool maximised)
{
    StartCalculator(Paths::AppFolder.toString() + u"calc.EXE", maximised);
}

void CommonKeys::StartCalculator(const QString& program, bool maximised)
{
    if (!World::Current().calculator->Start(program, maximised))
        ShowPlain(QStringLiteral("या संगणकावर कॅलक्युलेटर सापडला नाही."));
}

void CommonKeys::Tutor()
{
    frmKeyboardTutor tutor;
    tutor.ShowModal();
}

KeyHint CommonKeys::CalculatorKey(const Handler& pressed)
{
    return {QStringLiteral("F2"), Shivaji(u"k^la@yaulaoTr"), pressed};
}

KeyHint CommonKeys::TutorKey(const Handler& pressed)
{
    return {QStringLiteral("F12"), Shivaji(u"kIbaaoD- TyaUTr"), pressed};
}
