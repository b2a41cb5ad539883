#pragma once

#include "platform/forms/Layout.h"

class QKeyEvent;

// Every key is declared once: the strip at the foot of a screen, the printed key sheet, the guide lines and
// the dispatch come from that line. A screen declares its own keys.
namespace Keys {

// A place where keys do something: a screen, or one of its fields.
struct Place {
    QString name; // "frmMembers", "frmMilkCollections.txtMemberNo"
    Caption heading; // what the clerk calls it
    std::vector<KeyHint> keys; // in the order of the strip
};
using Places = std::vector<Place>; // of a screen: the screen first, then its fields

// Appends a screen's places to the sheet; doing so twice changes nothing.
void Add(const Places& places);

// The sheet: the core's places, then those that were added.
const Places& Sheet();

// The keys of a place, among those given or on the sheet. The place must exist.
const std::vector<KeyHint>& Of(const Places& places, const QString& place);
const std::vector<KeyHint>& Of(const QString& place);

// What a key does, in the words of its hint; empty if it isn't among them.
Caption Action(const std::vector<KeyHint>& keys, QStringView key);

// The keys in one line, as a field's guide.
Caption Guide(const std::vector<KeyHint>& keys);
Caption Guide(const QString& place);

// Runs the handler of the key that was pressed; false if it is none of these, or one without a handler. Ctrl,
// Alt and Shift count only where a hint names them; of two that were pressed the one that names them is
// meant.
bool Answer(Screen& screen, const std::vector<KeyHint>& keys, const QKeyEvent& pressed);

}

// The keys that many screens have, and that their controls and the focus answer.
namespace KeyHints {

inline const KeyHint Next{QStringLiteral("Enter"), Plain(u"पुढे")};
inline const KeyHint Back{QStringLiteral("Shift+Tab"), Plain(u"मागे")};
inline const KeyHint Leave{QStringLiteral("Esc"), Plain(u"बाहेर")};
inline const KeyHint New{QStringLiteral("Alt+N"), Shivaji(u"navaIna")};
inline const KeyHint Modify{QStringLiteral("Alt+D"), Shivaji(u"badla")};
inline const KeyHint Delete{QStringLiteral("Alt+K"), Shivaji(u"KaoDNao")};
inline const KeyHint Save{QStringLiteral("Alt+S"), Shivaji(u"saovh")};
inline const KeyHint Cancel{QStringLiteral("Alt+R"), Shivaji(u"r_")};
inline const KeyHint ExitButton{QStringLiteral("Alt+B"), Shivaji(u"baahor")};
inline const KeyHint PrintReport{QStringLiteral("Alt+I"), Shivaji(u"irpaoT-")};
inline const KeyHint ListOfNames{QStringLiteral("↓"), Plain(u"यादी"), {}, true, true};
inline const KeyHint ChooseOption{QStringLiteral("↑ ↓"), Plain(u"निवडा"), {}, true, true};
inline const KeyHint OneOfTwo{QStringLiteral("1 2"), Plain(u"निवडा"), {}, true, true};
inline const KeyHint OneOfThree{QStringLiteral("1 2 3"), Plain(u"निवडा"), {}, true, true};
inline const KeyHint Tick{QStringLiteral("Space"), Plain(u"खूण"), {}, true, true};

}
