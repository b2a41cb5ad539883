#include "Keys.h"

#include <QHash>

namespace {

const KeyHint Next{QStringLiteral("Enter"), Plain(u"पुढे")};
const KeyHint Back{QStringLiteral("Shift+Tab"), Plain(u"मागे")};
const KeyHint Leave{QStringLiteral("Esc"), Plain(u"बाहेर")};
const KeyHint Calculator{QStringLiteral("F2"), Shivaji(u"k^la@yaulaoTr")};
const KeyHint Tutor{QStringLiteral("F12"), Shivaji(u"kIbaaoD- TyaUTr")};

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
                    {QStringLiteral("F9"), Shivaji(u"dUQa ivaËI")}, Tutor}}},
        {QStringLiteral("frmAppDate"), {Shivaji(u"idnaaMk"), {Next, Leave}}},
        {QStringLiteral("frmKeyboardTutor"), {Shivaji(u"kIbaaoD- TyaUTr"), {Next, Leave}}},
        {QStringLiteral("frmNarrations"), {Plain(u"टीप"), {Next, Leave, Tutor}}},
        {QStringLiteral("frmMembers"), {Shivaji(u"]%padkacao rijasTr"), {Next, Back, Leave, Tutor}}},
        {QStringLiteral("frmMilkCollections"),
            {Shivaji(u"dUQa saMklana 1"),
                {Next, Back, Leave, Calculator, {QStringLiteral("F3"), Shivaji(u"]%padkacao rijasTr")},
                    {QStringLiteral("F6"), Shivaji(u"]cala naaoMd")}, Tutor}}},
        {QStringLiteral("frmMilkCollections.txtCollectionNo"),
            {Plain(u"दूध संकलन १, संकलन क्रमांकात"),
                {{QStringLiteral("↑"), Plain(u"आधीची नोंद")}, {QStringLiteral("↓"), Plain(u"पुढची नोंद")}}}},
        {QStringLiteral("frmMilkCollections.txtMemberNo"),
            {Plain(u"दूध संकलन १, मेम्बर नंबरात"),
                {{QStringLiteral("F7"), Shivaji(u"]%padkacao vaOyai@tk dUQa saMklana")},
                    {QStringLiteral("F9"), Shivaji(u"dUQa saMklana pavatI")},
                    {QStringLiteral("F10"), Shivaji(u"KaoDNao")}}}},
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
