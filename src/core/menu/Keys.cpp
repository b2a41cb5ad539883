#include "core/menu/Keys.h"

namespace {

const KeyHint Next{QStringLiteral("Enter"), Plain(u"पुढे")};
const KeyHint Back{QStringLiteral("Shift+Tab"), Plain(u"मागे")};
const KeyHint Leave{QStringLiteral("Esc"), Plain(u"बाहेर")};
const KeyHint Calculator{QStringLiteral("F2"), Shivaji(u"k^la@yaulaoTr")};
const KeyHint ChooseOption{QStringLiteral("↑ ↓"), Plain(u"निवडा")};
const KeyHint PrintReport{QStringLiteral("Alt+I"), Shivaji(u"irpaoT-")};
const KeyHint ExitButton{QStringLiteral("Alt+B"), Shivaji(u"baahor")};
const KeyHint Tutor{QStringLiteral("F12"), Shivaji(u"kIbaaoD- TyaUTr")};

const KeyHint New{QStringLiteral("Alt+N"), Shivaji(u"navaIna")};
const KeyHint Modify{QStringLiteral("Alt+D"), Shivaji(u"badla")};
const KeyHint Delete{QStringLiteral("Alt+K"), Shivaji(u"KaoDNao")};
const KeyHint Save{QStringLiteral("Alt+S"), Shivaji(u"saovh")};
const KeyHint Cancel{QStringLiteral("Alt+R"), Shivaji(u"r_")};
const KeyHint ListOfNames{QStringLiteral("↓"), Plain(u"यादी")};
const KeyHint OneOfTwo{QStringLiteral("1 2"), Plain(u"निवडा")};
const KeyHint OneOfThree{QStringLiteral("1 2 3"), Plain(u"निवडा")};
const KeyHint Tick{QStringLiteral("Space"), Plain(u"खूण")};

struct Screen {
    Caption name;
    std::vector<KeyHint> keys;
};

using Table = std::vector<std::pair<QString, Screen>>;

const Table& TheTable()
{
    static const Table table = {
        {QStringLiteral("MainMenuFrm"),
            {Shivaji(u"maona maonaU"),
                {{QStringLiteral("Enter"), Plain(u"निवडा")}, Leave, Calculator,
                    {QStringLiteral("F4"), Shivaji(u"]cala naaoMd")},
                    {QStringLiteral("F7"), Shivaji(u"Aa^Tao saoTIMgja")},
                    {QStringLiteral("F8"), Shivaji(u"dUQa saMklana")},
                    {QStringLiteral("F9"), Shivaji(u"dUQa ivaËI"), false}, Tutor}}},
        {QStringLiteral("frmAbout"),
            {Plain(u"सुरुवात"),
                {{QStringLiteral("Enter"), Plain(u"पुढे")}, {QStringLiteral("Alt+X"), Plain(u"बाहेर")}}}},
        {QStringLiteral("frmTip"),
            {Plain(u"सूचना"),
                {{QStringLiteral("Alt+A"), Plain(u"मान्य, पुढे")},
                    {QStringLiteral("Alt+R"), Plain(u"अमान्य, बाहेर")}}}},
        {QStringLiteral("frmMessages"),
            {Plain(u"संदेश किंवा प्रश्न"),
                {{QStringLiteral("Enter"), Plain(u"रंगीत बटण")}, {QStringLiteral("Alt+H"), Shivaji(u"haoya")},
                    {QStringLiteral("Alt+N"), Shivaji(u"naahI")}}}},
        {QStringLiteral("frmPlainBox"),
            {Plain(u"चौकटीतील सूचना"), {{QStringLiteral("Enter Space Esc"), Plain(u"ठीक")}}}},
        {QStringLiteral("frmInputBox"),
            {Plain(u"चौकटीतील प्रश्न"),
                {{QStringLiteral("Enter"), Plain(u"ठीक")}, {QStringLiteral("Tab"), Plain(u"बटणांकडे")},
                    {QStringLiteral("Esc"), Plain(u"रद्द")}}}},
        {QStringLiteral("ProgramWindow"),
            {Plain(u"कोणत्याही पडद्यावर"), {{QStringLiteral("F11"), Plain(u"पूर्ण स्क्रीन, किंवा परत खिडकीत")}}}},
        {QStringLiteral("NameCombo"),
            {Plain(u"नावांच्या यादीत, कोणत्याही पडद्यावर"), {{QStringLiteral("↓ ↑"), Plain(u"यादीतून निवडा")}}}},
        {QStringLiteral("NameCombo.list"),
            {Plain(u"नावांची यादी उघडी असताना, कोणत्याही पडद्यावर"),
                {{QStringLiteral("Enter Tab"), Plain(u"गडद ओळ घ्या")},
                    {QStringLiteral("Esc"), Plain(u"यादी बंद")},
                    {QStringLiteral("Alt+↓ Alt+↑"), Plain(u"यादी उघडा, बंद")}}}},
        {QStringLiteral("ChoiceField"),
            {Plain(u"ठराविक शब्दांत, कोणत्याही पडद्यावर"), {{QStringLiteral("1 2 3"), Plain(u"सुचवलेला शब्द")}}}},
        {QStringLiteral("CheckBox"),
            {Plain(u"खुणेच्या चौकटीत, कोणत्याही पडद्यावर"),
                {{QStringLiteral("Space"), Plain(u"खूण करा किंवा काढा")}}}},
        {QStringLiteral("DataGrid"),
            {Plain(u"नोंदींच्या यादीत, कोणत्याही पडद्यावर"),
                {{QStringLiteral("↑ ↓"), Plain(u"वर-खाली")}, {QStringLiteral("PgUp PgDn"), Plain(u"एक पान")},
                    {QStringLiteral("Home End"), Plain(u"पहिली, शेवटची")}}}},
        {QStringLiteral("frmAppDate"), {Shivaji(u"idnaaMk"), {Next, Leave}}},
        {QStringLiteral("frmKeyboardTutor"), {Shivaji(u"kIbaaoD- TyaUTr"), {Next, Leave}}},
        {QStringLiteral("frmNarrations"), {Plain(u"टीप"), {Next, Leave, Tutor}}},
        {QStringLiteral("frmMembers"),
            {Shivaji(u"]%padkacao rijasTr"),
                {Next, Back, Leave, Tutor, New, Modify, Delete, Save, Cancel, ExitButton, OneOfThree,
                    ListOfNames}}},
        {QStringLiteral("frmMilkCollections"),
            {Shivaji(u"dUQa saMklana 1"),
                {Next, Back, Leave, Calculator, {QStringLiteral("F3"), Shivaji(u"]%padkacao rijasTr")},
                    {QStringLiteral("F6"), Shivaji(u"]cala naaoMd")}, Tutor, OneOfTwo, ListOfNames}}},
        {QStringLiteral("frmMilkCollections.maskDate"),
            {Plain(u"दूध संकलन १, दिनांकात"),
                {{QStringLiteral("Shift+Tab"), Plain(u"वजन काटा, फॅट मशीन, प्रिंटर")}}}},
        {QStringLiteral("frmMilkCollections.txtCollectionNo"),
            {Plain(u"दूध संकलन १, संकलन क्रमांकात"),
                {{QStringLiteral("↑"), Plain(u"आधीची नोंद")}, {QStringLiteral("↓"), Plain(u"पुढची नोंद")}}}},
        {QStringLiteral("frmMilkCollections.txtMemberNo"),
            {Plain(u"दूध संकलन १, मेम्बर नंबरात"),
                {{QStringLiteral("F7"), Shivaji(u"]%padkacao vaOyai@tk dUQa saMklana")},
                    {QStringLiteral("F9"), Shivaji(u"dUQa saMklana pavatI")},
                    {QStringLiteral("F10"), Shivaji(u"KaoDNao")}}}},
        {QStringLiteral("FrameMilkCollection"),
            {Shivaji(u"]%padkacao vaOyai@tk dUQa saMklana"),
                {Next, Back, Leave, {QStringLiteral("Alt+I"), Shivaji(u"irpaoT-")},
                    {QStringLiteral("Alt+B"), Shivaji(u"baahor")}, Calculator,
                    {QStringLiteral("F3"), Shivaji(u"]%padkacao rijasTr")},
                    {QStringLiteral("F6"), Shivaji(u"]cala naaoMd")}, Tutor}}},
        {QStringLiteral("frmCollectionGate"),
            {Shivaji(u"dUQa saMklana 2"),
                {Next, Back, Leave, Calculator, {QStringLiteral("F3"), Shivaji(u"]%padkacao rijasTr")},
                    {QStringLiteral("F6"), Shivaji(u"]cala naaoMd")}, Tutor,
                    {QStringLiteral("Alt+B"), Shivaji(u"baahor")}}}},
        {QStringLiteral("frmCollectionGate.fields"),
            {Plain(u"दूध संकलन २, वेळ, नाव, दूध व शोधात"), {OneOfTwo, ListOfNames, Tick}}},
        {QStringLiteral("frmCollectionGate.maskDate"),
            {Plain(u"दूध संकलन २, दिनांकात"),
                {{QStringLiteral("Shift+Tab"), Plain(u"शोध, क्रम, वजन काटा, फॅट मशीन, प्रिंटर")}}}},
        {QStringLiteral("frmCollectionGate.txtCollectionNo"),
            {Plain(u"दूध संकलन २, संकलन क्रमांकात"),
                {{QStringLiteral("↑"), Plain(u"आधीची नोंद")}, {QStringLiteral("↓"), Plain(u"पुढची नोंद")}}}},
        {QStringLiteral("frmCollectionGate.txtMemberNo"),
            {Plain(u"दूध संकलन २, मेम्बर नंबरात"),
                {{QStringLiteral("F9"), Shivaji(u"dUQa saMklana pavatI")},
                    {QStringLiteral("F10"), Shivaji(u"KaoDNao")}}}},
        {QStringLiteral("frmDailyCollection"),
            {Shivaji(u"dUQa saMklana 3"),
                {Next, Back, Leave, Calculator, Tutor, New, Modify, Delete, Save, Cancel, ExitButton,
                    OneOfTwo, ListOfNames}}},
        {QStringLiteral("frmDailyCollection.txtMemberNo"),
            {Plain(u"दूध संकलन ३, नवीन नोंदीच्या मेम्बर नंबरात"),
                {{QStringLiteral("F5"), Plain(u"मेम्बरचे आतापर्यंतचे संकलन")}}}},
        {QStringLiteral("frmDailyCollection.DataGrid1"),
            {Plain(u"दूध संकलन ३, मेम्बरच्या यादीत"),
                {{QStringLiteral("Enter"), Plain(u"ही नोंद")}, {QStringLiteral("F5"), Plain(u"यादी बंद")}}}},
        {QStringLiteral("frmSearchCollections"),
            {Shivaji(u"dUQa saMklana pavatI"),
                {Next, Back, {QStringLiteral("Alt+P"), Plain(u"पावती पुन्हा दाखवा")}, Leave, Calculator, Tutor,
                    OneOfTwo, ListOfNames}}},
        {QStringLiteral("frmAbsenseMemberCollection"),
            {Shivaji(u"dUQa saMklana nasaNaaro saBaasad"), {Next, Back, Leave, Calculator, Tutor, OneOfTwo}}},
        {QStringLiteral("frmReportPreview.page"),
            {Plain(u"रिपोर्ट, पाने पाहताना"),
                {{QStringLiteral("PgDn"), Plain(u"पुढे")}, {QStringLiteral("PgUp"), Plain(u"मागे")},
                    {QStringLiteral("Home"), Plain(u"पहिले")}, {QStringLiteral("End"), Plain(u"शेवटचे")},
                    {QStringLiteral("↑ ↓ ← →"), Plain(u"सरकवा")}, {QStringLiteral("+"), Plain(u"मोठे")},
                    {QStringLiteral("−"), Plain(u"लहान")}, {QStringLiteral("F5"), Plain(u"रुंदीभर")},
                    {QStringLiteral("F6"), Plain(u"पूर्ण पान")}, {QStringLiteral("F7"), Plain(u"100 %")}}}},
        {QStringLiteral("frmReportPreview"),
            {Plain(u"रिपोर्ट पाहणे"),
                {{QStringLiteral("Ctrl+P"), Plain(u"छापा")}, {QStringLiteral("Ctrl+F"), Plain(u"शोधा")},
                    {QStringLiteral("F3"), Plain(u"पुढे शोधा")},
                    {QStringLiteral("Shift+F3"), Plain(u"मागे शोधा")},
                    {QStringLiteral("Ctrl+S"), Plain(u"PDF जतन")},
                    {QStringLiteral("Ctrl+E"), Plain(u"CSV जतन")}, Tutor, Leave}}},
        {QStringLiteral("frmReportFile"), {Plain(u"रिपोर्टची फाइल जतन करणे"), {Next, Back, Leave}}},
        {QStringLiteral("frmReportPrinter"),
            {Plain(u"प्रिंटर निवडणे"),
                {{QStringLiteral("Enter"), Plain(u"निवडा")}, {QStringLiteral("↑ ↓"), Plain(u"वर-खाली")},
                    Leave}}},
        {QStringLiteral("frmReportMilkPS"),
            {Shivaji(u"dUQa saMklana À ivaËI irpaoT-"),
                {Next, Back, Leave, ChooseOption, ListOfNames, PrintReport, ExitButton}}},
        {QStringLiteral("frmReportMilkCollections"),
            {Shivaji(u"dUQa saMklana irpaoT-"),
                {Next, Back, Leave, {QStringLiteral("Alt+S"), Shivaji(u"sakaL")},
                    {QStringLiteral("Alt+K"), Shivaji(u"saMQyaakaL")},
                    {QStringLiteral("Alt+D"), Shivaji(u"daonhI")}, ListOfNames, PrintReport, ExitButton}}},
        {QStringLiteral("frmReportMembersList"),
            {Shivaji(u"saBaasadaMcaI yaadI"),
                {Next, Back, Leave, {QStringLiteral("Alt+1"), Shivaji(u"pUNa- yaadI")},
                    {QStringLiteral("Alt+2"), Shivaji(u"ivaBaaga")},
                    {QStringLiteral("Alt+3"), Shivaji(u"dUQa")}, ListOfNames, PrintReport, ExitButton}}},
        {QStringLiteral("frmReportPaymentList"),
            {Shivaji(u"dUQa pomaonT ilasT"), {Next, Back, Leave, ChooseOption, PrintReport, ExitButton}}},
        {QStringLiteral("frmAutoSettings"),
            {Shivaji(u"Aa^Tao saoTIMgja"),
                {Next, Back, {QStringLiteral("Ctrl+PgDn"), Plain(u"पुढचे पान")},
                    {QStringLiteral("Ctrl+PgUp"), Plain(u"मागचे पान")},
                    {QStringLiteral("Alt+↓"), Plain(u"यादी")}, {QStringLiteral("1 2 3 …"), Plain(u"निवडा")},
                    Tick, ChooseOption, Save, Cancel, ExitButton, Leave}}},
        {QStringLiteral("frmAutoSettings.cmdReceipt"),
            {Plain(u"ऑटो सेटींग्ज, संकलनाच्या पानावर"),
                {{QStringLiteral("Shift+Tab"), Plain(u"पहिल्या प्रश्नावरून पावती प्रकाराच्या बटणावर")},
                    {QStringLiteral("Enter"), Plain(u"बटणावर : नमुना पावती")}}}},
        {QStringLiteral("frmAutoSettings.Payment"),
            {Plain(u"ऑटो सेटींग्ज, पेमेंटच्या पानावर, ठेव कपातीत"),
                {{QStringLiteral("↓"), Plain(u"दराचा प्रकार व पुढील प्रश्न")}}}},
        {QStringLiteral("frmAutoSettings.Sale"),
            {Plain(u"ऑटो सेटींग्ज, दूध विक्रीच्या पानावर"),
                {{QStringLiteral("↓"), Shivaji(u"ivaËI pavatIÀip`MT")}}}},
    };
    return table;
}

}

const std::vector<KeyHint>& Keys::Of(const QString& screen)
{
    static const std::vector<KeyHint> none;
    for (const auto& [name, entry] : TheTable())
        if (name == screen)
            return entry.keys;
    return none;
}

Caption Keys::Action(const QString& screen, QStringView key)
{
    for (const KeyHint& hint : Of(screen))
        if (hint.key == key)
            return hint.action;
    return {};
}

Caption Keys::Guide(const QString& place)
{
    QStringList parts;
    for (const KeyHint& hint : Of(place))
        parts.append(hint.key + QStringLiteral(" : ") + hint.action.Seen().trimmed());
    return Plain(parts.join(QStringLiteral("    ")));
}

const std::vector<Keys::Sheet>& Keys::Sheets()
{
    static const std::vector<Sheet> sheets = [] {
        std::vector<Sheet> all;
        for (const auto& [name, entry] : TheTable())
            all.push_back({name, entry.name});
        return all;
    }();
    return sheets;
}
