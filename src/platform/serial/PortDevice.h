#pragma once

#include <QString>

// The device of port `number`. On Windows it is COMn. Elsewhere it is the link COMn in the folder of links,
// if there is one (even if its device isn't plugged in), and else the machine's own n-th port. Empty for a
// number below 1.
QString PortDevice(int number);

// Sets the folder in which an administrator links port numbers to devices. At first there is none.
void SetPortLinksFolder(const QString& folder);
