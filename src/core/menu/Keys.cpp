#include "core/menu/Keys.h"

#include <QKeyEvent>
#include <QKeySequence>

#include <algorithm>

namespace {

using namespace KeyHints;

// The core's screens answer these in their own KeyDown.
const KeyHint Calculator{QStringLiteral("F2"), Shivaji(u"k^la@yaulaoTr")};
const KeyHint Tutor{QStringLiteral("F12"), Shivaji(u"kIbaaoD- TyaUTr")};

Keys::Places OfCore()
{
    return {
        {QStringLiteral("MainMenuFrm"), Shivaji(u"maona maonaU"),
            {{QStringLiteral("Enter"), Plain(u"निवडा")}, Leave, Calculator,
                {QStringLiteral("F4"), Shivaji(u"]cala naaoMd")},
                {QStringLiteral("F7"), Shivaji(u"Aa^Tao saoTIMgja")},
                {QStringLiteral("F8"), Shivaji(u"dUQa saMklana")},
                {QStringLiteral("F9"), Shivaji(u"dUQa ivaËI"), {}, false}, Tutor}},
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
        {QStringLiteral("frmNarrations"), Plain(u"टीप"), {Next, Leave, Tutor}},
    };
}

Keys::Places& TheSheet()
{
    static Keys::Places sheet = OfCore();
    return sheet;
}

const Keys::Place* Find(const Keys::Places& places, QStringView name)
{
    const auto found = std::find_if(
        places.begin(), places.end(), [&](const Keys::Place& place) { return place.name == name; });
    return found == places.end() ? nullptr : &*found;
}

// Whether the key is the one that a hint names. Keys with Alt, Ctrl or Shift are answered elsewhere: by the
// buttons, or by the focus.
bool IsKey(int pressed, const QString& name)
{
    if (name == u"Enter")
        return pressed == Qt::Key_Return || pressed == Qt::Key_Enter;
    if (name == u"↑" || name == u"↓")
        return pressed == (name == u"↑" ? Qt::Key_Up : Qt::Key_Down);
    return QKeySequence(pressed) == QKeySequence(name);
}

}

void Keys::Add(const Places& places)
{
    for (const Place& place : places)
        if (!Find(TheSheet(), place.name))
            TheSheet().push_back(place);
}

const Keys::Places& Keys::Sheet()
{
    return TheSheet();
}

const std::vector<KeyHint>& Keys::Of(const Places& places, const QString& place)
{
    static const std::vector<KeyHint> none;
    const Place* found = Find(places, place);
    Q_ASSERT_X(found, "Keys::Of", qPrintable(place));
    return found ? found->keys : none;
}

const std::vector<KeyHint>& Keys::Of(const QString& place)
{
    return Of(Find(OfPreview(), place) ? OfPreview() : TheSheet(), place);
}

Caption Keys::Action(const std::vector<KeyHint>& keys, QStringView key)
{
    for (const KeyHint& hint : keys)
        if (hint.key == key)
            return hint.action;
    return {};
}

Caption Keys::Action(const QString& place, QStringView key)
{
    return Action(Of(place), key);
}

Caption Keys::Guide(const std::vector<KeyHint>& keys)
{
    QStringList parts;
    for (const KeyHint& hint : keys)
        parts.append(hint.key + QStringLiteral(" : ") + hint.action.Seen().trimmed());
    return Plain(parts.join(QStringLiteral("    ")));
}

Caption Keys::Guide(const QString& place)
{
    return Guide(Of(place));
}

bool Keys::Answer(Screen& screen, const std::vector<KeyHint>& keys, const QKeyEvent& pressed)
{
    for (const KeyHint& hint : keys) {
        if (hint.pressed && IsKey(pressed.key(), hint.key)) {
            hint.pressed.Run(screen);
            return true;
        }
    }
    return false;
}

const Keys::Places& Keys::OfPreview()
{
    static const Places places = {
        {QStringLiteral("frmReportPreview.page"), Plain(u"रिपोर्ट, पाने पाहताना"),
            {{QStringLiteral("PgDn"), Plain(u"पुढे")}, {QStringLiteral("PgUp"), Plain(u"मागे")},
                {QStringLiteral("Home"), Plain(u"पहिले")}, {QStringLiteral("End"), Plain(u"शेवटचे")},
                {QStringLiteral("↑ ↓ ← →"), Plain(u"सरकवा")}, {QStringLiteral("+"), Plain(u"मोठे")},
                {QStringLiteral("−"), Plain(u"लहान")}, {QStringLiteral("F5"), Plain(u"रुंदीभर")},
                {QStringLiteral("F6"), Plain(u"पूर्ण पान")}, {QStringLiteral("F7"), Plain(u"100 %")}}},
        {QStringLiteral("frmReportPreview"), Plain(u"रिपोर्ट पाहणे"),
            {{QStringLiteral("Ctrl+P"), Plain(u"छापा")}, {QStringLiteral("Ctrl+F"), Plain(u"शोधा")},
                {QStringLiteral("F3"), Plain(u"पुढे शोधा")}, {QStringLiteral("Shift+F3"), Plain(u"मागे शोधा")},
                {QStringLiteral("Ctrl+S"), Plain(u"PDF जतन")}, {QStringLiteral("Ctrl+E"), Plain(u"CSV जतन")},
                Tutor, Leave}},
        {QStringLiteral("frmReportFile"), Plain(u"रिपोर्टची फाइल जतन करणे"), {Next, Back, Leave}},
        {QStringLiteral("frmReportPrinter"), Plain(u"प्रिंटर निवडणे"),
            {{QStringLiteral("Enter"), Plain(u"निवडा")}, {QStringLiteral("↑ ↓"), Plain(u"वर-खाली")}, Leave}},
    };
    return places;
}
