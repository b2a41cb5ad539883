#pragma once

// What other users of this machine may do with the files that the process writes.
namespace FileRights {

// From now on a new file is for its owner alone. To be called before anything is written.
void KeepPrivate();

// The rights that the user takes from new files, as a mask such as 022: what was in force before KeepPrivate.
unsigned OfTheUser();

}
