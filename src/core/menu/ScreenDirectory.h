#pragma once

#include "platform/forms/Caption.h"

#include <functional>
#include <memory>

class Screen;

// The screens by name. Rooms open each other through it, so that none includes another.
namespace ScreenDirectory {

using Maker = std::function<std::unique_ptr<Screen>()>;

// Names the maker of a screen; a name added again takes the new one, an empty maker takes it out.
void Add(const QString& name, const Maker& maker);

// Opens a screen modally, under a title of its own if one is given. A screen that the program doesn't
// have yet is a plain message that names the entry.
void Open(const QString& name, const Caption& entry, const Caption& title = {});

}
