#pragma once

#include "platform/forms/Layout.h"

class QKeyEvent;

// Keys are said once: the strip at the foot of a screen, the printed key sheet, the guides and what a press
// does come from one line. A screen declares its own; those of the core's screens stand here.
namespace Keys {

// Where keys do something: a screen, a field of it, or any screen.
struct Place {
    QString name; // "frmMembers", "frmMilkCollections.txtMemberNo"
    Caption heading; // what the clerk calls it
    std::vector<KeyHint> keys; // in the order of the strip
};
using Places = std::vector<Place>; // of a screen: the screen first, then its fields

// Puts a screen's places on the sheet, behind those that are there; a second time changes nothing.
void Add(const Places& places);

// The sheet: the core's places, and those that were added.
const Places& Sheet();

// The keys of a place, of those given or on the sheet. There must be such a place.
const std::vector<KeyHint>& Of(const Places& places, const QString& place);
const std::vector<KeyHint>& Of(const QString& place);

// What a key does, as its hint says; an empty caption for a key that isn't among them.
Caption Action(const std::vector<KeyHint>& keys, QStringView key);
Caption Action(const QString& place, QStringView key);

// The keys in one line, to stand as a field's guide.
Caption Guide(const std::vector<KeyHint>& keys);
Caption Guide(const QString& place);

// Does on a screen what one of the keys says; false if none of them was pressed.
bool Answer(Screen& screen, const std::vector<KeyHint>& keys, const QKeyEvent& pressed);

// The places of the preview: they go to the sheet before those of the screens that open it.
const Places& OfPreview();

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
inline const KeyHint ListOfNames{QStringLiteral("↓"), Plain(u"यादी")};
inline const KeyHint ChooseOption{QStringLiteral("↑ ↓"), Plain(u"निवडा")};
inline const KeyHint OneOfTwo{QStringLiteral("1 2"), Plain(u"निवडा")};
inline const KeyHint OneOfThree{QStringLiteral("1 2 3"), Plain(u"निवडा")};
inline const KeyHint Tick{QStringLiteral("Space"), Plain(u"खूण")};

}
