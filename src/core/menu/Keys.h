#pragma once

#include "platform/forms/Layout.h"

// The one list of keys: the strip at the foot of a screen, the printed key sheet and the tests are made
// from it.
namespace Keys {

// The keys of a screen, in the order that its strip shows them; empty for a screen without any.
const std::vector<KeyHint>& Of(const QString& screen);

// What a key of a screen does, as its hint says; an empty caption for a key that it doesn't have.
Caption Action(const QString& screen, QStringView key);

// The keys of a place in one line, to stand as a field's guide.
Caption Guide(const QString& place);

// The screens that have keys, and the name that the clerk knows each by.
struct Sheet {
    QString screen;
    Caption name;
};
const std::vector<Sheet>& Sheets();

}
