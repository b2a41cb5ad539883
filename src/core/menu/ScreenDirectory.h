#pragma once

#include "platform/forms/Caption.h"

#include <functional>
#include <memory>

class Screen;

// The screens by name. A room opens the screens of another through it, so it needn't include them.
namespace ScreenDirectory {

using Maker = std::function<std::unique_ptr<Screen>()>;

// Registers the maker of a screen. Registering a name again replaces its maker; an empty maker removes it.
void Add(const QString& name, const Maker& maker);

// The names of all screens that are registered.
QStringList Names();

// Opens a screen modally; `title`, if given, replaces the screen's own. The screen must be registered.
void Open(const QString& name, const Caption& title = {});

}
