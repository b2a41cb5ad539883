#include "core/menu/CoreKeys.h"

#include "core/menu/MainMenu.h"
#include "core/messages/Narrations.h"

Keys::Places CoreKeys()
{
    using namespace KeyHints;
    return {
        MainMenuFrm::KeyPlace(),
        {QStringLiteral("frmAbout"), Plain(u"सुरुवात"),
            {{QStringLiteral("Enter"), Plain(u"पुढे")}, {QStringLiteral("Alt+X"), Plain(u"बाहेर")}}},
        {QStringLiteral("frmTip"), Plain(u"सूचना"),
            {{QStringLiteral("Alt+A"), Plain(u"मान्य, पुढे")},
                {QStringLiteral("Alt+R"), Plain(u"अमान्य, बाहेर")}}},
        {QStringLiteral("frmMessages"), Plain(u"संदेश किंवा प्रश्न"),
            {{QStringLiteral("Enter"), Plain(u"रंगीत बटण")}, {QStringLiteral("Alt+H"), Shivaji(u"haoya")},
                {QStringLiteral("Alt+N"), Shivaji(u"naahI")}}},
        {QStringLiteral("frmPlainBox"), Plain(u"चौकटीतील सूचना"),
            {{QStringLiteral("Enter Space Esc"), Plain(u"ठीक")}}},
        {QStringLiteral("frmInputBox"), Plain(u"चौकटीतील प्रश्न"),
            {{QStringLiteral("Enter"), Plain(u"ठीक")}, {QStringLiteral("Tab"), Plain(u"बटणांकडे")},
                {QStringLiteral("Esc"), Plain(u"रद्द")}}},
        {QStringLiteral("ProgramWindow"), Plain(u"कोणत्याही पडद्यावर"),
            {{QStringLiteral("F11"), Plain(u"पूर्ण स्क्रीन, किंवा परत खिडकीत")}}},
        {QStringLiteral("NameCombo"), Plain(u"नावांच्या यादीत, कोणत्याही पडद्यावर"),
            {{QStringLiteral("↓ ↑"), Plain(u"यादीतून निवडा")}}},
        {QStringLiteral("NameCombo.list"), Plain(u"नावांची यादी उघडी असताना, कोणत्याही पडद्यावर"),
            {{QStringLiteral("Enter Tab"), Plain(u"गडद ओळ घ्या")}, {QStringLiteral("Esc"), Plain(u"यादी बंद")},
                {QStringLiteral("Alt+↓ Alt+↑"), Plain(u"यादी उघडा, बंद")}}},
        {QStringLiteral("ChoiceField"), Plain(u"ठराविक शब्दांत, कोणत्याही पडद्यावर"),
            {{QStringLiteral("1 2 3"), Plain(u"सुचवलेला शब्द")}}},
        {QStringLiteral("CheckBox"), Plain(u"खुणेच्या चौकटीत, कोणत्याही पडद्यावर"),
            {{QStringLiteral("Space"), Plain(u"खूण करा किंवा काढा")}}},
        {QStringLiteral("DataGrid"), Plain(u"नोंदींच्या यादीत, कोणत्याही पडद्यावर"),
            {{QStringLiteral("↑ ↓"), Plain(u"वर-खाली")}, {QStringLiteral("PgUp PgDn"), Plain(u"एक पान")},
                {QStringLiteral("Home End"), Plain(u"पहिली, शेवटची")}}},
        {QStringLiteral("frmAppDate"), Shivaji(u"idnaaMk"), {Next, Leave}},
        {QStringLiteral("frmKeyboardTutor"), Shivaji(u"kIbaaoD- TyaUTr"), {Next, Leave}},
        frmNarrations::KeyPlace(),
    };
}
