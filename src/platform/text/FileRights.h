#pragma once

// The rights of other users to the files that this process makes.
namespace FileRights {

// Makes all new files readable and writable by their owner only. To be called before anything is written.
void KeepPrivate();

// The umask from before KeepPrivate, such as 022: the rights that the user withholds from new files.
unsigned OfTheUser();

}
