#pragma once

#include "platform/forms/Caption.h"

// For a field that keeps the focus without a message: the guide line says what it wants, and which key leads
// out, until the field is left. Used as txtTime.SetFocus(Wanted::Shift()).
namespace Wanted {

inline Caption Date()
{
    return Plain(u"दिनांक असा टाका : 15/04/2026    Esc : बाहेर");
}

inline Caption Shift()
{
    return Plain(u"1 : सकाळ    2 : संध्याकाळ    Esc : बाहेर");
}

inline Caption Animal()
{
    return Plain(u"1 : गाय    2 : म्हैस    Esc : बाहेर");
}

inline Caption Name()
{
    return Plain(u"नाव टाका, किंवा ↓ ने यादीतून निवडा    Esc : यादी बंद, मग बाहेर");
}

// In a mode, which Cancel gives up.
inline Caption OrCancel(const Caption& wanted)
{
    return Plain(QString(wanted.Seen().trimmed() + QStringLiteral("    Alt+R : रद्द")));
}

}
